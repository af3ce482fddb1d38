#include "benchmarks/ratios.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>

namespace {

bool went_wrong = false;

/// Prints as usual and keeps the median of each benchmark.
class MedianReporter : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.aggregate_name == "median") medians[run.run_name.str()] = run.GetAdjustedRealTime();
    }

    std::map<std::string, double> medians;
};

} // namespace

void report_wrong(const std::string& what) {
    std::fprintf(stderr, "%s\n", what.c_str());
    went_wrong = true;
}

int run_with_ratios(int argc, char** argv, const std::vector<Ratio>& ratios) {
    std::vector<std::string> options{"--benchmark_repetitions=31", "--benchmark_min_time=0.1",
                                     "--benchmark_enable_random_interleaving=true",
                                     "--benchmark_report_aggregates_only=true"};
    std::vector<char*> arguments{argv[0]};
    for (std::string& option : options) arguments.push_back(option.data());
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    bool all_within = !went_wrong;
    std::printf("\n%-46s %8s %8s\n", "ratio", "is", "at most");
    for (const Ratio& ratio : ratios) {
        const auto median_of = [&](const std::string& name) {
            for (const auto& [run, median] : reporter.medians)
                if (run == name || run.rfind(name + "/", 0) == 0) return median;
            return 0.0;
        };
        if (median_of(ratio.measured) == 0 || median_of(ratio.against) == 0) {
            std::printf("%-46s  not run\n", ratio.name.c_str());
            continue;
        }
        const double is = median_of(ratio.measured) / median_of(ratio.against);
        const bool within = is <= ratio.limit;
        all_within = all_within && within;
        std::printf("%-46s %8.2f %8.2f %s\n", ratio.name.c_str(), is, ratio.limit, within ? "" : "TOO SLOW");
    }
    return all_within ? 0 : 1;
}
