#include "persistence/unit_list.h"

#include "core/hierarchy.h"
#include "tests/support/map_test.h"

#include <algorithm>

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
        main.shpUnit.unload_from(1);
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

TEST_F(UnitList, SelectionIsTestedByTheIdsThatItsUnitsHaveNow) {
    const auto top = add("{T}");
    const auto child = add("{C}", "{T}");
    for (const auto& unit : {top, child}) campaign.colSelectedUnits->add(unit, unit->ID);
    mnuChangeUnitID_Click(program);
    EXPECT_NE(saved(mnuSaveSelectedUnits_Click), "");
    EXPECT_TRUE(platform.messages.empty());
    const auto other = add("{T}"); // the ID under which the selection still holds the renumbered one
    const auto below = add("{B}", "{T}");
    std::filesystem::remove(path("units.uni"));
    campaign.colSelectedUnits->remove("{C}");
    top->children.drop();
    campaign.colSelectedUnits->add(below, "{B}");
    EXPECT_EQ(saved(mnuSaveSelectedUnits_Click), "") << "its HQ is not selected";
}

TEST_F(UnitList, LinksGoOutAsTheyStand) {
    const auto unit = add("{A}", "{gone}");
    EXPECT_NE(saved(mnuSaveAllUnits_Click).find("{gone}"), std::string::npos);
    EXPECT_EQ(unit->parent_ID, "{gone}");
}

TEST_F(UnitList, CancelIsSilentAndErrorsAreTold) {
    add("{A}");
    mnuSaveAllUnits_Click(program);
    main.picMap.marked = false;
    mnuLoadUnits_Click(program);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_FALSE(main.picMap.marked);
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
    const FileDialog& dialog = platform.file_dialogs.back();
    EXPECT_EQ(dialog.title, "tolvane ii units");
    EXPECT_EQ(dialog.filter, "uni|*.uni");
    EXPECT_EQ(dialog.directory, folder);
    EXPECT_FALSE(dialog.saving);
    const auto last = [&](const std::string& entry) {
        const auto found = std::find(platform.log.rbegin(), platform.log.rend(), entry);
        EXPECT_NE(found, platform.log.rend()) << entry;
        return platform.log.rend() - found;
    };
    EXPECT_LT(last("file dialog"), last("hourglass on"));
    EXPECT_LT(last("hourglass on"), last("read list"));
    EXPECT_LT(last("read list"), last("hourglass off"));
}

TEST_F(UnitList, LoadingRaisesNoLabels) {
    MapLabel& label = main.lblUser.load(1);
    label.visible = true;
    add("{A}");
    const std::string bytes = saved(mnuSaveAllUnits_Click);
    forget_units();
    const long depth = label.depth;
    load(bytes);
    EXPECT_EQ(label.depth, depth);
}

TEST_F(UnitList, RepeatedKeyInAUnitThatIsDroppedCountsToo) {
    add("{A}");
    auto element = std::make_shared<oUnitForceElements>();
    element->ID = "{F}";
    campaign.colUnits->item("{A}")->force_elements->add(element, "first");
    campaign.colUnits->item("{A}")->force_elements->add(element, "second");
    add("{B}");
    const std::string bytes = saved(mnuSaveAllUnits_Click);
    forget_units();
    add("{A}");
    platform.answers = {Answer::no};
    load(bytes);
    EXPECT_TRUE(campaign.colUnits->contains("{B}"));
    EXPECT_EQ(campaign.gNextUnitIndex, 2) << "{B} has got no marker";
}

TEST_F(UnitList, ListThatBreaksOffLeavesWhatItBroughtUncheckedButSeen) {
    add("{A}");
    add("{B}", "{gone}");
    std::string bytes = saved(mnuSaveAllUnits_Click);
    bytes.replace(bytes.find("\r\n2\r\n"), 5, "\r\n3\r\n");
    forget_units();
    main.picMap.marked = false;
    load(bytes);
    EXPECT_EQ(platform.texts(), Texts{"Error 62 when loading units!"});
    EXPECT_EQ(campaign.colUnits.count(), 2U);
    EXPECT_TRUE(main.imgUnit(2).visible);
    EXPECT_EQ(campaign.colUnits->item("{B}")->parent_ID, "{gone}") << "links are not checked";
    EXPECT_TRUE(main.picMap.marked);
    EXPECT_FALSE(platform.waiting);
}

TEST_F(UnitList, UnitWhoseHqIsInTheCampaignJoinsIt) {
    add("{T}");
    add("{C}", "{T}");
    campaign.colSelectedUnits->add(campaign.colUnits->item("{C}"), "{C}");
    const std::string both = saved(mnuSaveAllUnits_Click);
    forget_units();
    load(both);
    const std::string only_child = [&] {
        campaign.colUnits->remove("{T}");
        return saved(mnuSaveAllUnits_Click);
    }();
    forget_units();
    add("{T}");
    load(only_child);
    EXPECT_EQ(platform.texts(), Texts{"Found and fixed a total of 1 errors in the unit hierarchy."});
    EXPECT_TRUE(campaign.colUnits->item("{T}")->children->contains("{C}"));
    EXPECT_EQ(campaign.colUnits->item("{C}")->parent_ID, "{T}");
}

TEST_F(UnitList, OldListsHaveTheirTagsFields) {
    const auto full = add("{A}");
    auto element = std::make_shared<oUnitForceElements>();
    element->ID = "{F}";
    element->free_text = "text";
    full->force_elements->add(element, "{F}");
    full->state = 3;
    full->order_id = "re";
    const std::string bytes = saved(mnuSaveAllUnits_Click);
    const auto tagged = [&](const std::string& tag) {
        std::string old = bytes;
        old.replace(0, old.find("\r\n"), '"' + tag + '"');
        return old;
    };
    forget_units();
    load(tagged("beta 7.1"));
    EXPECT_EQ(platform.texts().size(), 1U) << "the field that such a list has not shifts all behind it";
    std::string seven = tagged("beta 7.1");
    seven.erase(seven.find(",\"text\""), 7);
    platform.messages.clear();
    forget_units();
    load(seven);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(campaign.colUnits->item("{A}")->force_elements->item("{F}")->free_text, "");
    EXPECT_EQ(campaign.colUnits->item("{A}")->order_id, "Rear echelon");
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
    for (const char* id : {"{2}", "{3}", "{4}"}) EXPECT_EQ(campaign.colUnits->item(id)->img_index, 2);
    EXPECT_FALSE(main.imgUnit.has(2) || main.shpUnit.has(2));
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
    EXPECT_EQ(campaign.colUnits->item("{A}")->symbol, "\\data\\forces\\blank.gif");
    EXPECT_TRUE(main.imgUnit(1).visible);
}
