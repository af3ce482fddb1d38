#include "mapview/frmDisplay.h"

#include "mapview/painting.h"
#include "tests/support/map_test.h"

#include <array>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

namespace {

using DisplayForm = MapTest;

} // namespace

TEST_F(DisplayForm, StartsAsTheOptionsDo) {
    auto& form = program.form<frmDisplay>();
    platform.on_modal["frmDisplay"] = [](Form& shown) { static_cast<frmDisplay&>(shown).cmdOK_Click(); };
    const DisplayOptions before = campaign;
    mnuSetDisplay_Click(program);
    EXPECT_EQ(std::memcmp(&before, static_cast<DisplayOptions*>(&campaign), sizeof(before)), 0);
    EXPECT_EQ(form.heading, "Set display options");
}

TEST_F(DisplayForm, AppliesEveryBoxAndShowsOrHidesTheMarkers) {
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

TEST_F(DisplayForm, KeepsItsBoxesButTheOneOfTheUnits) {
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

TEST_F(DisplayForm, ChecksEnableTheirOptions) {
    auto& form = program.form<frmDisplay>();
    struct Group {
        CheckBox* check;
        void (frmDisplay::*click)();
        const std::array<OptionButton, 2>* options;
    };
    const std::vector<Group> groups{
        {&form.chkShowAOO, &frmDisplay::chkShowAOO_Click, &form.optAOO},
        {&form.chkShowWaypoints, &frmDisplay::chkShowWaypoints_Click, &form.optWaypt},
        {&form.chkShowFirefans, &frmDisplay::chkShowFirefans_Click, &form.optFirefans},
        {&form.chkUnitsecurityzone, &frmDisplay::chkUnitsecurityzone_Click, &form.optUSZ}};
    for (const bool on : {true, false, true})
        for (const auto& [check, click, options] : groups) {
            check->value = on;
            (form.*click)();
            EXPECT_TRUE((*options)[0].enabled == on && (*options)[1].enabled == on);
            EXPECT_EQ(form.chkWayptData.enabled, form.chkShowWaypoints.value);
        }
}

TEST_F(DisplayForm, UnitsEntryFlipsTheOptionAndTheMarkers) {
    const auto unit = add_marked("{1}", 100, 100);
    mnuShowHideUnits_Click(program);
    EXPECT_FALSE(campaign.gDispUnits || main.mnuShowHideUnits.checked || marker(*unit).visible);
    mnuShowHideUnits_Click(program);
    EXPECT_TRUE(campaign.gDispUnits && main.mnuShowHideUnits.checked && marker(*unit).visible);
}

TEST_F(DisplayForm, EachBoxGoesToItsOwnOption) {
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

TEST_F(DisplayForm, UnitsEntryRepaints) {
    main.picMap.marked = false;
    mnuShowHideUnits_Click(program);
    EXPECT_TRUE(main.picMap.marked);
}

TEST_F(DisplayForm, OptionsThatNothingReadsChangeNothing) {
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

TEST_F(DisplayForm, EachChoiceGoesToItsOwnOptions) {
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

TEST_F(DisplayForm, OptionsStartEnabledAsTheirChecks) {
    const auto& form = program.form<frmDisplay>();
    for (const std::size_t i : {0, 1}) {
        EXPECT_TRUE(form.optAOO[i].enabled && form.optWaypt[i].enabled);
        EXPECT_FALSE(form.optFirefans[i].enabled || form.optUSZ[i].enabled);
    }
    EXPECT_TRUE(form.chkWayptData.enabled);
}

TEST_F(DisplayForm, AllSelectedMeansAllUnitsAndAllClearedNeither) {
    auto& form = program.form<frmDisplay>();
    for (const bool on : {true, false}) {
        for (auto* options : {&form.optAOO, &form.optWaypt, &form.optFirefans, &form.optUSZ})
            frmDisplay::choose(*options, 0);
        if (on)
            form.cmdSelectAll_Click();
        else
            form.cmdClearAll_Click();
        for (const auto* options : {&form.optAOO, &form.optWaypt, &form.optFirefans, &form.optUSZ}) {
            EXPECT_FALSE((*options)[0].value);
            EXPECT_EQ((*options)[1].value, on);
            EXPECT_TRUE((*options)[0].enabled == on && (*options)[1].enabled == on);
        }
        EXPECT_EQ(form.chkWayptData.enabled, on);
    }
}
