#include "core/hierarchy.h"

#include "mapview/unit_marker.h"
#include "tests/support/program_test.h"

namespace {

class Hierarchy : public ProgramTest {
  protected:
    std::string children(const oUnits& unit) const {
        std::string all;
        for (const auto& child : unit.children) all += child->ID;
        return all;
    }

    std::shared_ptr<oUnits> add_marked_unit(const std::string& id, const std::string& parent = "") {
        auto unit = add_unit(id, parent);
        unit->img_index = program.campaign.gNextUnitIndex;
        make_unit_marker(program, *unit);
        return unit;
    }

    /// Every link stands both ways and every tag leads to its unit.
    void expect_links_in_step() {
        for (const auto& unit : *program.campaign.colUnits) {
            EXPECT_EQ(program.campaign.colUnits->find(unit->ID), unit);
            if (!unit->parent_ID.empty()) {
                const auto parent = program.campaign.colUnits->find(unit->parent_ID);
                ASSERT_NE(parent, nullptr);
                EXPECT_TRUE(parent->children->contains(unit->ID));
            }
            for (const auto& child : unit->children)
                EXPECT_EQ(program.campaign.colUnits->item(child->ID)->parent_ID, unit->ID);
        }
    }
};

} // namespace

TEST_F(Hierarchy, CleanCampaignShowsNothingAndKeepsStaleNames) {
    const auto hq = add_unit("H");
    const auto child = add_unit("a", "H");
    child->parent_name = "old name";
    add_child(*hq, "a");
    check_hierarchy(program);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(child->parent_name, "old name");
}

TEST_F(Hierarchy, EntriesOfMissingUnitsGoSilentlyAlsoNeighbours) {
    const auto hq = add_unit("H");
    add_child(*hq, "x");
    add_child(*hq, "y");
    check_hierarchy(program);
    EXPECT_TRUE(hq->children.empty());
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Hierarchy, NamedChildWithoutParentGetsThatParentAndItsName) {
    const auto hq = add_unit("H");
    const auto child = add_unit("a");
    add_child(*hq, "a");
    check_hierarchy(program);
    EXPECT_EQ(child->parent_ID, "H");
    EXPECT_EQ(child->parent_name, "unit H");
    EXPECT_EQ(platform.texts(),
              std::vector<std::string>{"Found and fixed a total of 1 errors in the unit hierarchy."});
    EXPECT_EQ(platform.messages[0].title, "Tolvane ][");
}

TEST_F(Hierarchy, ChildOfTwoStaysWithTheOneItNames) {
    const auto first = add_unit("H");
    const auto second = add_unit("K");
    add_unit("a", "K");
    add_child(*first, "a");
    add_child(*second, "a");
    check_hierarchy(program);
    EXPECT_TRUE(first->children.empty());
    EXPECT_EQ(children(*second), "a");
    EXPECT_EQ(platform.texts()[0], "Found and fixed a total of 1 errors in the unit hierarchy.");
}

TEST_F(Hierarchy, OrphanNamedByTwoStaysWithTheFirstAndCountsTwo) {
    const auto first = add_unit("H");
    const auto second = add_unit("K");
    const auto orphan = add_unit("a");
    add_child(*first, "a");
    add_child(*second, "a");
    check_hierarchy(program);
    EXPECT_EQ(orphan->parent_ID, "H");
    EXPECT_TRUE(second->children.empty());
    EXPECT_EQ(platform.texts()[0], "Found and fixed a total of 2 errors in the unit hierarchy.");
}

TEST_F(Hierarchy, ParentThatIsGoneIsForgottenSilentlyAndItsNameKept) {
    const auto unit = add_unit("a", "gone");
    unit->parent_name = "Gone HQ";
    check_hierarchy(program);
    EXPECT_EQ(unit->parent_ID, "");
    EXPECT_EQ(unit->parent_name, "Gone HQ");
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Hierarchy, DownwardLinksOfAllUnitsAreRepairedBeforeUpwardOnes) {
    const auto child = add_unit("a", "gone");
    const auto hq = add_unit("H");
    add_child(*hq, "a");
    child->parent_name = "Gone HQ";
    check_hierarchy(program);
    EXPECT_TRUE(hq->children.empty()) << "the child still named another";
    EXPECT_EQ(child->parent_ID, "");
    EXPECT_EQ(child->parent_name, "Gone HQ");
    EXPECT_EQ(platform.texts()[0], "Found and fixed a total of 1 errors in the unit hierarchy.");
}

TEST_F(Hierarchy, EntryThatIsTakenOutLeavesTheNameOfItsUnitsHq) {
    const auto first = add_unit("H");
    add_unit("K");
    const auto child = add_unit("a", "K");
    child->parent_name = "stale";
    add_child(*first, "a");
    check_hierarchy(program);
    EXPECT_EQ(child->parent_name, "stale");
}

TEST_F(Hierarchy, MenuRepairsLinksBeforeItRenumbers) {
    const auto hq = add_marked_unit("H");
    const auto child = add_marked_unit("a", "H");
    child->parent_name = "stale";
    mnuChangeUnitID_Click(program);
    EXPECT_EQ(platform.texts()[0], "Found and fixed a total of 1 errors in the unit hierarchy.");
    expect_links_in_step();
    EXPECT_EQ(hq->children->at(1)->name, "unit a") << "renumbering leaves the names of entries";
    EXPECT_EQ(child->parent_name, "stale");
}

TEST_F(Hierarchy, RenumberingThreeLevelsChildFirst) {
    const auto grandchild = add_marked_unit("c", "b");
    const auto child = add_marked_unit("b", "a");
    const auto hq = add_marked_unit("a");
    add_child(*hq, "b");
    add_child(*child, "c");
    mnuChangeUnitID_Click(program);
    expect_links_in_step();
    EXPECT_EQ(grandchild->parent_ID, child->ID);
    EXPECT_EQ(child->parent_ID, hq->ID);
}

TEST_F(Hierarchy, UpwardLinkAloneIsAddedAtTheEnd) {
    const auto hq = add_unit("H");
    add_unit("a", "H");
    const auto late = add_unit("b", "H");
    add_child(*hq, "a");
    check_hierarchy(program);
    EXPECT_EQ(children(*hq), "ab");
    EXPECT_EQ(hq->children->item("b")->name, "unit b");
    EXPECT_EQ(late->parent_name, "");
    EXPECT_EQ(platform.texts()[0], "Found and fixed a total of 1 errors in the unit hierarchy.");
}

TEST_F(Hierarchy, UnitNamedAsItsOwnChildBecomesItsOwnHeadquarters) {
    const auto unit = add_unit("a");
    add_child(*unit, "a");
    check_hierarchy(program);
    EXPECT_EQ(unit->parent_ID, "a");
    mnuChangeUnitID_Click(program);
    EXPECT_EQ(unit->parent_ID, unit->ID);
    EXPECT_NE(unit->ID, "a");
}

TEST_F(Hierarchy, MenuCheckRunsOnce) {
    add_unit("H");
    add_unit("a", "H");
    mnuCheckHQSub_Click(program);
    EXPECT_EQ(platform.messages.size(), 1U);
    mnuCheckHQSub_Click(program);
    EXPECT_EQ(platform.messages.size(), 1U);
}

TEST_F(Hierarchy, RenumberingKeepsLinksWhicheverComesFirst) {
    const auto child_first = add_marked_unit("a", "H");
    const auto hq = add_marked_unit("H");
    const auto child_last = add_marked_unit("b", "H");
    add_child(*hq, "a");
    add_child(*hq, "b");
    mnuChangeUnitID_Click(program);
    EXPECT_TRUE(platform.messages.empty());
    expect_links_in_step();
    EXPECT_EQ(children(*hq), child_first->ID + child_last->ID);
    EXPECT_EQ(program.main.imgUnit(2).tag, hq->ID);
    EXPECT_EQ(program.main.shpUnit(2).tag, "H");
}

TEST_F(Hierarchy, RenumberingATwelveLevelTreeKeepsAllLinks) {
    for (int i = 0; i < 12; ++i) {
        add_marked_unit("u" + std::to_string(i), i == 0 ? "" : "u" + std::to_string(i - 1));
    }
    check_hierarchy(program);
    mnuChangeUnitID_Click(program);
    EXPECT_EQ(program.campaign.colUnits.count(), 12U);
    expect_links_in_step();
}

TEST_F(Hierarchy, RenumberingPutsEntriesInTheOrderOfUnits) {
    const auto hq = add_unit("H");
    const auto a = add_unit("a", "H");
    const auto b = add_unit("b", "H");
    const auto c = add_unit("c", "H");
    for (const char* id : {"c", "a", "b"}) add_child(*hq, id);
    assign_new_ids(program);
    EXPECT_EQ(children(*hq), a->ID + b->ID + c->ID);
}

TEST_F(Hierarchy, RenumberingLeavesSelectionKeysAndMissionsAlone) {
    const auto unit = add_unit("a");
    program.campaign.colSelectedUnits->add(unit, "a");
    auto mission = std::make_shared<oFireMission>();
    mission->assigned_to = "a";
    program.campaign.colFireMissions->add(mission, "m");
    mnuChangeUnitID_Click(program);
    EXPECT_EQ(program.campaign.colSelectedUnits->item("a"), unit);
    EXPECT_EQ(mission->assigned_to, "a");
}

TEST_F(Hierarchy, RenumberingWithoutEntryFailsAndLosesTheUnitsNotReached) {
    add_unit("H");
    add_unit("first");
    add_unit("a", "H"); // no entry in H, and no check before
    add_unit("z");
    assign_new_ids(program);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 5 when assigning new IDs."});
    EXPECT_EQ(program.campaign.colUnits.count(), 3U); // the failing one included
}

TEST_F(Hierarchy, RenumberingWithAnEntryOfAMissingUnitFailsAlike) {
    const auto hq = add_unit("H");
    add_child(*hq, "x");
    add_unit("z");
    assign_new_ids(program);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 5 when assigning new IDs."});
    EXPECT_EQ(program.campaign.colUnits.count(), 1U);
}

TEST_F(Hierarchy, SharedMarkerIndexTakesTheLastUnitsTag) {
    const auto first = add_marked_unit("a");
    const auto second = add_unit("b");
    second->img_index = first->img_index;
    const auto without_marker = add_unit("c");
    without_marker->img_index = 9;
    assign_new_ids(program);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(program.main.imgUnit(1).tag, second->ID);
}

TEST_F(Hierarchy, FailureInTheCheckIsToldAndEarlierRepairsStay) {
    const auto hq = add_unit("H");
    const auto child = add_unit("a");
    add_child(*hq, "a");
    // An entry that lies under another key than its own ID can't be taken out by it.
    hq->children->add(std::make_shared<oChildren>(oChildren{"gone", "gone"}), "other key");
    check_hierarchy(program);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 5 when checking HQ/Subordinate links."});
    EXPECT_EQ(child->parent_ID, "H");
}

TEST_F(Hierarchy, BothCommandsPaintTheMapAnewAfterSilentRepairs) {
    for (const auto command : {mnuCheckHQSub_Click, mnuChangeUnitID_Click}) {
        const auto unit = add_unit("{1}", "{gone}");
        program.main.picMap.marked = false;
        command(program);
        EXPECT_EQ(unit->parent_ID, "") << "repaired without a word";
        EXPECT_TRUE(platform.messages.empty());
        EXPECT_TRUE(program.main.picMap.marked);
        program.campaign.colUnits.drop();
    }
}
