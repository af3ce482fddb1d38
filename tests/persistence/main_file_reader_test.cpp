#include "persistence/main_file_reader.h"

#include "persistence/main_file_writer.h"
#include "persistence/record_reader.h"
#include "persistence/record_writer.h"
#include "tests/support/program_test.h"

namespace {

class MainFileReader : public ProgramTest {
  protected:
    void load(const std::string& bytes) {
        platform.contents["file"] = bytes;
        platform.chosen_files = {"file"};
        cmdLoad_Click(program);
    }

    static std::string file(const std::string& sections,
                            const std::string& clock = "\"1942\",\"November\",\"25\",\"07\",\"00\"") {
        return "\"1.0\"\r\n" + clock + "\r\n" + sections;
    }

    static oLabels label(const std::string& id) {
        oLabels made;
        made.ID = id;
        made.text = "text " + id;
        made.font_name = "Arial";
        made.font_size = 10;
        made.xcoord = 30;
        made.ycoord = 40;
        made.font_bold = true;
        made.font_color = 255;
        made.backcolor = 128;
        made.backstyle = 1;
        made.borderstyle = 1;
        return made;
    }

    template <class Record, class Write>
    static std::string section(const std::vector<Record>& records, Write write) {
        FieldWriter out;
        write_count(out, records.size());
        for (const Record& record : records) write(out, record);
        return std::string(out.bytes());
    }

    static std::string labels(const std::vector<oLabels>& all) {
        return file(section(all, write_label) + zeros(5));
    }
    static std::string units(const std::vector<oUnits>& all) {
        return file(zeros(2) + section(all, write_unit) + zeros(3));
    }
    static std::string shapes(const std::vector<oShapes>& all) {
        return file(zeros(3) + section(all, write_shape) + zeros(2));
    }

    static std::string zeros(int count) {
        std::string all;
        for (int i = 0; i < count; ++i) all += "0\r\n";
        return all;
    }

    static oUnits unit(const std::string& id, const std::string& parent = "") {
        oUnits made;
        made.ID = id;
        made.name = "new " + id;
        made.parent_ID = parent;
        made.symbol = "\\data\\forces\\a.gif";
        made.color = 8421631;
        made.xcoord = 240;
        made.ycoord = 480;
        made.order_id = "Line unit";
        return made;
    }
};

std::string id_question(const std::string& name) {
    return "A unit with the same unique ID allready exist (unit " + name +
           ").\nDo you want to load the new unit? If so, all existing units will be\nassigned a new unique "
           "ID "
           "number, and you will not get this question\nagain while loading this file.";
}

} // namespace

TEST_F(MainFileReader, DialogIsAsToldAndCancelDoesNothingButEnableFourButtons) {
    Toolbar& toolbar = program.main;
    for (Button* button : fenced_buttons()) button->enabled = false;
    mnuLoad_Click(program);
    const FileDialog& dialog = platform.file_dialogs.at(0);
    EXPECT_EQ(dialog.title, "tolvane ii data");
    EXPECT_EQ(dialog.directory, folder);
    EXPECT_EQ(dialog.filter, "tvn|*.tvn");
    EXPECT_FALSE(dialog.saving);
    EXPECT_THAT(enabled_buttons(),
                testing::UnorderedElementsAre(&toolbar.cmdCreateShapes, &toolbar.cmdDrawLines,
                                              &toolbar.cmdCreateUnits, &toolbar.cmdLabel));
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_FALSE(program.main.picMap.marked);
    EXPECT_EQ(std::count(platform.log.begin(), platform.log.end(), "hourglass on"), 0) << "not on by then";
}

TEST_F(MainFileReader, AbsolutePictureOfANewVersionIsMissing) {
    oUnits absolute = unit("{U}");
    absolute.symbol = "C:\\x\\data\\forces\\a.gif";
    platform.marker_failures[folder + absolute.symbol] = 53;
    load(units({absolute}));
    EXPECT_EQ(platform.marker_loads.at(0), folder + absolute.symbol);
    EXPECT_EQ(platform.texts(),
              std::vector<std::string>{"Unable to load unit image '" + folder + absolute.symbol +
                                       "'.\nSetting unit image to blank."});
}

TEST_F(MainFileReader, MissingFileIsToldWithSequence0AndUnreadableWith75) {
    platform.chosen_files = {path("none.tvn"), folder};
    cmdLoad_Click(program);
    cmdLoad_Click(program);
    EXPECT_EQ(platform.texts(), (std::vector<std::string>{"Error loading data. Sequence ID = 0",
                                                          "Error 75 when loading data!"}));
    EXPECT_EQ(platform.messages[0].icon, Icon::warning);
    EXPECT_EQ(platform.messages[1].icon, Icon::warning);
}

TEST_F(MainFileReader, OtherClockAsksAndYesTakesItOver) {
    load(file(zeros(6), "\"1943\",\"December\",\"1\",\"09\",\"30\""));
    EXPECT_EQ(
        platform.texts(),
        std::vector<std::string>{"Current date/time is November 25, 1942. 07:00\nIn this file the date/time "
                                 "December 1, 1943. 09:30\nDo you want to update current date/time?"});
    EXPECT_EQ(platform.messages[0].buttons, Buttons::yes_no);
    EXPECT_EQ(platform.messages[0].icon, Icon::question);
    EXPECT_EQ(program.campaign.gDateYear, "1943");
    EXPECT_EQ(program.main.sbarMap.panels[1], "Current date/time: December 1, 1942 - 09:30");
}

TEST_F(MainFileReader, NoKeepsTheClockAndTextsDecideWhetherItDiffers) {
    platform.answers = {Answer::no};
    load(file(zeros(6), "\"1942\",\"November\",\"25\",\"7\",\"00\""));
    EXPECT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(program.campaign.gDateHour, "07");
    EXPECT_EQ(program.main.sbarMap.panels[1], "");
}

TEST_F(MainFileReader, EqualClockAsksNothing) {
    load(file(zeros(6)));
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(MainFileReader, ClockTakenOverStaysWhenTheLoadFails) {
    load(file("", "\"1942\",\"December\",\"01\",\"07\",\"00\""));
    EXPECT_EQ(platform.texts()[1], "Error 62 when loading data!");
    EXPECT_EQ(program.campaign.gDateMonth, "December");
}

TEST_F(MainFileReader, LabelGetsItsControlAtTheNextIndex) {
    program.campaign.gNextLabelIndex = 3;
    program.main.lblUser.load(1);
    program.main.lblUser.load(2);
    load(labels({label("{L}")}));
    const MapLabel& control = program.main.lblUser(3);
    EXPECT_EQ(control.tag, "{L}");
    EXPECT_EQ(control.caption, "text {L}");
    EXPECT_EQ(control.left, 30);
    EXPECT_EQ(control.top, 40);
    EXPECT_EQ(control.colour, 255);
    EXPECT_EQ(control.back_colour, 128);
    EXPECT_EQ(control.back_style, 1);
    EXPECT_EQ(control.border_style, 1);
    EXPECT_TRUE(control.font.bold);
    EXPECT_EQ(control.font.name, "Arial");
    EXPECT_EQ(control.font.size, 10);
    EXPECT_TRUE(control.visible);
    EXPECT_EQ(program.campaign.gNextLabelIndex, 4);
}

TEST_F(MainFileReader, FontThatIsMissingIsAskedForOnceAndReplacedInAllLaterOnes) {
    platform.missing_fonts = {"Fraktur"};
    platform.chosen_font = Font{"Times", 14, false, false, false, false};
    oLabels missing = label("{1}");
    missing.font_name = "Fraktur";
    oLabels too_small = label("{3}");
    too_small.font_size = 0;
    load(labels({missing, label("{2}"), too_small}));
    EXPECT_EQ(platform.texts(), std::vector<std::string>{
                                    "A label being loaded is refering to a font which doesn't exist on\nthis "
                                    "computer, and/or the program is unable to set the fontsize.\nPlease "
                                    "select a font and a fontsize."});
    EXPECT_EQ(platform.messages[0].icon, Icon::warning);
    EXPECT_EQ(platform.font_dialogs.size(), 1U);
    for (const char* id : {"{1}", "{3}"}) {
        EXPECT_EQ(program.campaign.colLabels->item(id)->font_name, "Times");
        EXPECT_EQ(program.campaign.colLabels->item(id)->font_size, 14);
    }
    EXPECT_EQ(program.campaign.colLabels->item("{2}")->font_name, "Arial");
    EXPECT_EQ(program.main.lblUser(3).font.name, "Times");
}

TEST_F(MainFileReader, ChosenFontIsTakenWhateverTheSystemSaysOfIt) {
    platform.missing_fonts = {"Fraktur", "Sans Serif"};
    platform.chosen_font = Font{"Sans Serif", 16, false, false, false, false};
    oLabels missing = label("{1}");
    missing.font_name = "Fraktur";
    load(labels({missing}));
    EXPECT_EQ(program.campaign.colLabels->item("{1}")->font_name, "Sans Serif");
    EXPECT_EQ(program.campaign.colLabels->item("{1}")->font_size, 16);
}

TEST_F(MainFileReader, CancelledFontChoiceGivesTheDefaultFont) {
    platform.missing_fonts = {"Fraktur"};
    oLabels missing = label("{1}");
    missing.font_name = "Fraktur";
    load(labels({missing}));
    EXPECT_EQ(program.campaign.colLabels->item("{1}")->font_name, "Arial");
    EXPECT_EQ(program.campaign.colLabels->item("{1}")->font_size, 10);
    EXPECT_EQ(platform.messages.size(), 1U);
}

TEST_F(MainFileReader, UnitGetsMarkerAndDotWhereverUnitsAreHidden) {
    program.campaign.gDispUnits = false;
    load(units({unit("{U}")}));
    const UnitMarker& marker = program.main.imgUnit(1);
    EXPECT_EQ(marker.tag, "{U}");
    EXPECT_EQ(marker.left, 226);
    EXPECT_EQ(marker.top, 465);
    EXPECT_TRUE(marker.visible);
    EXPECT_EQ(marker.border_style, 0);
    const OverviewDot& dot = program.main.shpUnit(1);
    EXPECT_EQ(dot.tag, "{U}");
    EXPECT_DOUBLE_EQ(dot.left, 10);
    EXPECT_EQ(dot.top, 18);
    EXPECT_EQ(dot.colour, 8421631);
    EXPECT_TRUE(dot.visible);
    EXPECT_EQ(program.campaign.colUnits->item("{U}")->img_index, 1);
    EXPECT_EQ(program.campaign.gNextUnitIndex, 2);
    EXPECT_EQ(platform.marker_loads, std::vector<std::string>{folder + "\\data\\forces\\a.gif"});
}

TEST_F(MainFileReader, DotIsHiddenWhileTheOverviewShowsNoUnits) {
    program.main.mnuOVPU_show_units.checked = false;
    load(units({unit("{U}")}));
    EXPECT_FALSE(program.main.shpUnit(1).visible);
}

TEST_F(MainFileReader, MarkerAtTheEndsOfTheRangeDoesNotOverflow) {
    oUnits far = unit("{U}");
    far.xcoord = -32768;
    far.ycoord = -32768;
    load(units({far}));
    EXPECT_EQ(program.main.imgUnit(1).left, -32782);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(MainFileReader, MissingPictureIsToldAndTheBlankOneTakesItsPlace) {
    platform.marker_failures[folder + "\\data\\forces\\a.gif"] = 53;
    load(units({unit("{U}"), unit("{V}")}));
    const std::string text =
        "Unable to load unit image '" + folder + "\\data\\forces\\a.gif'.\nSetting unit image to blank.";
    EXPECT_EQ(platform.texts(), (std::vector<std::string>{text, text}));
    EXPECT_EQ(platform.messages[0].icon, Icon::warning);
    EXPECT_EQ(program.campaign.colUnits->item("{U}")->symbol, "\\data\\forces\\blank.gif");
    EXPECT_EQ(program.campaign.gNextUnitIndex, 3);
    platform.chosen_files = {path("again.tvn")};
    cmdSave_Click(program);
    EXPECT_NE(file_bytes("again.tvn").find("\\data\\forces\\blank.gif"), std::string::npos);
}

TEST_F(MainFileReader, MissingBlankPictureIsToldOnceAndLeavesAPlainMarker) {
    platform.marker_failures[folder + "\\data\\forces\\a.gif"] = 53;
    platform.marker_failures[folder + "\\data\\forces\\blank.gif"] = 53;
    load(units({unit("{U}")}));
    EXPECT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(program.main.imgUnit(1).picture, 0);
    EXPECT_EQ(program.main.imgUnit(1).colour, 8421631);
    EXPECT_EQ(program.campaign.gNextUnitIndex, 2);
}

TEST_F(MainFileReader, DamagedPictureEndsTheLoadWithTheUnitButNoMarker) {
    platform.marker_failures[folder + "\\data\\forces\\a.gif"] = 481;
    load(units({unit("{U}"), unit("{V}")}));
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 481 when loading data!"});
    EXPECT_EQ(program.campaign.colUnits.count(), 1U);
    EXPECT_EQ(program.campaign.gNextUnitIndex, 1);
    EXPECT_FALSE(program.main.imgUnit.has(1));
}

TEST_F(MainFileReader, PresentUnitAsksAndYesRenumbersThosePresent) {
    const auto old = add_unit("{U}");
    load(units({unit("{U}"), unit("{V}")}));
    EXPECT_EQ(platform.texts(), std::vector<std::string>{id_question("unit {U}")});
    EXPECT_EQ(platform.messages[0].buttons, Buttons::yes_no);
    EXPECT_EQ(platform.messages[0].icon, Icon::question);
    EXPECT_EQ(program.campaign.colUnits.count(), 3U);
    EXPECT_EQ(program.campaign.colUnits->item("{U}")->name, "new {U}");
    EXPECT_NE(old->ID, "{U}");
}

TEST_F(MainFileReader, NoDropsEachPresentUnitWithAllItOwns) {
    for (const char* id : {"{U}", "{V}", "{W}"}) add_unit(id);
    platform.answers = {Answer::no, Answer::no, Answer::no};
    load(units({unit("{U}"), unit("{V}"), unit("{W}"), unit("{X}")}));
    EXPECT_EQ(platform.messages.size(), 3U);
    EXPECT_EQ(program.campaign.colUnits.count(), 4U);
    EXPECT_EQ(program.campaign.colUnits->item("{V}")->name, "unit {V}");
    EXPECT_EQ(program.campaign.gNextUnitIndex, 2);
}

TEST_F(MainFileReader, SameUnitTwiceInOneFileRenumbersWhatTheFileHasBroughtSoFar) {
    load(units({unit("{H}"), unit("{U}"), unit("{U}"), unit("{A}", "{H}")}));
    EXPECT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(program.campaign.colUnits.count(), 4U);
    EXPECT_EQ(program.campaign.colUnits->item("{A}")->parent_ID, "") << "its HQ has another ID now";
}

TEST_F(MainFileReader, SameFileTwiceDoublesUnitsAndNothingElse) {
    oUnits hq = unit("{H}");
    hq.children->add(std::make_shared<oChildren>(oChildren{"{A}", "new {A}"}), "{A}");
    oLines line;
    line.colCoords->add(std::make_shared<oCoordinates>(oCoordinates{1, 2}));
    const std::string bytes =
        file(section(std::vector<oLabels>{label("{L}")}, write_label) +
             section(std::vector<oLines>{line}, write_line) +
             section(std::vector<oUnits>{hq, unit("{A}", "{H}")}, write_unit) + zeros(3));
    load(bytes);
    load(bytes);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{id_question("new {H}")});
    EXPECT_EQ(program.campaign.colUnits.count(), 4U);
    EXPECT_EQ(program.campaign.colLabels.count(), 1U);
    EXPECT_EQ(program.campaign.colLines.count(), 1U);
    const auto old = program.campaign.colUnits->at(1);
    EXPECT_EQ(old->children->at(1)->ID, program.campaign.colUnits->at(2)->ID);
    EXPECT_EQ(program.campaign.colUnits->at(2)->parent_ID, old->ID);
    EXPECT_EQ(program.campaign.gNextUnitIndex, 5);
    EXPECT_EQ(program.main.imgUnit(1).tag, old->ID);
}

TEST_F(MainFileReader, LinesOfOtherLengthsArePassedOverWhenOneIsComparedWithThose) {
    oLines longer;
    for (const int x : {1, 2, 3}) longer.colCoords->add(std::make_shared<oCoordinates>(oCoordinates{x, x}));
    oLines line;
    for (const int x : {1, 2}) line.colCoords->add(std::make_shared<oCoordinates>(oCoordinates{x, x}));
    load(file(zeros(1) + section(std::vector<oLines>{longer, line, line}, write_line) + zeros(4)));
    EXPECT_EQ(program.campaign.colLines.count(), 2U);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(MainFileReader, ShapeIsPlacedByItsCentreAndKeepsTheIndexOfTheFile) {
    oShapes shape;
    shape.ID = "{S}";
    shape.shape_index = 7;
    shape.xcoord = 500;
    shape.ycoord = 600;
    shape.width = 91;
    shape.height = 60;
    shape.notes = "Depot";
    shape.notesfont = "Arial";
    shape.notesfontsize = 9;
    shape.fillcolor = 65535;
    shape.bordercolor = 255;
    shape.borderwidth = 3;
    shape.drawmode = 9;
    shape.shape = 4;
    load(shapes({shape, shape}));
    const MapShape& outline = program.main.shpShape(1);
    EXPECT_EQ(outline.left, 454.5);
    EXPECT_EQ(outline.top, 570);
    EXPECT_EQ(outline.draw_mode, 9);
    EXPECT_EQ(outline.shape, 4);
    EXPECT_EQ(outline.border_width, 3);
    const MapLabel& caption = program.main.lblShapeLabel(1);
    EXPECT_EQ(caption.tag, "{S}");
    EXPECT_EQ(caption.left + caption.width / 2, 500);
    EXPECT_EQ(caption.top + caption.height / 2, 600);
    EXPECT_GT(caption.depth, outline.depth);
    EXPECT_EQ(program.campaign.colShapes->item("{S}")->shape_index, 7);
    EXPECT_EQ(program.campaign.gNextShapeIndex, 2) << "the second one is a duplicate";
}

TEST_F(MainFileReader, GoodEndChecksLinksRaisesLabelsAndRefreshes) {
    const std::string bytes =
        file(section(std::vector<oLabels>{label("{L}")}, write_label) + zeros(1) +
             section(std::vector<oUnits>{unit("{H}"), unit("{A}", "{H}")}, write_unit) + zeros(3));
    load(bytes);
    EXPECT_EQ(platform.texts(),
              std::vector<std::string>{"Found and fixed a total of 1 errors in the unit hierarchy."});
    EXPECT_GT(program.main.lblUser(1).depth, program.main.imgUnit(2).depth);
    EXPECT_TRUE(program.main.picMap.marked);
    EXPECT_FALSE(platform.waiting);
}

TEST_F(MainFileReader, FailedEndChecksNothingAndRaisesNothingButRefreshes) {
    const std::string bytes = file(section(std::vector<oLabels>{label("{L}")}, write_label) + zeros(1) +
                                   section(std::vector<oUnits>{unit("{H}"), unit("{A}", "{H}")}, write_unit));
    load(bytes);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 62 when loading data!"});
    EXPECT_TRUE(program.campaign.colUnits->item("{H}")->children.empty());
    EXPECT_LT(program.main.lblUser(1).depth, program.main.imgUnit(2).depth);
    EXPECT_TRUE(program.main.picMap.marked);
    EXPECT_FALSE(platform.waiting);
}

TEST_F(MainFileReader, LabelsLookIsTakenOverWhole) {
    oLabels italic = label("{1}");
    italic.font_italic = true;
    oLabels underlined = label("{2}");
    underlined.font_underline = true;
    oLabels struck = label("{3}");
    struck.font_strikethru = true;
    load(labels({italic, underlined, struck}));
    const auto look = [&](int index) {
        const Font& font = program.main.lblUser(index).font;
        return std::vector<bool>{font.italic, font.underline, font.strikethru};
    };
    EXPECT_EQ(look(1), (std::vector<bool>{true, false, false}));
    EXPECT_EQ(look(2), (std::vector<bool>{false, true, false}));
    EXPECT_EQ(look(3), (std::vector<bool>{false, false, true}));
}

TEST_F(MainFileReader, DuplicateLabelTakesNoControlAndNoIndex) {
    load(labels({label("{L}"), label("{L}")}));
    EXPECT_EQ(program.campaign.gNextLabelIndex, 2);
    EXPECT_FALSE(program.main.lblUser.has(2));
}

TEST_F(MainFileReader, UnitWithADuplicateInItsListsGetsItsMarkerAllTheSame) {
    const std::string twice = "\"{C}\",\"x\"\r\n";
    oUnits parent = unit("{U}");
    std::string bytes = units({parent});
    const std::string lists = "0\r\n0\r\n0\r\n0\r\n" + zeros(3);
    bytes.replace(bytes.size() - lists.size(), 3, "2\r\n" + twice + twice);
    load(bytes);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_TRUE(program.main.imgUnit.has(1));
    EXPECT_EQ(program.campaign.gNextUnitIndex, 2);
}

TEST_F(MainFileReader, DotUsesTheRatioOfTheWidthsAndOnlyItsTopIsRounded) {
    program.main.picMap.height = 3000;
    oUnits odd = unit("{U}");
    odd.xcoord = 100;
    odd.ycoord = 109; // a 24th is 4.54
    load(units({odd}));
    EXPECT_DOUBLE_EQ(program.main.shpUnit(1).left, 100 * 224 / 5376.0);
    EXPECT_EQ(program.main.shpUnit(1).top, 3);
}

TEST_F(MainFileReader, ShapeAndCaptionShowTheirRecord) {
    oShapes shape;
    shape.ID = "{S}";
    shape.width = 91;
    shape.height = 60;
    shape.notes = "Depot";
    shape.notesfont = "Arial";
    shape.notesfontsize = 9;
    shape.notesfontbold = true;
    shape.notescolor = 77;
    shape.fillcolor = 65535;
    shape.bordercolor = 255;
    load(shapes({shape}));
    const MapShape& outline = program.main.shpShape(1);
    EXPECT_EQ(outline.width, 91);
    EXPECT_EQ(outline.height, 60);
    EXPECT_EQ(outline.fill_colour, 65535);
    EXPECT_EQ(outline.border_colour, 255);
    EXPECT_TRUE(outline.visible);
    EXPECT_GT(outline.depth, 0);
    const MapLabel& caption = program.main.lblShapeLabel(1);
    EXPECT_EQ(caption.caption, "Depot");
    EXPECT_EQ(caption.colour, 77);
    EXPECT_TRUE(caption.font.bold);
    EXPECT_FALSE(caption.font.italic);
    EXPECT_TRUE(caption.visible);
}

TEST_F(MainFileReader, AllLabelsAreRaisedAtAGoodEnd) {
    program.main.lblUser.load(1).tag = deleted_tag;
    program.main.lblUser.load(2).tag = "{old}";
    program.campaign.gNextLabelIndex = 3;
    load(units({unit("{U}")}));
    for (const int index : {1, 2})
        EXPECT_GT(program.main.lblUser(index).depth, program.main.imgUnit(1).depth) << index;
}

TEST_F(MainFileReader, PointerIsTheHourglassWhileLoading) {
    bool waited = false;
    platform.marker_failures[folder + "\\data\\forces\\a.gif"] = 53;
    platform.on_message = [&](const MessageBox&) { waited = platform.waiting; };
    load(units({unit("{U}")}));
    EXPECT_TRUE(waited);
    EXPECT_FALSE(platform.waiting);
}

TEST_F(MainFileReader, FontQuestionOffersUnderlineAndStrikeOut) {
    platform.missing_fonts = {"Fraktur"};
    platform.chosen_font = Font{"Times", 14, false, false, true, true};
    oLabels missing = label("{1}");
    missing.font_name = "Fraktur";
    load(labels({missing}));
    EXPECT_TRUE(platform.font_dialogs.at(0).with_effects);
}

TEST_F(MainFileReader, LoadNeverChangesTheVersionThatIsWritten) {
    load("\"beta 8\"\r\n\"1942\",\"November\",\"25\",\"07\",\"00\"\r\n" + zeros(6));
    EXPECT_EQ(program.main.file_version, "1.0");
}

TEST(RecordReader, UnitClassOfOldOrEmptyValues) {
    EXPECT_EQ(order_id_of("re", "Company"), "Rear echelon");
    EXPECT_EQ(order_id_of("RE", ""), "Rear echelon");
    EXPECT_EQ(order_id_of("Re", "Army"), "Re");
    EXPECT_EQ(order_id_of("x", "Army"), "x");
    for (const char* echelon : {"Army", "Corps", "Division", "Brigade", "Regiment", "Battalion"})
        EXPECT_EQ(order_id_of("", echelon), "Rear echelon") << echelon;
    for (const char* echelon : {"Company", "Platoon", "Squad", "Team", "Battery", ""})
        EXPECT_EQ(order_id_of("", echelon), "Line unit") << echelon;
}

TEST(RecordReader, AbsoluteSymbolOfTheOldestVersionIsCutAtTheFirstPlace) {
    oUnits unit;
    unit.symbol = "C:\\x\\data\\forces\\a\\data\\forces\\b.gif";
    FieldWriter out;
    write_unit(out, unit);
    bool duplicate = false;
    // The state is no field of that version: what stands there is read as the count of children.
    FieldReader old(out.bytes());
    EXPECT_EQ(read_unit(old, "beta 4", duplicate)->symbol, "\\data\\forces\\a\\data\\forces\\b.gif");
    FieldReader later(out.bytes());
    EXPECT_EQ(read_unit(later, "beta 4.1", duplicate)->symbol, unit.symbol);
    unit.symbol = "C:\\elsewhere\\b.gif";
    out.clear();
    write_unit(out, unit);
    FieldReader elsewhere(out.bytes());
    EXPECT_EQ(read_unit(elsewhere, "beta 4", duplicate)->symbol, unit.symbol);
}

TEST_F(MainFileReader, EachFieldOfTheClockCountsAlone) {
    const std::vector<std::string> clocks{
        "\"1943\",\"November\",\"25\",\"07\",\"00\"", "\"1942\",\"December\",\"25\",\"07\",\"00\"",
        "\"1942\",\"November\",\"26\",\"07\",\"00\"", "\"1942\",\"November\",\"25\",\"08\",\"00\"",
        "\"1942\",\"November\",\"25\",\"07\",\"01\""};
    for (const std::string& clock : clocks) {
        platform.messages.clear();
        platform.answers = {Answer::no};
        load(file(zeros(6), clock));
        EXPECT_EQ(platform.messages.size(), 1U) << clock;
        EXPECT_EQ(platform.messages.at(0).title, "Tolvane ][");
    }
}

TEST_F(MainFileReader, PresentUnitIsAskedForOnlyWhenItsListsAreRead) {
    add_unit("{U}");
    oUnits with_lists = unit("{U}");
    with_lists.children->add(std::make_shared<oChildren>(oChildren{"{A}", "a"}), "{A}");
    std::string bytes = units({with_lists});
    load(bytes.substr(0, bytes.find("{A}")));
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 62 when loading data!"});
    platform.messages.clear();
    platform.answers = {Answer::no};
    load(units({with_lists, unit("{V}")}));
    EXPECT_EQ(platform.messages.size(), 1U) << "the list of the unit that was dropped is passed";
    EXPECT_TRUE(program.campaign.colUnits->contains("{V}"));
    EXPECT_TRUE(program.campaign.colUnits->item("{U}")->children.empty());
}

TEST_F(MainFileReader, RenumberingThatFailsIsToldAndTheLoadGoesOn) {
    const auto dangling = add_unit("{U}");
    add_child(*dangling, "{gone}");
    load(units({unit("{U}"), unit("{V}")}));
    EXPECT_EQ(platform.texts(),
              (std::vector<std::string>{id_question("unit {U}"), "Error 5 when assigning new IDs."}));
    EXPECT_EQ(platform.messages[0].title, "Tolvane ][");
    EXPECT_TRUE(program.campaign.colUnits->contains("{V}"));
}

TEST_F(MainFileReader, BetaFiveEndsWellBehindAFirstPolygonThatIsPresent) {
    oPolygons polygon;
    polygon.ID = "{P}";
    auto present = std::make_shared<oPolygons>(polygon);
    present->notes = "present";
    program.campaign.colPolygons->add(present, "{P}");
    const std::string polygons = section(std::vector<oPolygons>{polygon, polygon}, write_polygon);
    std::string bytes = file(zeros(4) + polygons + "1\r\n");
    bytes.replace(1, 3, "beta 5");
    load(bytes);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(program.campaign.colPolygons.count(), 1U);
    EXPECT_EQ(program.campaign.colPolygons->at(1)->notes, "present");
    EXPECT_TRUE(program.campaign.colFireMissions.empty());
}

TEST_F(MainFileReader, NegativeCountsInsideARecordAreNone) {
    std::string bytes = units({unit("{U}")});
    // The counts of a unit's lists stand behind its own fields, each on a line of its own.
    const std::size_t first = bytes.find("\r\n0\r\n", bytes.find("{U}"));
    ASSERT_NE(first, std::string::npos);
    bytes.replace(first + 2, 1, "-3");
    load(bytes);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(program.campaign.colUnits.count(), 1U);
}

TEST_F(MainFileReader, VerticesBeyondTheRangeOfCountsAreAnOverflow) {
    oPolygons polygon;
    polygon.ID = "{P}";
    std::string bytes = file(zeros(4) + section(std::vector<oPolygons>{polygon}, write_polygon) + "0\r\n");
    const std::size_t count = bytes.rfind("\r\n0\r\n0\r\n");
    ASSERT_NE(count, std::string::npos);
    bytes.replace(count + 2, 1, "32768");
    load(bytes);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 6 when loading data!"});
}

TEST_F(MainFileReader, WhatStandsBehindTheLastFieldIsNeverLookedAt) {
    load(file(zeros(6)) + "more text, \"and quotes");
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(MainFileReader, FontChoiceChangesNameAndSizeOnlyAndCancelHoldsForLaterLabels) {
    platform.missing_fonts = {"Fraktur"};
    platform.chosen_font = Font{"Times", 14, false, true, true, true};
    oLabels missing = label("{1}");
    missing.font_name = "Fraktur";
    load(labels({missing}));
    const auto& record = *program.campaign.colLabels->item("{1}");
    EXPECT_TRUE(record.font_bold);
    EXPECT_FALSE(record.font_italic || record.font_underline || record.font_strikethru);
    program.campaign.colLabels.drop();
    platform.messages.clear();
    platform.font_dialogs.clear();
    platform.chosen_font.reset();
    oLabels second = missing;
    second.ID = "{2}";
    load(labels({missing, second}));
    EXPECT_EQ(platform.font_dialogs.size(), 1U);
    EXPECT_EQ(program.campaign.colLabels->item("{2}")->font_name, "Arial");
}

TEST_F(MainFileReader, LastIndexThereIsStillGetsItsControl) {
    program.campaign.gNextLabelIndex = 32767;
    load(labels({label("{1}")}));
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 6 when loading data!"});
    EXPECT_TRUE(program.main.lblUser(32767).visible);
    EXPECT_EQ(program.campaign.gNextLabelIndex, 32767);
}
