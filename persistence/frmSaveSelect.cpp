#include "persistence/frmSaveSelect.h"

#include "core/program.h"

frmSaveSelect::frmSaveSelect(Program& program) : Form(program, form_name, program_title) {
    const SaveOptions& options = program.campaign;
    chkSaveUnits.value = options.gSaveUnits;
    chkSaveShapes.value = options.gSaveShapes;
    chkSaveLabels.value = options.gSaveLabels;
    chkSavePolygons.value = options.gSavePolygons;
    chkSaveLines.value = options.gSaveLines;
    chkSaveFmissions.value = options.gSaveFmissions;
}

void frmSaveSelect::cmdOK_Click() {
    SaveOptions& options = program.campaign;
    options.gSaveUnits = chkSaveUnits.value;
    options.gSaveShapes = chkSaveShapes.value;
    options.gSaveLabels = chkSaveLabels.value;
    options.gSavePolygons = chkSavePolygons.value;
    options.gSaveLines = chkSaveLines.value;
    options.gSaveFmissions = chkSaveFmissions.value;
    unload();
}
