#pragma once

#include "core/controls.h"
#include "core/map_controls.h"

/// What `picUnitInfo` shows of the active unit.
struct UnitInfoPanel {
    PictureId imgUIunit = 0;
    Label lblUIunitname;
    Label lblUIparentname;
    Label lblUIeastcoord;
    Label lblUInorthcoord;
    Label lblUIUnitStatus;
    Label lblUIOpStatus;
    Label lblUIFitness;
    Label lblUISupplyReq;
    Label lblUICurrSupply;
    Label lblUIAccSupplyReq;
    Label lblUIAccCurrSupply;
    Label lblUIMIA;
    Label lblUIKIA;
    Label lblUIAccMIA;
    Label lblUIAccKIA;
    Label lblUIFFangle;
    ColourBox picUnitState;
    ListBox lstUIchildunits;
    ListBox lstUIfe;
    CheckBox chkShowAllFE;
    Button cmdSelectHQ;
    Button cmdHierarchy;
    Button cmdEditUnit;
    Button cmdCopyUnit;
    Button cmdDeleteUnit;
    Button cmdSetFirefan{false};
    Button cmdTransferFE{false};
    Button cmdEditFE{false};
    Button cmdDeleteFE{false};
    Button cmdUnitWaypoints;
    Button cmdEditWaypt{false};
    Button cmdMoveWaypt{false};
    Button cmdClearWaypt{false};
    Button cmdDrawAOO;
    Button cmdDelAOO;
};
