#pragma once

#include "core/program.h"
#include "tools/campaign/formations.h"

#include <map>
#include <string>
#include <vector>

/// Puts the formations on the map as units with HQ links, holdings and supply.
class UnitMaker {
  public:
    UnitMaker(Program& program, const std::map<std::string, std::vector<Holding>>& holdings)
        : program(program), holdings(holdings) {}

    void make(const std::vector<Formation>& formations);

  private:
    std::shared_ptr<oUnits> unit(const Formation& formation, const std::string& name, const Deployment& where,
                                 oUnits* headquarters);
    void tree(const Formation& formation, const std::string& name, const Deployment& where,
              oUnits* headquarters);
    bool is_free(Point place) const;
    Point free_place(Point wanted) const;
    void add_holdings(oUnits& unit);
    /// What such a unit holds: by its nation, else by its side, else as a headquarters of its echelon.
    const std::vector<Holding>& listed(const oUnits& unit) const;
    bool is_guards(const oUnits& unit) const;
    std::string experience(const oUnits& unit) const;

    Program& program;
    const std::map<std::string, std::vector<Holding>>& holdings;
};
