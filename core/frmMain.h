#pragma once

#include "core/controls.h"
#include "core/line_panel.h"
#include "core/map_controls.h"
#include "core/platform.h"
#include "core/tool_flags.h"
#include "core/unit_info_panel.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

/// The map, its window, rulers, scroll bars and find marker. Positions are client pixels counted from the
/// upper edge of a toolbar row of 22 pixels.
struct MapPanel {
    /// The map: as large as its picture, moved to negative left and top to scroll.
    struct Map : PictureBox {
        std::shared_ptr<const MapPicture> picture;
        bool marked = false; // a refresh is wanted

        void Refresh() { marked = true; }
    };

    PictureBox picMapwindow{252, 41, 0, 0, 2, true};
    Map picMap;
    PictureBox picHcoordContainer{252, 23, 0, 18, 0, true};
    PictureBox picVcoordContainer{230, 41, 20, 0, 0, true};
    PictureBox picHcoord;
    PictureBox picVcoord;
    Font ruler_font{"MS Sans Serif", 10, true, false, false, false};
    ScrollBar scrlHMap{0, 0, 0, 17, 0, 0, 0, 1, 1};
    ScrollBar scrlVMap{0, 0, 17, 0, 0, 0, 0, 1, 1};
    PictureBox picOverviewmap{4, 41, 224, 250, 0, true};
    ShapeControl shpOverviewbox{0, 0, 0, 0, true, 1};

    // Scratch controls that the tools share.
    LineControl linTempLine;
    LineControl linTempLine2;
    std::vector<ShapeControl> shpAnchor{ShapeControl{0, 0, 7, 7, false, 1}}; // the range tools' marks
    ShapeControl shpRubberband;
    ShapeControl shpTrayRubberband;
    std::int16_t rubberband_x = 0; // where a band started; one pair for map and tray
    std::int16_t rubberband_y = 0;

    ShapeControl shpFindgrid{0, 0, 33, 33, false, 3};
    LineControl linFindgridx;
    LineControl linFindgridy;
    Timer tmrTimer{300, false};

    std::int16_t current_x = 0; // the pointer over the map
    std::int16_t current_y = 0; // 48 too large after a move: see `pixel_to_grid`
    std::int16_t popup_x = 0;   // where the right button went down
    std::int16_t popup_y = 0;
};

/// Three texts: pointer, campaign clock, range.
struct StatusBar {
    double top = 0;
    double height = 20;
    std::array<std::string, 3> panels;
};

/// The buttons over the map.
struct Toolbar {
    Button cmdLoad;
    Button cmdSave;
    Button cmdCreateUnits;
    Button cmdLabel;
    Button cmdDrawLines;
    Button cmdDrawPolygon;
    Button cmdCreateShapes;
    Button cmdFireMissions;
    Button cmdFindCoord;
    Button cmdTownsData;
    Button cmdRangecheck;
    Button cmdPathRange;
    Button cmdGrid;
    Button cmdEdgescroll;
    Button cmdSetDateTime;
    Button cmdEditGMPlayers;
    Button cmdUnitTray;
    Button cmdShowFullscreen;
    Button cmdSavemap;
    Button cmdSnapshot;
    Button cmdLegend;
    Button cmdPlaceShape; // of the shape panel
};

/// The titles of the popup menus; all other titles stand in the menu bar.
inline constexpr const char* mnuUnitPopup = "Unit menu";
inline constexpr const char* mnuOverviewPopup = "Overview Popup";

/// The entries of the menu bar and of the two popup menus.
struct Menus {
    MenuEntry mnuSaveSelected;
    MenuEntry mnuSave;
    MenuEntry mnuLoad;
    MenuEntry mnuSaveUnits;
    MenuEntry mnuSaveAlliedUnits;
    MenuEntry mnuSaveAxisUnits;
    MenuEntry mnuSaveAllUnits;
    MenuEntry mnuSaveSelectedUnits;
    MenuEntry mnuLoadUnits;
    MenuEntry mnuExit;
    MenuEntry mnuDeleteAll;
    MenuEntry mnuDeleteSelected{false, false};
    MenuEntry mnuSetDisplay;
    MenuEntry mnuViewCompleteOOB;
    MenuEntry mnuUnitState;
    MenuEntry mnuShowHideUnits{true, true};
    MenuEntry mnuRangeCircles;
    MenuEntry mnuCheckHQSub;
    MenuEntry mnuChangeUnitID;
    MenuEntry mnuOpt;
    MenuEntry mnuLeaveAOO;
    MenuEntry mnuListUnits;
    MenuEntry mnuAboutTolvaneII;
    MenuEntry mnuAboutMap;
    MenuEntry mnuUP_delete;
    MenuEntry mnuUP_edit;
    MenuEntry mnuUP_delete_all{false, false};
    MenuEntry mnuUP_moveto;
    MenuEntry mnuViewFFoverview{true, true};
    MenuEntry mnuOVPU_showlines{true, true};
    MenuEntry mnuOVPU_show_units{true, true};
};

/// The controls that stand for records.
struct RecordControls {
    ControlArray<UnitMarker> imgUnit;
    ControlArray<OverviewDot> shpUnit;
    ControlArray<StateBar> shpUnitState; // made while the bars are shown
    ControlArray<MapLabel> lblUser;
    ControlArray<MapShape> shpShape;
    ControlArray<MapLabel> lblShapeLabel;

    /// Puts the control before all others over the map.
    void bring_to_front(MapControl& control) { control.depth = ++front; }

  private:
    long front = 0;
};

/// What is in hand: the marker last pressed, where in it or in a label the pointer is, and what is dragged.
struct MarkerDrag {
    int drag_index = 0;
    double unit_grab_x = 0;
    double unit_grab_y = 0;
    double label_grab_x = 0;
    double label_grab_y = 0;
    bool dragging = false;
    HitTarget dragged;
};

/// The panels that take turns beside the map.
struct SidePanels {
    PictureBox picUnitInfo{4, 296, 224, 0, 0, false};
    PictureBox picUnitTray{0, 0, 0, 0, 0, false};
    Label lblUnitTray{"Unit tray"};
    Button cmdUTClose;
    PictureBox picDrawLines{0, 0, 0, 0, 0, false};
    PictureBox picPolygons{0, 0, 0, 0, 0, false};
    PictureBox picPlaceShapes{0, 0, 0, 0, 0, false};
};

/// `picPolygons`: the polygon tool.
struct PolygonPanel {
    ColourBox picPolygonBordercolor;
    ScrollBar scrlPolygonBorderthickness{0, 0, 0, 0, 1, 15, 1, 3, 1};
};

/// The main window: one name space put together from its panels.
struct frmMain : MapPanel,
                 Toolbar,
                 Menus,
                 RecordControls,
                 MarkerDrag,
                 SidePanels,
                 UnitInfoPanel,
                 LinePanel,
                 PolygonPanel,
                 ToolFlags {
    StatusBar sbarMap;
    double width = 0; // outer size in pixels
    double height = 0;
    double scale_width = 0; // inner width; 0 while minimised
    std::string file_version = "1.0";
    bool saving_selected = false;
};
