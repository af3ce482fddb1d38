#pragma once

#include "core/controls.h"
#include "core/form.h"

#include <string>

/// Asks for a grid reference of the map. The answer goes to `gFindX`, `gFindY`; `gCoordCancelled` tells that
/// there is none.
struct frmEnterCoord : Form {
    static constexpr const char* form_name = "frmEnterCoord";
    explicit frmEnterCoord(Program& program) : Form(program, form_name, "Find a location") {}

    const std::string heading = "Enter the coordinates.";
    const std::string hint = "Digits only, without point or comma: 1250 is 12.50.";
    TextBox txtLongdata{"0000", true, true};
    TextBox txtLatdata{"0000", true, true};

    void txtLongdata_GotFocus() { txtLongdata.all_selected = true; }
    void txtLatdata_GotFocus() { txtLatdata.all_selected = true; }
    void cmdOK_Click();
    void cmdCancel_Click();
    void close_box() override { cmdCancel_Click(); }
};
