#include "annotation/line_panel.h"
#include "mapview/overview.h"
#include "mapview/painting.h"

#include "mapview/frmDisplay.h"
#include "mapview/unit_tray.h"
#include "tests/support/map_test.h"

#include <cstring>

#include <array>

namespace {

class Overview : public MapTest {
  protected:
    Overview() {
        main.shpOverviewbox.width = 42;
        main.shpOverviewbox.height = 40;
        main.picUnitInfo.left = 4;
        main.picUnitInfo.width = 224;
        main.picUnitInfo.height = 300;
    }
    using At = std::pair<int, int>;
    At values() const { return {program.main.scrlHMap.value, program.main.scrlVMap.value}; }
};

} // namespace

TEST_F(Overview, LeftButtonBringsThePlaceToTheMiddle) {
    picOverviewmap_MouseUp(program, {left_button, 0, 112, 125});
    EXPECT_EQ(values(), At(2184, 2520));
    picOverviewmap_MouseMove(program, {left_button, 0, 0, 0});
    EXPECT_EQ(values(), At(0, 0));
    picOverviewmap_MouseUp(program, {left_button, 0, 500, 500});
    EXPECT_EQ(values(), At(4368, 5040));
}

TEST_F(Overview, MapAndViewportBoxFollowThePlace) {
    picOverviewmap_MouseUp(program, {left_button, 0, 112, 125});
    EXPECT_EQ(main.picMap.left, -2184);
    EXPECT_EQ(main.picMap.top, -2520);
    EXPECT_EQ(main.shpOverviewbox.left, 2184 / 24);
    EXPECT_EQ(main.shpOverviewbox.top, 2520 / 24 - 3);
}

TEST_F(Overview, FactorIsOneWholeNumberForBothAxes) {
    main.picMap.width = 6290;
    main.scrlHMap.max = 5300;
    picOverviewmap_MouseUp(program, {left_button, 0, 112, 125});
    EXPECT_EQ(values(), At((112 - 21) * 28, (125 - 20) * 28));
}

TEST_F(Overview, MoveShowsTheReferenceClampedToTheBorder) {
    picOverviewmap_MouseMove(program, {0, 0, 112, 125});
    const std::string middle = main.sbarMap.panels[0];
    EXPECT_EQ(middle, "Eastern: 17.92 - Northern: 20.68");
    picOverviewmap_MouseMove(program, {0, 0, 0, 250});
    const std::string corner = main.sbarMap.panels[0];
    picOverviewmap_MouseMove(program, {0, 0, -5, 300});
    EXPECT_EQ(main.sbarMap.panels[0], corner);
    EXPECT_EQ(values(), At(0, 0));
}

TEST_F(Overview, RightPressOpensThePopupAndTheLeftOneDoesNothing) {
    picOverviewmap_MouseDown(program, {left_button, 0, 112, 125});
    EXPECT_TRUE(platform.log.empty());
    EXPECT_EQ(values(), At(0, 0));
    picOverviewmap_MouseDown(program, {right_button, 0, 112, 125});
    EXPECT_EQ(platform.log, std::vector<std::string>{"popup Overview Popup"});
}

TEST_F(Overview, PopupTogglesLinesFansAndUnits) {
    const auto unit = add_marked("{1}", 500, 500);
    add_marked("{2}", 500, 500);
    main.shpUnit(2).tag = deleted_tag;
    mnuOVPU_showlines_Click(program);
    EXPECT_FALSE(main.mnuOVPU_showlines.checked);
    EXPECT_TRUE(main.picMap.marked);
    mnuOVPU_show_units_Click(program);
    EXPECT_FALSE(main.shpUnit(1).visible);
    EXPECT_TRUE(main.shpUnit(2).visible) << "one that is deleted is left alone";
    main.picMap.marked = false;
    mnuViewFFoverview_Click(program);
    EXPECT_TRUE(main.picMap.marked);
    EXPECT_FALSE(campaign.gDispOmFirefans || main.mnuViewFFoverview.checked ||
                 program.form<frmDisplay>().chkOmFirefans.value);
}

TEST_F(Overview, TrayOpensOverThePanelEndsTheLineToolAndKeepsItsMarkers) {
    const auto unit = add_marked("{1}", 500, 500);
    main.picDrawLines.visible = main.picPlaceShapes.visible = true;
    main.deleting_line = main.placing_shape = true;
    cmdUnitTray_Click(program);
    EXPECT_TRUE(main.picUnitTray.visible && main.cmdUnitTray.on());
    EXPECT_EQ(main.picUnitTray.width, 224);
    EXPECT_FALSE(main.picDrawLines.visible || main.picPlaceShapes.visible || main.deleting_line ||
                 main.placing_shape);
    press_unit(*unit, left_button, shift_key);
    drag_drop(program, DropSite::tray, 60, 80);
    EXPECT_EQ(marker(*unit).container, Container::tray);
    EXPECT_EQ(unit->xcoord, 60);
    EXPECT_EQ(unit->ycoord, 80);
    drag_drop(program, DropSite::tray, 900, 900);
    EXPECT_EQ(unit->xcoord, 224) << "the tray's size is the limit";
    EXPECT_EQ(unit->ycoord, 300);
    cmdUTClose_Click(program);
    EXPECT_FALSE(main.picUnitTray.visible || main.cmdUnitTray.on());
    EXPECT_EQ(marker(*unit).container, Container::tray);
    drag_drop(program, DropSite::map, 400, 400);
    EXPECT_EQ(marker(*unit).container, Container::map);
}

TEST_F(Overview, TrayBandTakesMarkersOfTheMapTooAndShowsTheHighestIndex) {
    const auto first = add_marked("{1}", 100, 100);
    const auto last = add_marked("{2}", 900, 900);
    picUnitTray_MouseDown(program, {left_button, 0, 50, 50});
    picUnitTray_MouseMove(program, {left_button, 0, 150, 150});
    picUnitTray_MouseUp(program, {left_button, 0, 150, 150});
    EXPECT_EQ(selected(), 1U);
    EXPECT_EQ(marker(*first).border_style, 1);
    EXPECT_EQ(campaign.curUnit, last);
    main.imgUnit(2).tag = deleted_tag;
    picUnitTray_MouseDown(program, {left_button, 0, 50, 50});
    EXPECT_EQ(selected(), 0U) << "a single one is taken off first";
    picUnitTray_MouseMove(program, {left_button, 0, 150, 150});
    picUnitTray_MouseUp(program, {left_button, 0, 150, 150});
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 5 when displaying unit info."});
}

TEST_F(Overview, TrayWithAGroupLetsOnlyARightPressTakeItOff) {
    const auto first = add_marked("{1}", 100, 100);
    const auto second = add_marked("{2}", 200, 100);
    press_unit(*first);
    press_unit(*second, left_button, ctrl_key);
    picUnitTray_MouseDown(program, {left_button, 0, 5, 5});
    EXPECT_EQ(selected(), 2U);
    EXPECT_FALSE(main.shpTrayRubberband.visible);
    picUnitTray_MouseDown(program, {right_button, 0, 5, 5});
    EXPECT_EQ(selected(), 0U);
}

TEST_F(Overview, DisplayFormStartsAsTheOptionsDo) {
    auto& form = program.form<frmDisplay>();
    platform.on_modal["frmDisplay"] = [](Form& shown) { static_cast<frmDisplay&>(shown).cmdOK_Click(); };
    const DisplayOptions before = campaign;
    mnuSetDisplay_Click(program);
    EXPECT_EQ(std::memcmp(&before, static_cast<DisplayOptions*>(&campaign), sizeof(before)), 0);
    EXPECT_EQ(form.heading, "Set display options");
}

TEST_F(Overview, DisplayFormAppliesEveryBoxAndShowsOrHidesTheMarkers) {
    const auto unit = add_marked("{1}", 100, 100);
    const auto deleted = add_marked("{2}", 100, 100);
    marker(*deleted).tag = deleted_tag;
    platform.on_modal["frmDisplay"] = [](Form& shown) {
        auto& form = static_cast<frmDisplay&>(shown);
        form.cmdClearAll_Click();
        form.cmdOK_Click();
    };
    mnuSetDisplay_Click(program);
    EXPECT_FALSE(campaign.gDispUnits || campaign.gDispAoo || campaign.gDispAooAll || campaign.gDispWayptAll ||
                 campaign.gDispFirefansAll || campaign.gDispUSZFilled || campaign.gDispOmFirefans);
    EXPECT_FALSE(marker(*unit).visible || main.mnuShowHideUnits.checked || main.mnuViewFFoverview.checked);
    EXPECT_TRUE(marker(*deleted).visible);
    EXPECT_TRUE(main.picMap.marked);
    platform.on_modal["frmDisplay"] = [](Form& shown) {
        auto& form = static_cast<frmDisplay&>(shown);
        form.cmdSelectAll_Click();
        form.cmdOK_Click();
    };
    mnuSetDisplay_Click(program);
    EXPECT_TRUE(campaign.gDispUnits && campaign.gDispUSZ && campaign.gDispUSZAll && campaign.gDispFirefans &&
                campaign.gDispUnitNames && campaign.gDispUnitHQNames && campaign.gDispWayptData);
    EXPECT_FALSE(campaign.gDispUSZSelected || campaign.gDispAooSelected);
}

TEST_F(Overview, DisplayFormKeepsItsBoxesButTheOneOfTheUnits) {
    auto& form = program.form<frmDisplay>();
    form.chkMmLines.value = false;
    campaign.gDispUnits = false;
    platform.on_modal["frmDisplay"] = [](Form& shown) {
        EXPECT_FALSE(static_cast<frmDisplay&>(shown).chkMmUnits.value);
        EXPECT_FALSE(static_cast<frmDisplay&>(shown).chkMmLines.value);
        shown.close_box();
    };
    mnuSetDisplay_Click(program);
    EXPECT_TRUE(campaign.gDispLines) << "the close box applies nothing";
}

TEST_F(Overview, ChecksEnableTheirOptions) {
    auto& form = program.form<frmDisplay>();
    form.chkShowAOO.value = form.chkShowWaypoints.value = false;
    form.chkShowAOO_Click();
    form.chkShowWaypoints_Click();
    EXPECT_FALSE(form.optAOO[0].enabled || form.optAOO[1].enabled || form.optWaypt[1].enabled ||
                 form.chkWayptData.enabled);
    form.chkShowFirefans.value = form.chkUnitsecurityzone.value = true;
    form.chkShowFirefans_Click();
    form.chkUnitsecurityzone_Click();
    EXPECT_TRUE(form.optFirefans[0].enabled && form.optUSZ[1].enabled);
}

TEST_F(Overview, UnitsEntryFlipsTheOptionAndTheMarkers) {
    const auto unit = add_marked("{1}", 100, 100);
    mnuShowHideUnits_Click(program);
    EXPECT_FALSE(campaign.gDispUnits || main.mnuShowHideUnits.checked || marker(*unit).visible);
    mnuShowHideUnits_Click(program);
    EXPECT_TRUE(campaign.gDispUnits && main.mnuShowHideUnits.checked && marker(*unit).visible);
}

TEST_F(Overview, OpeningTheTrayEndsEveryModeOfTheLineTool) {
    cmdDrawLines_Click(program);
    main.drawing_lines = main.deleting_line = main.moving_line_point = main.deleting_line_point = true;
    main.inserting_line_point = main.linTempLine.visible = true;
    main.cmdLoad.enabled = false;
    cmdUnitTray_Click(program);
    EXPECT_FALSE(main.drawing_lines || main.deleting_line || main.moving_line_point ||
                 main.deleting_line_point || main.inserting_line_point || main.linTempLine.visible);
    EXPECT_FALSE(main.cmdLoad.enabled) << "what other tools have switched off stays so";
    cmdUnitTray_Click(program);
    EXPECT_FALSE(main.picUnitTray.visible) << "the button closes it again";
}

TEST_F(Overview, BandOfTheTrayTakesAMarkerThereAsOneOfTheMap) {
    const auto on_map = add_marked("{1}", 100, 100);
    const auto in_tray = add_marked("{2}", 100, 100);
    marker(*in_tray).container = Container::tray;
    picUnitTray_MouseDown(program, {left_button, 0, 50, 50});
    picUnitTray_MouseMove(program, {left_button, 0, 150, 150});
    picUnitTray_MouseUp(program, {left_button, 0, 150, 150});
    EXPECT_EQ(selected(), 2U);
    EXPECT_EQ(marker(*in_tray).border_style + marker(*on_map).border_style, 2);
    EXPECT_TRUE(main.mnuDeleteSelected.enabled);
    EXPECT_FALSE(main.mnuUP_edit.enabled);
}

TEST_F(Overview, BandOfTheTrayGrowsUnderTheConditionsOfTheMap) {
    main.checking_range = true;
    picUnitTray_MouseDown(program, {left_button, 0, 50, 50});
    picUnitTray_MouseMove(program, {left_button, 0, 150, 150});
    EXPECT_EQ(main.shpTrayRubberband.width, 0);
}

TEST_F(Overview, GroupDroppedOnTheOverviewKeepsItsShape) {
    press_unit(*add_marked("{1}", 100, 100));
    const auto second = add_marked("{2}", 200, 100);
    press_unit(*second, left_button, ctrl_key);
    press_unit(*campaign.colUnits->item("{1}"), left_button, shift_key);
    drag_drop(program, DropSite::overview, 50, 60);
    EXPECT_EQ(second->xcoord - campaign.colUnits->item("{1}")->xcoord, 100);
}

TEST_F(Overview, EachBoxOfTheDisplayFormGoesToItsOwnOption) {
    auto& form = program.form<frmDisplay>();
    const std::vector<std::pair<CheckBox*, bool DisplayOptions::*>> boxes{
        {&form.chkMmLabels, &DisplayOptions::gDispLabels},
        {&form.chkMmLines, &DisplayOptions::gDispLines},
        {&form.chkMmShapes, &DisplayOptions::gDispShapes},
        {&form.chkMmPolygons, &DisplayOptions::gDispPolygons},
        {&form.chkMmFireMissions, &DisplayOptions::gDispFireMissions},
        {&form.chkShowAOO, &DisplayOptions::gDispAoo},
        {&form.chkShowWaypoints, &DisplayOptions::gDispWaypoints},
        {&form.chkWayptData, &DisplayOptions::gDispWayptData},
        {&form.chkShowFirefans, &DisplayOptions::gDispFirefans},
        {&form.chkMmUnitName, &DisplayOptions::gDispUnitNames},
        {&form.chkMmUnitHQname, &DisplayOptions::gDispUnitHQNames},
        {&form.chkOmUnits, &DisplayOptions::gDispOmUnits},
        {&form.chkOmFirefans, &DisplayOptions::gDispOmFirefans},
        {&form.chkOmLines, &DisplayOptions::gDispOmLines},
        {&form.chkUnitsecurityzone, &DisplayOptions::gDispUSZ},
        {&form.chkUSZfilled, &DisplayOptions::gDispUSZFilled}};
    for (const auto& [box, option] : boxes) {
        platform.on_modal["frmDisplay"] = [chosen = box](Form& shown) {
            auto& its = static_cast<frmDisplay&>(shown);
            its.cmdClearAll_Click();
            chosen->value = true;
            its.cmdOK_Click();
        };
        mnuSetDisplay_Click(program);
        for (const auto& [other, other_option] : boxes)
            EXPECT_EQ(campaign.*other_option, other_option == option);
    }
}

TEST_F(Overview, ChecksOffDisableTheirOptions) {
    auto& form = program.form<frmDisplay>();
    form.chkShowFirefans.value = form.chkUnitsecurityzone.value = false;
    form.chkShowFirefans_Click();
    form.chkUnitsecurityzone_Click();
    EXPECT_FALSE(form.optFirefans[0].enabled || form.optFirefans[1].enabled || form.optUSZ[0].enabled ||
                 form.optUSZ[1].enabled);
}

TEST_F(Overview, UnitsEntryRepaints) {
    main.picMap.marked = false;
    mnuShowHideUnits_Click(program);
    EXPECT_TRUE(main.picMap.marked);
}

TEST_F(Overview, OptionsThatNothingReadsChangeNothing) {
    auto line = std::make_shared<oLines>();
    for (const int x : {0, 2000}) line->colCoords->add(std::make_shared<oCoordinates>(oCoordinates{x, 0}));
    campaign.colLines->add(line);
    const auto unit = add_marked("{1}", 100, 100);
    main.lblUser.load(1).visible = main.shpShape.load(1).visible = main.lblShapeLabel.load(1).visible = true;
    picMap_Paint(program);
    const DrawingList map = program.painting.map;
    const DrawingList overview = program.painting.overview;
    const Pens before = program.painting.began_with;
    auto& form = program.form<frmDisplay>();
    for (CheckBox* box :
         {&form.chkMmLines, &form.chkMmLabels, &form.chkMmShapes, &form.chkOmUnits, &form.chkOmLines})
        box->value = false;
    form.cmdOK_Click();
    EXPECT_FALSE(campaign.gDispLines || campaign.gDispLabels || campaign.gDispShapes ||
                 campaign.gDispOmUnits || campaign.gDispOmLines);
    program.painting.set_pens(before);
    picMap_Paint(program);
    EXPECT_TRUE(map.same_figures(program.painting.map));
    EXPECT_TRUE(overview.same_figures(program.painting.overview));
    EXPECT_TRUE(marker(*unit).visible && main.shpUnit(unit->img_index).visible);
    EXPECT_TRUE(main.lblUser(1).visible && main.shpShape(1).visible && main.lblShapeLabel(1).visible);
}

TEST_F(Overview, EachChoiceOfTheDisplayFormGoesToItsOwnOptions) {
    auto& form = program.form<frmDisplay>();
    struct Choice {
        std::array<OptionButton, 2>* options;
        bool DisplayOptions::*all;
        bool DisplayOptions::*selected;
    };
    const std::vector<Choice> choices{
        {&form.optAOO, &DisplayOptions::gDispAooAll, &DisplayOptions::gDispAooSelected},
        {&form.optWaypt, &DisplayOptions::gDispWayptAll, &DisplayOptions::gDispWayptSelected},
        {&form.optFirefans, &DisplayOptions::gDispFirefansAll, &DisplayOptions::gDispFirefansSelected},
        {&form.optUSZ, &DisplayOptions::gDispUSZAll, &DisplayOptions::gDispUSZSelected}};
    for (const Choice& each : choices) frmDisplay::choose(*each.options, 1);
    for (const Choice& own : choices) {
        frmDisplay::choose(*own.options, 0);
        form.cmdOK_Click();
        for (const Choice& each : choices) {
            EXPECT_EQ(campaign.*each.selected, each.options == own.options);
            EXPECT_EQ(campaign.*each.all, each.options != own.options);
        }
        frmDisplay::choose(*own.options, 1);
    }
}
