#include "persistence/main_file_writer.h"

#include "persistence/frmSaveSelect.h"
#include "persistence/main_file_reader.h"
#include "tests/support/program_test.h"

namespace {

const std::string head = "\"1.0\"\r\n\"1942\",\"November\",\"25\",\"07\",\"00\"\r\n";
const std::string empty_sections = "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n";
const std::string nothing_to_save = "Nothing to save. Do you want to save this as an empty file?";
const std::string units_in_tray = "You have units left in the unit tray. Please move them to the map first!";

class MainFileWriter : public ProgramTest {
  protected:
    std::string save() {
        platform.chosen_files = {path("campaign.tvn")};
        cmdSave_Click(program);
        return file_bytes("campaign.tvn");
    }

    void add_mission(const std::string& notes) {
        auto mission = std::make_shared<oFireMission>();
        mission->ID = "{M}";
        mission->notes = notes;
        mission->assigned_to = "unit a";
        program.campaign.colFireMissions->add(mission, mission->ID);
    }

    void add_label(const std::string& id, const std::string& text) {
        auto label = std::make_shared<oLabels>();
        label->ID = id;
        label->text = text;
        label->font_name = "Arial";
        label->font_size = 10;
        program.campaign.colLabels->add(label, id);
    }

    UnitMarker& marker_in_tray(const std::string& tag) {
        UnitMarker& marker = program.main.imgUnit.load(1);
        marker.tag = tag;
        marker.container = Container::tray;
        program.campaign.gNextUnitIndex = 2;
        return marker;
    }
};

} // namespace

TEST_F(MainFileWriter, EmptyCampaignAsksFirstAndYesWritesSixZeros) {
    EXPECT_EQ(save(), head + empty_sections);
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].text, nothing_to_save);
    EXPECT_EQ(platform.messages[0].title, "Tolvane ][");
    EXPECT_EQ(platform.messages[0].buttons, Buttons::yes_no);
    EXPECT_EQ(platform.messages[0].icon, Icon::question);
}

TEST_F(MainFileWriter, NoAtTheEmptyQuestionShowsNoDialog) {
    platform.answers = {Answer::no};
    program.main.cmdLabel.enabled = false;
    cmdSave_Click(program);
    EXPECT_TRUE(platform.file_dialogs.empty());
    EXPECT_FALSE(program.main.cmdLabel.enabled);
}

TEST_F(MainFileWriter, AnyOneObjectIsSomethingToSave) {
    add_label("{L}", "x");
    save();
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(MainFileWriter, UnitLeftInTheTrayRefusesTheSave) {
    add_unit("a");
    marker_in_tray("a");
    cmdSave_Click(program);
    ASSERT_EQ(platform.texts(), std::vector<std::string>{units_in_tray});
    EXPECT_EQ(platform.messages[0].icon, Icon::warning);
    EXPECT_TRUE(platform.file_dialogs.empty());
}

TEST_F(MainFileWriter, DeletedMarkerInTheTrayDoesNotRefuseIt) {
    add_unit("a");
    marker_in_tray("deleted");
    EXPECT_NE(save(), "");
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(MainFileWriter, FourButtonsAreEnabledBeforeTheDialog) {
    add_unit("a");
    Toolbar& toolbar = program.main;
    for (Button* button : fenced_buttons()) button->enabled = false;
    platform.before_file_dialog_answers = [&] {
        EXPECT_THAT(enabled_buttons(),
                    testing::UnorderedElementsAre(&toolbar.cmdCreateShapes, &toolbar.cmdDrawLines,
                                                  &toolbar.cmdCreateUnits, &toolbar.cmdLabel));
    };
    cmdSave_Click(program);
    EXPECT_EQ(platform.file_dialogs.size(), 1U);
}

TEST_F(MainFileWriter, DialogIsAsTold) {
    add_unit("a");
    save();
    const FileDialog& dialog = platform.file_dialogs.at(0);
    EXPECT_EQ(dialog.title, "tolvane ii data");
    EXPECT_EQ(dialog.directory, folder);
    EXPECT_EQ(dialog.filter, "tvn|*.tvn");
    EXPECT_TRUE(dialog.saving && dialog.overwrite_prompt);
}

TEST_F(MainFileWriter, CancelLeavesFileLinksAndPointerAlone) {
    const auto unit = add_unit("a", "gone");
    write_file("campaign.tvn", "before");
    cmdSave_Click(program);
    EXPECT_EQ(file_bytes("campaign.tvn"), "before");
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(unit->parent_ID, "gone");
    EXPECT_FALSE(platform.waiting);
}

TEST_F(MainFileWriter, BrokenLinkIsRepairedAndToldBeforeTheFirstByte) {
    const auto hq = add_unit("H");
    add_unit("a", "H");
    write_file("campaign.tvn", "before");
    platform.before_file_dialog_answers = [&] { EXPECT_TRUE(hq->children.empty()); };
    const std::string bytes = save();
    EXPECT_NE(bytes.find("\"a\",\"unit a\"\r\n"), std::string::npos);
    EXPECT_EQ(platform.texts()[0], "Found and fixed a total of 1 errors in the unit hierarchy.");
}

TEST_F(MainFileWriter, FailureIsToldKeepsRepairsAndLeavesTheProgramRunning) {
    const auto hq = add_unit("H");
    add_unit("a", "H");
    for (const auto& [file, number] : std::vector<std::pair<std::string, int>>{
             {"/dev/full", 61}, {folder, 75}, {path("none/campaign.tvn"), 76}}) {
        platform.messages.clear();
        platform.chosen_files = {file};
        cmdSave_Click(program);
        ASSERT_FALSE(platform.messages.empty());
        EXPECT_EQ(platform.messages.back().text, "Error " + std::to_string(number) + " when saving data.");
        EXPECT_EQ(platform.messages.back().icon, Icon::warning);
        EXPECT_FALSE(platform.waiting);
    }
    EXPECT_EQ(hq->children.count(), 1U);
    EXPECT_NE(save(), "");
}

TEST_F(MainFileWriter, QuotesAreReplacedInTheFieldsThatUsersTypeAndInNoOther) {
    const auto unit = add_unit("a");
    for (std::string* field :
         {&unit->affiliation, &unit->echelon, &unit->gm_email, &unit->gm_name, &unit->name,
          &unit->nationality, &unit->parent_name, &unit->player_email, &unit->player_name, &unit->symbol,
          &unit->unittype, &unit->op_status, &unit->fitness, &unit->order_id})
        *field = "\"";
    const std::string bytes = save();
    const std::string raw = "\"\"\"";
    const std::string replaced = "\"\xF7\"";
    EXPECT_NE(bytes.find(raw + ",0," + raw + "," + raw + "," + replaced + ",\"a\"," + replaced + "," + raw +
                         ",\"\"," + replaced + "," + raw + "," + replaced + "," + raw + "," + raw +
                         ",0,0,0,0," + raw + "," + raw + "," + raw + ",0\r\n0\r\n0\r\n0\r\n0\r\n"),
              std::string::npos)
        << bytes;
}

TEST_F(MainFileWriter, LabelTextWithQuotesComesBackWholeAndAMissionNoteDoesNot) {
    add_label("{L}", "say \"hello\"");
    add_mission("a \"b\" c");
    save();
    Program second(platform, paint_order());
    second.main.picMap.width = 5376;
    platform.messages.clear();
    platform.chosen_files = {path("campaign.tvn")};
    cmdLoad_Click(second);
    EXPECT_EQ(second.campaign.colLabels->item("{L}")->text, "say \"hello\"");
    EXPECT_EQ(second.campaign.colFireMissions->at(1)->notes, "a ");
    EXPECT_EQ(second.campaign.colFireMissions->at(1)->numbtarget_id, "b\" c\"")
        << "the record runs out of step";
}

TEST_F(MainFileWriter, SelectiveSaveWritesZeroForWhatIsLeftOut) {
    add_unit("a");
    add_mission("n");
    add_label("{L}", "x");
    platform.on_modal["frmSaveSelect"] = [](Form& form) {
        auto& select = static_cast<frmSaveSelect&>(form);
        EXPECT_TRUE(select.chkSaveUnits.value && select.chkSaveFmissions.value);
        select.chkSaveUnits.value = false;
        select.chkSaveLabels.value = false;
        select.cmdOK_Click();
    };
    platform.chosen_files = {path("part.tvn")};
    mnuSaveSelected_Click(program);
    const std::string bytes = file_bytes("part.tvn");
    EXPECT_TRUE(bytes.starts_with(head + "0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n\"unit a\"")) << bytes;
    EXPECT_FALSE(program.main.saving_selected);
    EXPECT_FALSE(program.campaign.gSaveUnits);
    EXPECT_TRUE(program.campaign.gSaveFmissions);
    EXPECT_TRUE(save().find("{L}") != std::string::npos) << "a full save takes no notice of the choice";
}

TEST_F(MainFileWriter, EachBoxOfTheChoiceLeavesOutItsOwnKind) {
    add_label("{L}", "x");
    program.campaign.colLines->add(std::make_shared<oLines>());
    add_unit("a");
    program.campaign.colShapes->add(std::make_shared<oShapes>(), "s");
    program.campaign.colPolygons->add(std::make_shared<oPolygons>(), "p");
    add_mission("n");
    using Box = CheckBox frmSaveSelect::*;
    const std::vector<std::pair<Box, void (*)(Campaign&)>> kinds{
        {&frmSaveSelect::chkSaveLabels, [](Campaign& c) { c.colLabels.drop(); }},
        {&frmSaveSelect::chkSaveLines, [](Campaign& c) { c.colLines.drop(); }},
        {&frmSaveSelect::chkSaveUnits, [](Campaign& c) { c.colUnits.drop(); }},
        {&frmSaveSelect::chkSaveShapes, [](Campaign& c) { c.colShapes.drop(); }},
        {&frmSaveSelect::chkSavePolygons, [](Campaign& c) { c.colPolygons.drop(); }},
        {&frmSaveSelect::chkSaveFmissions, [](Campaign& c) { c.colFireMissions.drop(); }}};
    for (const auto& [box, drop] : kinds) {
        platform.on_modal["frmSaveSelect"] = [&box = box](Form& form) {
            auto& select = static_cast<frmSaveSelect&>(form);
            EXPECT_TRUE((select.*box).value);
            (select.*box).value = false;
            select.cmdOK_Click();
        };
        platform.chosen_files = {path("part.tvn")};
        mnuSaveSelected_Click(program);
        static_cast<SaveOptions&>(program.campaign) = {};
        const CampaignCollections kept = program.campaign;
        drop(program.campaign);
        EXPECT_EQ(file_bytes("part.tvn"), save());
        static_cast<CampaignCollections&>(program.campaign) = kept;
    }
}

TEST_F(MainFileWriter, ChoiceIsWordedAsUsersKnowIt) {
    auto& select = program.form<frmSaveSelect>();
    EXPECT_EQ(select.heading, "Select objects to save");
    EXPECT_EQ(select.title, "Tolvane ][");
    program.campaign.gSaveLines = false;
    select.unload();
    EXPECT_FALSE(program.form<frmSaveSelect>().chkSaveLines.value) << "the boxes stand as the options do";
}

TEST_F(MainFileWriter, EveryKindOfObjectIsSomethingToSave) {
    const std::vector<std::function<void(Campaign&)>> kinds{
        [](Campaign& c) { c.colLines->add(std::make_shared<oLines>()); },
        [](Campaign& c) { c.colLabels->add(std::make_shared<oLabels>(), "l"); },
        [](Campaign& c) { c.colUnits->add(std::make_shared<oUnits>(), "u"); },
        [](Campaign& c) { c.colShapes->add(std::make_shared<oShapes>(), "s"); },
        [](Campaign& c) { c.colPolygons->add(std::make_shared<oPolygons>(), "p"); },
        [](Campaign& c) { c.colFireMissions->add(std::make_shared<oFireMission>(), "f"); }};
    for (const auto& add : kinds) {
        static_cast<CampaignCollections&>(program.campaign) = {};
        add(program.campaign);
        save();
        EXPECT_TRUE(platform.messages.empty());
    }
}

TEST_F(MainFileWriter, SelectiveSaveOfAnEmptyCampaignAsksToo) {
    platform.answers = {Answer::no};
    mnuSaveSelected_Click(program);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{nothing_to_save});
}

TEST_F(MainFileWriter, RefusalByTheTrayEnablesNothingAndLooksAtEveryMarker) {
    add_unit("a");
    marker_in_tray("a").container = Container::map;
    UnitMarker& second = program.main.imgUnit.load(2);
    second.tag = "b";
    second.container = Container::tray;
    program.campaign.gNextUnitIndex = 3;
    program.main.cmdLabel.enabled = false;
    cmdSave_Click(program);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{units_in_tray});
    EXPECT_FALSE(program.main.cmdLabel.enabled);
}

TEST_F(MainFileWriter, LinksAreCheckedBeforeTheFileIsEmptied) {
    const auto hq = add_unit("H");
    add_unit("a", "H");
    write_file("campaign.tvn", "before");
    platform.on_message = [&](const MessageBox&) { EXPECT_EQ(file_bytes("campaign.tvn"), "before"); };
    save();
    EXPECT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(hq->children.count(), 1U);
}

TEST_F(MainFileWriter, SelectiveSaveWithAllBoxesOffWritesSixZeros) {
    add_unit("a");
    static_cast<SaveOptions&>(program.campaign) = {false, false, false, false, false, false};
    platform.chosen_files = {path("none.tvn")};
    mnuSaveSelected_Click(program);
    EXPECT_EQ(file_bytes("none.tvn"), head + empty_sections);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(MainFileWriter, SelectionEndsAlsoAfterCancelAndFailure) {
    add_unit("a");
    mnuSaveSelected_Click(program);
    EXPECT_FALSE(program.main.saving_selected);
    platform.chosen_files = {"/dev/full"};
    mnuSaveSelected_Click(program);
    EXPECT_FALSE(program.main.saving_selected);
}

TEST_F(MainFileWriter, CloseBoxOfTheChoiceKeepsTheOptionsAndGoesOnToTheSave) {
    add_unit("a");
    platform.on_modal["frmSaveSelect"] = [](Form& form) {
        static_cast<frmSaveSelect&>(form).chkSaveUnits.value = false;
        form.close_box();
    };
    platform.chosen_files = {path("part.tvn")};
    mnuSaveSelected_Click(program);
    EXPECT_TRUE(program.campaign.gSaveUnits);
    EXPECT_NE(file_bytes("part.tvn").find("\"unit a\""), std::string::npos);
}

TEST_F(MainFileWriter, CountBeyondWhatTheReaderTakesIsWritten) {
    for (int i = 0; i < 40000; ++i) add_label(std::to_string(i), "");
    EXPECT_TRUE(save().starts_with(head + "40000\r\n"));
}

TEST_F(MainFileWriter, PointerIsTheHourglassWhileWritingOnly) {
    add_unit("a");
    save();
    const auto& log = platform.log;
    const auto on = std::find(log.begin(), log.end(), "hourglass on");
    EXPECT_LT(std::find(log.begin(), log.end(), "file dialog"), on);
    EXPECT_NE(std::find(on, log.end(), "hourglass off"), log.end());
}

namespace {

/// A disk that breaks after so many writes.
class BreakingFile : public OutputFile {
  public:
    BreakingFile(std::string& written, int writes) : written(written), writes(writes) {}
    void write(std::string_view bytes) override {
        if (writes-- == 0) throw Failure{failure::device_error};
        written += bytes;
    }
    void close() override {}

  private:
    std::string& written;
    int writes;
};

class BreakingPlatform : public ScriptedPlatform {
  public:
    std::unique_ptr<OutputFile> open_for_output(const std::string& /*path*/) override {
        return std::make_unique<BreakingFile>(written, 1);
    }
    std::string written;
};

} // namespace

TEST_F(MainFileWriter, DiskThatBreaksInTheMiddleIsToldAndWhatWasWrittenStays) {
    BreakingPlatform breaking;
    Program large(breaking, paint_order(), tool_order());
    for (int i = 0; i < 5000; ++i) {
        auto unit = std::make_shared<oUnits>();
        unit->ID = std::to_string(i);
        unit->name = std::string(100, 'n');
        large.campaign.colUnits->add(unit, unit->ID);
    }
    breaking.chosen_files = {"campaign.tvn"};
    cmdSave_Click(large);
    EXPECT_EQ(breaking.texts(), std::vector<std::string>{"Error 57 when saving data."});
    EXPECT_FALSE(breaking.written.empty());
    EXPECT_EQ(large.campaign.colUnits.count(), 5000U);
}

TEST_F(MainFileWriter, QuotesInFieldsThatAreNotReplacedStayRaw) {
    const auto unit = add_unit("{U}");
    auto element = std::make_shared<oUnitForceElements>();
    element->ID = "{F}";
    element->experience = "Reg\"ular";
    element->free_text = "free \"text";
    unit->force_elements->add(element, element->ID);
    auto line = std::make_shared<oLines>();
    line->boundry_size = "Cor\"ps";
    line->colCoords->add(std::make_shared<oCoordinates>());
    program.campaign.colLines->add(line);
    auto shape = std::make_shared<oShapes>();
    shape->ID = "{S}";
    shape->notesfont = "Ari\"al";
    program.campaign.colShapes->add(shape, shape->ID);
    auto mission = std::make_shared<oFireMission>();
    mission->ID = "{M}";
    mission->assigned_to = "un\"it";
    mission->numbtarget_id = "A\"1";
    mission->affiliation = "All\"ied";
    mission->end_month = "Nov\"ember";
    program.campaign.colFireMissions->add(mission, mission->ID);
    const std::string bytes = save();
    for (const char* text :
         {"Reg\"ular", "free \"text", "Cor\"ps", "Ari\"al", "un\"it", "A\"1", "All\"ied", "Nov\"ember"})
        EXPECT_NE(bytes.find(text), std::string::npos) << text;
}
