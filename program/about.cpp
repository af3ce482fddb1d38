#include "program/about.h"

void cmdLegend_Click(Program& program) { program.form<frmMapLegend>().show(); }
void mnuAboutMap_Click(Program& program) { program.form<frmAboutMap>().show_modal(); }
void mnuAboutTolvaneII_Click(Program& program) { program.form<frmAboutTolvaneII>().show_modal(); }
