#pragma once

#include "core/controls.h"
#include "core/form.h"
#include "core/platform.h"

#include <array>
#include <string>

/// What the maps show. Hidden, not rebuilt: its boxes keep their state.
struct frmDisplay : Form {
    static constexpr const char* form_name = "frmDisplay";
    explicit frmDisplay(Program& program);

    const std::string heading = "Set display options";
    CheckBox chkMmUnits{true};
    CheckBox chkMmLabels{true};
    CheckBox chkMmLines{true};
    CheckBox chkMmShapes{true};
    CheckBox chkMmPolygons{true};
    CheckBox chkMmFireMissions{true};
    CheckBox chkShowAOO{true};
    CheckBox chkShowWaypoints{true};
    CheckBox chkWayptData{true};
    CheckBox chkShowFirefans;
    CheckBox chkMmUnitName;
    CheckBox chkMmUnitHQname;
    CheckBox chkOmUnits{true};
    CheckBox chkOmFirefans{true};
    CheckBox chkOmLines{true};
    CheckBox chkUnitsecurityzone;
    CheckBox chkUSZfilled{true};
    // 0 the selected unit only, 1 all units
    std::array<OptionButton, 2> optAOO{{{false}, {true}}};
    std::array<OptionButton, 2> optWaypt{{{false}, {true}}};
    std::array<OptionButton, 2> optFirefans{{{false, false}, {true, false}}};
    std::array<OptionButton, 2> optUSZ{{{false, false}, {false, false}}};

    /// Of two options one is on.
    static void choose(std::array<OptionButton, 2>& options, std::size_t chosen);
    void chkShowAOO_Click();
    void chkShowWaypoints_Click();
    void chkShowFirefans_Click();
    void chkUnitsecurityzone_Click();
    void cmdSelectAll_Click();
    void cmdClearAll_Click();
    void cmdOK_Click();

  private:
    void enable_options();
    /// Every box on and every choice "All units", or everything off.
    void set_all(bool on);
};

/// Shows the form and applies what it was left with.
void mnuSetDisplay_Click(Program& program);
/// Shows or hides all unit markers.
void mnuShowHideUnits_Click(Program& program);
