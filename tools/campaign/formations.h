#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// Where a formation stands: kilometres of the grid, the width of its sector, the direction of its front in
/// degrees, 0 north, clockwise.
struct Deployment {
    double east = 0;
    double north = 0;
    double width = 0;
    double facing = 0;
};

/// A unit of the order of battle and what it commands.
struct Formation {
    std::string type;
    std::string name; // empty: numbered within its HQ
    std::string side;
    std::string nationality;
    std::int32_t colour = 0;
    bool deployed = false;
    Deployment deployment;
    std::vector<Formation> children;
};

/// Reads an order of battle: the units without a HQ.
std::vector<Formation> read_order_of_battle(const std::string& file);

/// What a unit consists of.
struct Holding {
    std::string element;
    int quantity = 0;
};

/// Holdings by side and type: "Allied Rifle Company".
std::map<std::string, std::vector<Holding>> read_holdings(const std::string& file);
