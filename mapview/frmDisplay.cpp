#include "mapview/frmDisplay.h"

#include "core/program.h"

namespace {

void enable(std::array<OptionButton, 2>& options, bool enabled) {
    for (OptionButton& option : options) option.enabled = enabled;
}

void show_units_as_told(Program& program) {
    frmMain& main = program.main;
    main.mnuShowHideUnits.checked = program.campaign.gDispUnits;
    for (int i = 1; i < program.campaign.gNextUnitIndex; ++i)
        if (main.imgUnit(i).tag != deleted_tag) main.imgUnit(i).visible = program.campaign.gDispUnits;
    main.picMap.Refresh();
}

} // namespace

frmDisplay::frmDisplay(Program& shown) : Form(shown, form_name, program_title) {}

void frmDisplay::enable_options() {
    enable(optAOO, chkShowAOO.value);
    enable(optWaypt, chkShowWaypoints.value);
    chkWayptData.enabled = chkShowWaypoints.value;
    enable(optFirefans, chkShowFirefans.value);
    enable(optUSZ, chkUnitsecurityzone.value);
}

void frmDisplay::choose(std::array<OptionButton, 2>& options, std::size_t chosen) {
    for (std::size_t i = 0; i < options.size(); ++i) options[i].value = i == chosen;
}

void frmDisplay::chkShowAOO_Click() { enable_options(); }
void frmDisplay::chkShowWaypoints_Click() { enable_options(); }
void frmDisplay::chkShowFirefans_Click() { enable_options(); }
void frmDisplay::chkUnitsecurityzone_Click() { enable_options(); }

void frmDisplay::set_all(bool on) {
    for (CheckBox* box :
         {&chkMmUnits, &chkMmLabels, &chkMmLines, &chkMmShapes, &chkMmPolygons, &chkMmFireMissions,
          &chkShowAOO, &chkShowWaypoints, &chkWayptData, &chkShowFirefans, &chkMmUnitName, &chkMmUnitHQname,
          &chkOmUnits, &chkOmFirefans, &chkOmLines, &chkUnitsecurityzone, &chkUSZfilled})
        box->value = on;
    for (auto* options : {&optAOO, &optWaypt, &optFirefans, &optUSZ}) {
        (*options)[0].value = false;
        (*options)[1].value = on;
    }
    enable_options();
}

void frmDisplay::cmdSelectAll_Click() { set_all(true); }

void frmDisplay::cmdClearAll_Click() { set_all(false); }

void frmDisplay::cmdOK_Click() {
    DisplayOptions& options = program.campaign;
    options.gDispUnits = chkMmUnits.value;
    options.gDispLabels = chkMmLabels.value;
    options.gDispLines = chkMmLines.value;
    options.gDispShapes = chkMmShapes.value;
    options.gDispPolygons = chkMmPolygons.value;
    options.gDispFireMissions = chkMmFireMissions.value;
    options.gDispAoo = chkShowAOO.value;
    options.gDispAooSelected = optAOO[0].value;
    options.gDispAooAll = optAOO[1].value;
    options.gDispWaypoints = chkShowWaypoints.value;
    options.gDispWayptSelected = optWaypt[0].value;
    options.gDispWayptAll = optWaypt[1].value;
    options.gDispWayptData = chkWayptData.value;
    options.gDispFirefans = chkShowFirefans.value;
    options.gDispFirefansSelected = optFirefans[0].value;
    options.gDispFirefansAll = optFirefans[1].value;
    options.gDispUnitNames = chkMmUnitName.value;
    options.gDispUnitHQNames = chkMmUnitHQname.value;
    options.gDispOmUnits = chkOmUnits.value;
    options.gDispOmFirefans = chkOmFirefans.value;
    options.gDispOmLines = chkOmLines.value;
    options.gDispUSZ = chkUnitsecurityzone.value;
    options.gDispUSZSelected = optUSZ[0].value;
    options.gDispUSZAll = optUSZ[1].value;
    options.gDispUSZFilled = chkUSZfilled.value;
    program.main.mnuViewFFoverview.checked = options.gDispOmFirefans;
    hide();
}

void mnuSetDisplay_Click(Program& program) {
    auto& form = program.form<frmDisplay>();
    form.chkMmUnits.value = program.campaign.gDispUnits;
    form.show_modal();
    show_units_as_told(program);
}

void mnuShowHideUnits_Click(Program& program) {
    program.campaign.gDispUnits = !program.campaign.gDispUnits;
    show_units_as_told(program);
}
