#pragma once

#include "core/form.h"
#include "core/program.h"

#include <string>

/// The signs of the map, to be kept open beside it.
struct frmMapLegend : Form {
    static constexpr const char* form_name = "frmMapLegend";
    explicit frmMapLegend(Program& program) : Form(program, form_name, "Map legend") {}
    void cmdClose_Click() { unload(); }
    void close_box() override { unload(); }
};

struct frmAboutMap : Form {
    static constexpr const char* form_name = "frmAboutMap";
    explicit frmAboutMap(Program& program) : Form(program, form_name, "About the map") {}
    const std::string scale = "1:50,000 scale, with each grid square 1 km x 1 km";
    void cmdClose_Click() { unload(); }
    void close_box() override { unload(); }
};

struct frmAboutTolvaneII : Form {
    static constexpr const char* form_name = "frmAboutTolvaneII";
    explicit frmAboutTolvaneII(Program& program) : Form(program, form_name, "About Tolvane II") {}
    const std::string heading = "Tolvane II";
    const std::string version = "Version 1.0";
    const std::string date = "November 2003";
    void cmdClose_Click() { unload(); }
    void close_box() override { unload(); }
};

void cmdLegend_Click(Program& program);
void mnuAboutMap_Click(Program& program);
void mnuAboutTolvaneII_Click(Program& program);
