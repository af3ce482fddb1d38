#pragma once

#include <string>
#include <vector>

/// One measured thing against another of the same run, and what their ratio must not exceed.
struct Ratio {
    std::string name;
    std::string measured;
    std::string against;
    double limit;
};

/// Says that a benchmark did not do what it is to measure, and makes the run fail. The library's own way of
/// saying so is lost among repetitions that went well.
void report_wrong(const std::string& what);

/// Runs the registered benchmarks, each several times in turn with the others, and prints the ratios of their
/// medians. Answers 0 when all that were run are within their limits and none went wrong.
int run_with_ratios(int argc, char** argv, const std::vector<Ratio>& ratios);
