#pragma once

#include "core/controls.h"
#include "core/form.h"
#include "core/platform.h"

#include <string>

/// What a selective save is to hold. There is no way out but Cancel in the file dialog that follows.
struct frmSaveSelect : Form {
    static constexpr const char* form_name = "frmSaveSelect";
    explicit frmSaveSelect(Program& program); // the boxes as the options stand

    const std::string heading = "Select objects to save";
    CheckBox chkSaveUnits;
    CheckBox chkSaveShapes;
    CheckBox chkSaveLabels;
    CheckBox chkSavePolygons;
    CheckBox chkSaveLines;
    CheckBox chkSaveFmissions;

    void cmdOK_Click();
    void close_box() override { unload(); }
};
