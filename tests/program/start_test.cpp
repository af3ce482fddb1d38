#include "program/frmStart.h"

#include "core/hierarchy.h"
#include "mapview/frmDisplay.h"
#include "mapview/frmEnterCoord.h"
#include "persistence/main_file_reader.h"
#include "persistence/main_file_writer.h"
#include "program/about.h"
#include "program/exit.h"
#include "program/frmMain_load.h"
#include "program/menus.h"
#include "program/not_yet_built.h"
#include "program/toolbar.h"
#include "program/unit_info_buttons.h"
#include "tests/support/program_test.h"

#include <map>
#include <set>

namespace {

class Start : public ProgramTest {
  protected:
    Start() {
        platform.directory = folder;
        platform.map_height = 6102;
    }

    frmStart& splash() { return program.form<frmStart>(); }

    void run() {
        splash().Form_Load();
        splash().tmrTimer_Timer();
    }

    std::size_t place_of(const std::string& entry) const {
        const auto found = std::find(platform.log.begin(), platform.log.end(), entry);
        EXPECT_NE(found, platform.log.end()) << entry;
        return static_cast<std::size_t>(found - platform.log.begin());
    }
};

} // namespace

TEST_F(Start, SplashShowsItsTextsAndWaitsForTheTimer) {
    splash().Form_Load();
    EXPECT_EQ(splash().heading, "Velmora 2");
    EXPECT_EQ(splash().version, "Version 1.0 - November 2003");
    EXPECT_EQ(splash().progress, "Initializing, please wait...");
    EXPECT_EQ(splash().tmrTimer.interval, 250);
    EXPECT_TRUE(splash().tmrTimer.enabled);
    EXPECT_TRUE(splash().visible);
    EXPECT_TRUE(platform.waiting);
    EXPECT_EQ(program.campaign.gAppPath, folder);
    EXPECT_EQ(platform.log, (std::vector<std::string>{"hourglass on", "show frmStart"}));
}

TEST_F(Start, FirstTickLoadsTheMapThenOpensTheMainWindowAndHidesTheSplash) {
    run();
    EXPECT_EQ(program.campaign.gScreenW, 1366);
    EXPECT_EQ(program.campaign.gScreenH, 768);
    EXPECT_FALSE(splash().tmrTimer.enabled);
    EXPECT_LT(place_of("load map " + folder + "\\map\\velmora2.jpg"), place_of("show frmMain"));
    EXPECT_LT(place_of("show frmMain"), place_of("hide frmStart"));
    EXPECT_TRUE(splash().loaded) << "hidden, not destroyed";
    EXPECT_FALSE(platform.waiting);
}

TEST_F(Start, WorkAreaIsRoundedToWholePixels) {
    platform.area = {20497.5, 11520, 15, 15}; // 1366.5 pixels
    run();
    EXPECT_EQ(program.campaign.gScreenW, 1366);
}

TEST_F(Start, MissingOrDamagedMapEndsTheProcessWithoutAMainWindow) {
    for (const int number : {53, 481}) {
        platform.fail_map = number;
        platform.messages.clear();
        platform.exit_code.reset();
        run();
        EXPECT_EQ(platform.texts(), std::vector<std::string>{"Run-time error " + std::to_string(number) +
                                                             "\n" + folder + "\\map\\velmora2.jpg"});
        EXPECT_EQ(platform.exit_code, 1);
        EXPECT_EQ(std::count(platform.log.begin(), platform.log.end(), "show frmMain"), 0);
        EXPECT_FALSE(splash().tmrTimer.enabled);
    }
}

TEST_F(Start, AnyFailureOfTheTickEndsTheProcessWithItsNumber) {
    platform.fail_work_area = 6;
    run();
    ASSERT_EQ(platform.texts(), std::vector<std::string>{"Run-time error 6"});
    EXPECT_EQ(platform.messages[0].title, "Tolvane ][");
    EXPECT_EQ(platform.messages[0].icon, Icon::warning);
    EXPECT_EQ(platform.exit_code, 1);
    EXPECT_FALSE(splash().tmrTimer.enabled);
}

TEST_F(Start, FailureBeforeTheTimerAsksAndYesGoesOnWithTheNextStatement) {
    platform.fail_directory = 76;
    platform.answers = {Answer::yes};
    splash().Form_Load();
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].text,
              "Error number 76 when starting Tolvane II.\nDo you want me to try to "
              "force the program to run?");
    EXPECT_EQ(platform.messages[0].title, "Tolvane II");
    EXPECT_EQ(platform.messages[0].buttons, Buttons::yes_no);
    EXPECT_EQ(platform.messages[0].icon, Icon::question);
    EXPECT_TRUE(splash().visible);
}

TEST_F(Start, NoAtThatQuestionUnloadsTheSplash) {
    platform.fail_directory = 76;
    platform.answers = {Answer::no};
    frmStart& form = splash();
    form.Form_Load();
    EXPECT_FALSE(form.visible);
    EXPECT_FALSE(form.loaded);
}

TEST_F(Start, ValuesAtTheEndAreTheStartValues) {
    program.campaign.gShowGrid = true;
    program.campaign.gDateMonth = "December";
    program.main.drawing_lines = true;
    program.campaign.gNextUnitIndex = 9;
    run();
    const Campaign& campaign = program.campaign;
    const frmMain& main = program.main;
    EXPECT_EQ(campaign.gMapEast0, 0);
    EXPECT_EQ(campaign.gMapNorth0, 40);
    EXPECT_EQ(campaign.gNextUnitIndex, 1);
    EXPECT_EQ(campaign.gDefaultFont, "Arial") << "\"Arial Unicode\" is not the font";
    EXPECT_EQ(campaign.gDateMonth, "November");
    EXPECT_FALSE(campaign.gShowGrid || main.drawing_lines || main.saving_selected);
    EXPECT_EQ(main.file_version, "1.0");
    EXPECT_EQ(main.sbarMap.panels[1], "Current date/time: November 25, 1942 - 07:00");
    EXPECT_EQ(campaign.gMapPicture, nullptr) << "the main window has taken it over";
    EXPECT_EQ(main.picMap.width, 5376);
    EXPECT_EQ(main.picMap.height, 6102);
    EXPECT_TRUE(main.picMap.marked);
}

TEST_F(Start, EveryValueThatWasDisturbedIsSetAnew) {
    Campaign& campaign = program.campaign;
    frmMain& main = program.main;
    campaign.gMapEast0 = 5;
    campaign.gNextLabelIndex = campaign.gNextShapeIndex = campaign.gNextUnitIndex = 7;
    campaign.gDefaultFont = "Times";
    static_cast<CampaignClock&>(campaign) = {"1", "2", "3", "4", "5"};
    main.file_version = "0.1";
    campaign.gUnitEdited = main.saving_selected = true;
    campaign.placing_label = campaign.placing_fire_mission = true;
    campaign.selecting_fire_mission = campaign.moving_fire_mission = true;
    campaign.colLabels->add(std::make_shared<oLabels>());
    campaign.gDispUnits = campaign.gDispAoo = campaign.gSaveUnits = campaign.gSaveLines = false;
    campaign.gDispFirefans = campaign.gCopyColorCreate = campaign.gCopyColorEdit = true;
    main.placing_shape = main.checking_range = main.setting_firefan = main.line_ended = true;
    main.selected_point = 3;
    main.selected_waypoint = "x";
    run();
    EXPECT_EQ(campaign.gMapEast0, 0);
    EXPECT_EQ(campaign.gNextLabelIndex + campaign.gNextShapeIndex + campaign.gNextUnitIndex, 3);
    EXPECT_EQ(campaign.gDefaultFont, "Arial");
    EXPECT_EQ(campaign.gDateYear + campaign.gDateMonth + campaign.gDateDay + campaign.gDateHour +
                  campaign.gDateMinute,
              "1942November250700");
    EXPECT_EQ(main.file_version, "1.0");
    EXPECT_FALSE(campaign.gUnitEdited || main.saving_selected || campaign.placing_label ||
                 campaign.placing_fire_mission || campaign.selecting_fire_mission ||
                 campaign.moving_fire_mission || campaign.gDispFirefans || campaign.gCopyColorCreate ||
                 campaign.gCopyColorEdit);
    EXPECT_TRUE(campaign.gDispUnits && campaign.gDispAoo && campaign.gSaveUnits && campaign.gSaveLines);
    EXPECT_TRUE(campaign.colLabels.empty());
    EXPECT_FALSE(main.placing_shape || main.checking_range || main.setting_firefan || main.line_ended);
    EXPECT_EQ(main.selected_point, 0);
    EXPECT_EQ(main.selected_waypoint, "");
}

TEST_F(Start, MainWindowIsLaidOutForTheMapBeforeItIsShown) {
    run();
    const frmMain& main = program.main;
    EXPECT_EQ(main.width, 1366);
    EXPECT_EQ(main.height, 768);
    EXPECT_EQ(main.picMapwindow.width, 1366 - 252 - 30);
    EXPECT_EQ(main.scrlHMap.max, 5376 - main.picMapwindow.scale_width());
    EXPECT_EQ(main.scrlVMap.max, 6102 - main.picMapwindow.scale_height());
    EXPECT_EQ(main.shpOverviewbox.width, std::floor(224.0 / 5376 * main.picMapwindow.width) + 1);
    EXPECT_EQ(main.picHcoord.height, main.picHcoordContainer.height);
    EXPECT_EQ(main.picVcoord.width, main.picVcoordContainer.width);
    EXPECT_LT(place_of("read " + folder + "/data/forces/elements.txt"), place_of("show frmMain"));
}

TEST_F(Start, HeightDecidesTheNorthNumber) {
    for (const auto& [height, north] :
         std::vector<std::pair<int, int>>{{6100, 40}, {5999, 39}, {6074, 40}, {6150, 41}}) {
        platform.map_height = height;
        run();
        EXPECT_EQ(program.campaign.gMapNorth0, north);
    }
}

TEST_F(Start, UnicodeFontBecomesTheDefaultWhereItIsInstalled) {
    platform.font_names = {"Arial", "Arial Unicode MS", "Times"};
    run();
    EXPECT_EQ(program.campaign.gDefaultFont, "Arial Unicode MS");
}

TEST_F(Start, RulersAndOverviewBoxGetTheirPlaces) {
    run();
    const frmMain& main = program.main;
    EXPECT_EQ(main.sbarMap.top, 768 - 28);
    EXPECT_EQ(main.picHcoord.width, 5376);
    EXPECT_EQ(main.picHcoord.top, 5);
    EXPECT_EQ(main.picHcoord.left, 0);
    EXPECT_EQ(main.picVcoord.height, 6102);
    EXPECT_EQ(main.picVcoord.top, 0);
    EXPECT_EQ(main.picVcoord.left, 3);
    EXPECT_EQ(main.ruler_font.name, "MS Sans Serif");
    EXPECT_EQ(main.ruler_font.size, 10);
    EXPECT_TRUE(main.ruler_font.bold);
    EXPECT_EQ(main.shpOverviewbox.left, 0);
    EXPECT_EQ(main.shpOverviewbox.top, 0);
}

TEST_F(Start, EmptyDataFolderGivesFourMessagesAndARunningProgram) {
    run();
    EXPECT_EQ(platform.texts(),
              (std::vector<std::string>{
                  "Error! No Allied forces found in " + folder + "\\data\\forces\\allied forces\\",
                  "Error! No Axis forces found in " + folder + "\\data\\forces\\axis forces\\",
                  "Error 53 when loading force element types.", "Error 53 when loading towns data."}));
    EXPECT_EQ(platform.log.back(), "hide frmStart");
    EXPECT_TRUE(program.campaign.colUnitTypes.empty());
}

TEST_F(Start, ReferenceFilesAreReadInTheirOrder) {
    for (const char* name : {"axis players", "allied players", "game masters", "towns", "forces/elements"})
        write_file(std::string("data/") + name + ".txt", "");
    run();
    const auto read = [&](const std::string& name) { return place_of("read " + folder + "/data/" + name); };
    EXPECT_LT(read("forces/elements.txt"), read("axis players.txt"));
    EXPECT_LT(read("axis players.txt"), read("allied players.txt"));
    EXPECT_LT(read("allied players.txt"), read("game masters.txt"));
    EXPECT_LT(read("game masters.txt"), read("towns.txt"));
}

TEST_F(Start, FailureInTheMainLoadIsToldAndTheRestSkipped) {
    platform.map_width = platform.map_height = 0;
    program.campaign.gScreenW = 0;
    program.campaign.gMapPicture = nullptr;
    auto huge = std::make_shared<const QuietPlatform::Map>(100, 6000000);
    program.campaign.gMapPicture = huge;
    program.campaign.gDateMonth = "December";
    program.main.file_version = "as before";
    frmMain_Load(program);
    EXPECT_EQ(platform.texts().back(), "Error 6 when initializing.");
    EXPECT_EQ(program.campaign.gDateMonth, "December");
    EXPECT_FALSE(platform.waiting);
    EXPECT_EQ(program.main.picMap.height, 6000000) << "the windows are laid out by then";
    EXPECT_EQ(program.main.picHcoord.width, 0) << "the rulers are not";
    EXPECT_EQ(program.main.file_version, "as before");
}

TEST_F(Start, ExitReleasesTheCampaignUnloadsEveryWindowAndTheMainWindowLast) {
    run();
    add_unit("a");
    program.campaign.curUnit = program.campaign.colUnits->at(1);
    program.campaign.curLine = std::make_shared<oLines>();
    program.campaign.colLines->add(program.campaign.curLine);
    program.campaign.colTowns->add(std::make_shared<oTowns>());
    program.campaign.colGameMasters->add(std::make_shared<oGameMasters>());
    program.campaign.colSelectedUnits->add(program.campaign.curUnit, "a");
    program.campaign.colUnitTypes->add(std::make_shared<oUnitTypes>());
    program.campaign.colForceElements->add(std::make_shared<oForceElements>());
    program.campaign.colLabels->add(std::make_shared<oLabels>());
    program.campaign.colShapes->add(std::make_shared<oShapes>());
    program.campaign.colPolygons->add(std::make_shared<oPolygons>());
    program.campaign.colFireMissions->add(std::make_shared<oFireMission>());
    program.campaign.colPathPoints->add(std::make_shared<oCoordinates>());
    program.campaign.colCirclePoints->add(std::make_shared<oCoordinates>());
    program.campaign.colRussianPlayers.drop();
    program.campaign.colRussianPlayers->add(std::make_shared<oRussianPlayers>());
    program.campaign.colGermanPlayers->add(std::make_shared<oGermanPlayers>());
    program.form<frmEnterCoord>().show();
    program.form<frmDisplay>().show();
    program.form<frmAboutTolvaneII>().show();
    program.form<frmAboutMap>().show();
    program.form<frmMapLegend>().show();
    platform.messages.clear();
    mnuExit_Click(program);
    EXPECT_TRUE(program.campaign.colUnits.empty());
    EXPECT_EQ(program.campaign.curUnit, nullptr);
    EXPECT_TRUE(program.campaign.colUnitTypes.empty() && program.campaign.colTowns.empty() &&
                program.campaign.colForceElements.empty() && program.campaign.colGameMasters.empty() &&
                program.campaign.colLines.empty() && program.campaign.colSelectedUnits.empty());
    EXPECT_TRUE(program.campaign.colLabels.empty() && program.campaign.colShapes.empty() &&
                program.campaign.colPolygons.empty() && program.campaign.colFireMissions.empty() &&
                program.campaign.colPathPoints.empty() && program.campaign.colCirclePoints.empty() &&
                program.campaign.colRussianPlayers.empty() && program.campaign.colGermanPlayers.empty());
    EXPECT_EQ(program.campaign.curLine, nullptr);
    EXPECT_LT(place_of("hide frmMapLegend"), place_of("hide frmAboutTolvaneII"));
    EXPECT_LT(place_of("hide frmAboutTolvaneII"), place_of("hide frmAboutMap"));
    EXPECT_LT(place_of("hide frmAboutMap"), place_of("hide frmDisplay"));
    EXPECT_LT(place_of("hide frmDisplay"), place_of("hide frmEnterCoord"));
    EXPECT_LT(place_of("hide frmEnterCoord"), place_of("unload frmMain"));
    EXPECT_EQ(platform.log.back(), "unload frmMain");
    EXPECT_FALSE(program.forms.at("frmStart")->loaded);
    EXPECT_TRUE(platform.messages.empty()) << "nothing asks about unsaved work";
}

TEST_F(Start, ExitUnloadsItsWindowsInTheirOrder) {
    const std::vector<std::string> windows{"frmLabel",
                                           "frmMapLegend",
                                           "frmStart",
                                           "frmTotalOOB",
                                           "frmAboutTolvaneII",
                                           "frmAboutMap",
                                           "frmCreateUnits",
                                           "frmEditUnit",
                                           "frmDisplay",
                                           "frmSetDateTime",
                                           "frmEnterCoord",
                                           "frmEditFE",
                                           "frmFullscreenOverview",
                                           "frmSaveMapInfo",
                                           "frmWaypointdata",
                                           "frmEditWaypoint",
                                           "frmEditGmPlayers",
                                           "frmFireMissions",
                                           "frmTownsData",
                                           "frmEditTown",
                                           "frmListAllUnits"};
    std::vector<std::string> expected;
    for (const std::string& name : windows) {
        program.forms[name] = std::make_unique<Form>(program, name, name);
        program.forms[name]->visible = true;
        expected.push_back("hide " + name);
    }
    expected.emplace_back("unload frmMain");
    mnuExit_Click(program);
    EXPECT_EQ(platform.log, expected);
    for (const std::string& name : windows) EXPECT_FALSE(program.forms.at(name)->loaded) << name;
}

TEST_F(Start, SplashCantBeClosedByTheUser) {
    auto& splash = program.form<frmStart>();
    splash.Form_Load();
    splash.close_box();
    EXPECT_TRUE(splash.visible);
}

TEST_F(Start, HourglassRunsUntilTheReferenceFilesAreRead) {
    run();
    const auto off = std::find(platform.log.begin(), platform.log.end(), "hourglass off");
    ASSERT_NE(off, platform.log.end());
    const auto towns = std::find_if(platform.log.begin(), platform.log.end(), [](const std::string& entry) {
        return entry.starts_with("read ") && entry.ends_with("towns.txt");
    });
    ASSERT_NE(towns, platform.log.end());
    EXPECT_LT(towns, off);
}

TEST_F(Start, CloseBoxRunsTheExitOnceAndTheProgramsOwnUnloadDoesNot) {
    Form_QueryUnload(program, UnloadMode::by_program);
    EXPECT_TRUE(platform.log.empty());
    Form_QueryUnload(program, UnloadMode::close_box);
    EXPECT_EQ(std::count(platform.log.begin(), platform.log.end(), "unload frmMain"), 1);
}

TEST_F(Start, FailingExitIsToldAndTheProcessEndsAtOnce) {
    platform.fail_unload = 91;
    mnuExit_Click(program);
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].text, "Error 91 when exiting.\nTrying to force the program to end.");
    EXPECT_EQ(platform.messages[0].title, "Tolvane ][");
    EXPECT_EQ(platform.messages[0].icon, Icon::warning);
    EXPECT_EQ(platform.log.back(), "end at once");
}

TEST_F(Start, FixedWindowsShowTheirTexts) {
    mnuAboutMap_Click(program);
    mnuAboutTolvaneII_Click(program);
    cmdLegend_Click(program);
    EXPECT_EQ(platform.log,
              (std::vector<std::string>{"show frmAboutMap", "show frmAboutTolvaneII", "show frmMapLegend"}));
    EXPECT_EQ(program.form<frmAboutMap>().scale, "1:50,000 scale, with each grid square 1 km x 1 km");
    const auto& about = program.form<frmAboutTolvaneII>();
    EXPECT_EQ(about.heading, "Tolvane II");
    EXPECT_EQ(about.version, "Version 1.0");
    EXPECT_EQ(about.date, "November 2003");
}

TEST(Tables, EveryEntryHasACommandOrStandsInTheListOfThoseToCome) {
    std::set<std::string> without;
    for (const MenuRow& row : menu_rows())
        if (row.click == nullptr && !opens_submenu(row)) without.insert(row.control);
    for (const ToolbarRow& row : toolbar_rows())
        if (row.click == nullptr) without.insert(row.control);
    for (const UnitInfoButton& row : unit_info_buttons())
        if (row.click == nullptr) without.insert(row.control);
    EXPECT_EQ(without, std::set<std::string>(not_yet_built.begin(), not_yet_built.end()));
}

using Wording = std::vector<std::pair<std::string, std::string>>;

TEST(Tables, MenuEntriesAreWordedAsUsersKnowThem) {
    Wording rows;
    for (const MenuRow& row : menu_rows()) rows.emplace_back(row.control, row.caption);
    EXPECT_EQ(rows, (Wording{
                        {"mnuSaveSelected", "Save selected ..."},
                        {"mnuSave", "Save main..."},
                        {"mnuLoad", "Load main..."},
                        {"mnuSaveUnits", "Save units"},
                        {"mnuSaveAlliedUnits", "Save Allied units..."},
                        {"mnuSaveAxisUnits", "Save Axis units..."},
                        {"mnuSaveAllUnits", "Save all units"},
                        {"mnuSaveSelectedUnits", "Save selected units..."},
                        {"mnuLoadUnits", "Load units..."},
                        {"mnuExit", "Exit"},
                        {"mnuDeleteAll", "Delete everything..."},
                        {"mnuDeleteSelected", "Delete selected units..."},
                        {"mnuSetDisplay", "Set display options..."},
                        {"mnuViewCompleteOOB", "Order Of Battle..."},
                        {"mnuUnitState", "Unit overall state"},
                        {"mnuShowHideUnits", "Units"},
                        {"mnuRangeCircles", "Range circles"},
                        {"mnuCheckHQSub", "Check && repair HQ/Subordiante links"},
                        {"mnuChangeUnitID", "Change unit ID"},
                        {"mnuOpt", "Options"},
                        {"mnuLeaveAOO", "Leave AOO in place when moving units"},
                        {"mnuListUnits", "List all units..."},
                        {"mnuAboutTolvaneII", "About Tolvane II"},
                        {"mnuAboutMap", "About the map"},
                        {"mnuUP_delete", "Delete..."},
                        {"mnuUP_edit", "Edit unit"},
                        {"mnuUP_delete_all", "Delete all..."},
                        {"mnuUP_moveto", "Move to..."},
                        {"mnuViewFFoverview", "Show firefans"},
                        {"mnuOVPU_showlines", "Show lines"},
                        {"mnuOVPU_show_units", "Show units"},
                    }));
}

TEST(Tables, ToolbarTipsAreWordedAsUsersKnowThem) {
    Wording rows;
    for (const ToolbarRow& row : toolbar_rows()) rows.emplace_back(row.control, row.tip);
    EXPECT_EQ(rows, (Wording{
                        {"cmdLoad", "Load main file"},
                        {"cmdSave", "Save main file"},
                        {"cmdCreateUnits", "Create new units"},
                        {"cmdLabel", "Creat a map label."},
                        {"cmdDrawLines", "Draw lines on the map"},
                        {"cmdDrawPolygon", "Draw map areas (polygon)"},
                        {"cmdCreateShapes", "Place a shape on the map."},
                        {"cmdFireMissions", "Edit firemissions"},
                        {"cmdFindCoord", "Find a location on the map."},
                        {"cmdTownsData", "Locate towns and edit town data"},
                        {"cmdRangecheck", "Find the range between two points."},
                        {"cmdPathRange", "Find the accumulated range for a path."},
                        {"cmdGrid", "Show/hide the map grid."},
                        {"cmdEdgescroll", "Turn on/off edge-scrolling."},
                        {"cmdSetDateTime", "Change date/time."},
                        {"cmdEditGMPlayers", "Edit user data"},
                        {"cmdUnitTray", "Temporary unit tray."},
                        {"cmdShowFullscreen", "Display full-screen overview map."},
                        {"cmdSavemap", "Save map to file."},
                        {"cmdSnapshot", "Take a snapshot of the current visible part of the map"},
                        {"cmdLegend", "Show map legend."},
                    }));
}

TEST(Tables, EntriesRunTheirOwnCommands) {
    const auto command = [](const std::string& control) {
        for (const MenuRow& row : menu_rows())
            if (control == row.control) return row.click;
        return static_cast<void (*)(Program&)>(nullptr);
    };
    EXPECT_EQ(command("mnuCheckHQSub"), mnuCheckHQSub_Click);
    EXPECT_EQ(command("mnuChangeUnitID"), mnuChangeUnitID_Click);
    EXPECT_EQ(command("mnuSave"), mnuSave_Click);
    EXPECT_EQ(command("mnuSaveSelected"), mnuSaveSelected_Click);
    EXPECT_EQ(command("mnuLoad"), mnuLoad_Click);
    EXPECT_EQ(command("mnuExit"), mnuExit_Click);
    EXPECT_EQ(command("mnuAboutMap"), mnuAboutMap_Click);
    EXPECT_EQ(command("mnuAboutTolvaneII"), mnuAboutTolvaneII_Click);
}

TEST(Tables, NoControlStandsTwice) {
    std::set<std::string> names;
    for (const MenuRow& row : menu_rows()) EXPECT_TRUE(names.insert(row.control).second) << row.control;
    for (const ToolbarRow& row : toolbar_rows()) EXPECT_TRUE(names.insert(row.control).second) << row.control;
    EXPECT_EQ(names.size(), 52U);
}

TEST(Tables, SubmenusStandUnderTheirEntries) {
    std::vector<std::string> under;
    for (const MenuRow& row : menu_rows())
        if (std::string(row.parent) == "mnuSaveUnits") under.emplace_back(row.caption);
    EXPECT_EQ(under, (std::vector<std::string>{"Save Allied units...", "Save Axis units...", "Save all units",
                                               "Save selected units..."}));
}

TEST(Tables, EveryEntryStandsUnderItsTitle) {
    std::map<std::string, std::vector<std::string>> under;
    for (const MenuRow& row : menu_rows()) under[row.parent].emplace_back(row.control);
    using Names = std::vector<std::string>;
    EXPECT_EQ(under["&File"],
              (Names{"mnuSaveSelected", "mnuSave", "mnuLoad", "mnuSaveUnits", "mnuLoadUnits", "mnuExit"}));
    EXPECT_EQ(under["&Edit"], (Names{"mnuDeleteAll", "mnuDeleteSelected"}));
    EXPECT_EQ(under["&View"],
              (Names{"mnuSetDisplay", "mnuViewCompleteOOB", "mnuUnitState", "mnuShowHideUnits"}));
    EXPECT_EQ(under["&Tools"], (Names{"mnuRangeCircles", "mnuCheckHQSub", "mnuChangeUnitID", "mnuOpt"}));
    EXPECT_EQ(under["mnuOpt"], Names{"mnuLeaveAOO"});
    EXPECT_EQ(under["&Reports"], Names{"mnuListUnits"});
    EXPECT_EQ(under["&Help"], (Names{"mnuAboutTolvaneII", "mnuAboutMap"}));
    EXPECT_EQ(under["Unit menu"], (Names{"mnuUP_delete", "mnuUP_edit", "mnuUP_delete_all", "mnuUP_moveto"}));
    EXPECT_EQ(under["Overview Popup"],
              (Names{"mnuViewFFoverview", "mnuOVPU_showlines", "mnuOVPU_show_units"}));
    EXPECT_EQ(under.size(), 10U);
}

TEST(Tables, ButtonsOfFilesRunTheirOwnCommands) {
    for (const ToolbarRow& row : toolbar_rows()) {
        if (std::string(row.control) == "cmdLoad") EXPECT_EQ(row.click, cmdLoad_Click);
        if (std::string(row.control) == "cmdSave") EXPECT_EQ(row.click, cmdSave_Click);
    }
}
