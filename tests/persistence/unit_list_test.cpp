#include "persistence/unit_list.h"

#include "tests/support/map_test.h"

namespace {

using Texts = std::vector<std::string>;

const std::string select_all = "You must select all units in a hierarchy!";

class UnitList : public MapTest {
  protected:
    /// A unit of a side, under a headquarters of the campaign or of another one.
    std::shared_ptr<oUnits> add(const std::string& id, const std::string& parent = "",
                                const std::string& affiliation = "Allied") {
        auto unit = add_marked(id, 100, 100);
        unit->affiliation = affiliation;
        unit->order_id = "Line unit";
        unit->parent_ID = parent;
        if (campaign.colUnits->contains(parent)) add_child(*campaign.colUnits->item(parent), id);
        return unit;
    }

    std::string saved(void (*command)(Program&)) {
        platform.chosen_files = {path("units.uni")};
        command(program);
        return std::filesystem::exists(path("units.uni")) ? file_bytes("units.uni") : "";
    }

    std::string saved_selection(const std::vector<std::shared_ptr<oUnits>>& units) {
        std::filesystem::remove(path("units.uni"));
        campaign.colSelectedUnits.drop();
        for (const auto& unit : units) campaign.colSelectedUnits->add(unit, unit->ID);
        return saved(mnuSaveSelectedUnits_Click);
    }

    void load(const std::string& bytes) {
        platform.contents["list"] = bytes;
        platform.chosen_files = {"list"};
        mnuLoadUnits_Click(program);
    }

    void forget_units() {
        campaign.colUnits.drop();
        campaign.gNextUnitIndex = 1;
        main.imgUnit.unload_from(1);
    }
};

} // namespace

TEST_F(UnitList, AllOfAnEmptyCampaignAreAVersionAndNought) {
    EXPECT_EQ(saved(mnuSaveAllUnits_Click), "\"1.0\"\r\n0\r\n");
    EXPECT_TRUE(platform.messages.empty());
    const FileDialog& dialog = platform.file_dialogs.at(0);
    EXPECT_EQ(dialog.title, "tolvane ii units");
    EXPECT_EQ(dialog.filter, "uni|*.uni");
    EXPECT_EQ(dialog.directory, folder);
    EXPECT_TRUE(dialog.saving && dialog.overwrite_prompt);
}

TEST_F(UnitList, SideHasItsOwnUnitsInTheirOrder) {
    add("{A}");
    add("{X}", "", "Axis");
    add("{N}", "", "Neutral");
    add("{B}");
    const std::string allied = saved(mnuSaveAlliedUnits_Click);
    EXPECT_TRUE(allied.starts_with("\"1.0\"\r\n2\r\n"));
    EXPECT_GT(allied.find("\"{B}\""), allied.find("\"{A}\""));
    EXPECT_EQ(allied.find("{X}"), std::string::npos);
    const std::string axis = saved(mnuSaveAxisUnits_Click);
    EXPECT_TRUE(axis.starts_with("\"1.0\"\r\n1\r\n"));
    EXPECT_NE(axis.find("\"{X}\""), std::string::npos);
    EXPECT_TRUE(saved(mnuSaveAllUnits_Click).starts_with("\"1.0\"\r\n4\r\n"));
}

TEST_F(UnitList, UnitInTheTrayKeepsAllFromBeingSaved) {
    const auto unit = add("{A}", "{gone}");
    marker(*unit).container = Container::tray;
    campaign.colSelectedUnits->add(unit, "{A}");
    for (const auto command : {mnuSaveAlliedUnits_Click, mnuSaveAxisUnits_Click, mnuSaveAllUnits_Click,
                               mnuSaveSelectedUnits_Click}) {
        platform.messages.clear();
        command(program);
        EXPECT_EQ(platform.texts(),
                  Texts{"You have units left in the unit tray. Please move them to the map first!"});
    }
    EXPECT_TRUE(platform.file_dialogs.empty());
}

TEST_F(UnitList, SelectionMustBeAWholeBranch) {
    const auto top = add("{T}");
    const auto child = add("{C}", "{T}");
    const auto alone = add("{L}");
    EXPECT_NE(saved_selection({alone}), "");
    EXPECT_NE(saved_selection({top, child}), "");
    EXPECT_EQ(saved_selection({top}), "");
    EXPECT_EQ(saved_selection({child}), "") << "its HQ is not selected";
    EXPECT_EQ(platform.texts(), (Texts{select_all, select_all}));
    EXPECT_EQ(platform.messages[0].icon, Icon::warning);
}

TEST_F(UnitList, HqIsAskedForOnlyUntilTheFirstOneThatIsThere) {
    const auto top = add("{T}");
    const auto child = add("{C}", "{T}");
    const auto stray = add("{S}", "{elsewhere}");
    EXPECT_EQ(saved_selection({stray, top, child}), "");
    EXPECT_NE(saved_selection({top, child, stray}), "");
    const auto below = add("{B}", "{S}");
    EXPECT_EQ(saved_selection({stray, below}), "");
    EXPECT_NE(saved_selection({below, stray}), "");
}

TEST_F(UnitList, LinksGoOutAsTheyStand) {
    const auto unit = add("{A}", "{gone}");
    EXPECT_NE(saved(mnuSaveAllUnits_Click).find("{gone}"), std::string::npos);
    EXPECT_EQ(unit->parent_ID, "{gone}");
}

TEST_F(UnitList, CancelIsSilentAndErrorsAreTold) {
    add("{A}");
    mnuSaveAllUnits_Click(program);
    mnuLoadUnits_Click(program);
    EXPECT_TRUE(platform.messages.empty());
    platform.chosen_files = {"/dev/full"};
    mnuSaveAllUnits_Click(program);
    load("");
    load("\"1.0\"\r\n32768\r\n");
    platform.chosen_files = {path("none")};
    mnuLoadUnits_Click(program);
    EXPECT_EQ(platform.texts(), (Texts{"Error 61 when saving units.", "Error 62 when loading units!",
                                       "Error 6 when loading units!", "Error 53 when loading units!"}));
    for (const auto& box : platform.messages) EXPECT_EQ(box.title, "Tolvane ][");
    EXPECT_FALSE(platform.waiting);
}

TEST_F(UnitList, ListComesBackWithMarkersAndCheckedLinks) {
    add("{T}");
    add("{C}", "{T}");
    add("{S}", "{gone}");
    const std::string bytes = saved(mnuSaveAllUnits_Click);
    forget_units();
    main.picMap.marked = false;
    load(bytes);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(campaign.colUnits.count(), 3U);
    EXPECT_EQ(campaign.gNextUnitIndex, 4);
    EXPECT_TRUE(main.imgUnit(3).visible);
    EXPECT_EQ(campaign.colUnits->item("{C}")->parent_ID, "{T}");
    EXPECT_EQ(campaign.colUnits->item("{S}")->parent_ID, "") << "its HQ is in neither";
    EXPECT_TRUE(main.picMap.marked);
    EXPECT_FALSE(platform.waiting);
    EXPECT_EQ(platform.file_dialogs.back().title, "tolvane ii units");
    EXPECT_FALSE(platform.file_dialogs.back().saving);
}

TEST_F(UnitList, PresentUnitsAreAskedForOnceAndYesRenumbersThem) {
    const auto old = add("{A}");
    add("{B}");
    const std::string bytes = saved(mnuSaveAllUnits_Click);
    load(bytes);
    EXPECT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(campaign.colUnits.count(), 4U);
    EXPECT_NE(old->ID, "{A}");
    platform.messages.clear();
    platform.answers = {Answer::no, Answer::no};
    load(bytes);
    EXPECT_EQ(platform.messages.size(), 2U);
    EXPECT_EQ(campaign.colUnits.count(), 4U);
}

TEST_F(UnitList, RepeatedKeyInAUnitsListsStopsMarkersForTheRestOfTheList) {
    for (const char* id : {"{1}", "{2}", "{3}", "{4}"}) {
        auto element = std::make_shared<oUnitForceElements>();
        element->ID = "{F}";
        add(id)->force_elements->add(element, "first");
    }
    auto again = std::make_shared<oUnitForceElements>();
    again->ID = "{F}";
    campaign.colUnits->item("{2}")->force_elements->add(again, "second");
    const std::string bytes = saved(mnuSaveAllUnits_Click);
    forget_units();
    load(bytes);
    EXPECT_EQ(campaign.colUnits.count(), 4U);
    EXPECT_EQ(campaign.gNextUnitIndex, 2);
    EXPECT_EQ(campaign.colUnits->item("{4}")->img_index, 2);
    forget_units();
    add("{5}");
    const std::string sound = saved(mnuSaveAllUnits_Click);
    forget_units();
    load(sound);
    EXPECT_EQ(campaign.gNextUnitIndex, 2) << "the next list starts anew";
}

TEST_F(UnitList, MissingPictureIsToldAndTheBlankOneTaken) {
    const auto unit = add("{A}");
    unit->symbol = "\\none.gif";
    const std::string bytes = saved(mnuSaveAllUnits_Click);
    forget_units();
    platform.marker_failures[folder + "\\none.gif"] = 53;
    load(bytes);
    EXPECT_EQ(platform.texts(),
              Texts{"Unable to load unit image '" + folder + "\\none.gif'.\nSetting unit image to blank."});
    EXPECT_TRUE(campaign.colUnits->contains("{A}"));
}
