#include "operations/artillery_pieces.h"

#include "tests/support/program_test.h"

#include <type_traits>

// What an entry says of a kind of element is settled when the entry is listed, so the list's version tells of
// every change of the catalogue.
static_assert(std::is_same_v<decltype(Campaign::colForceElements), CollectionRef<const oForceElements>>);
static_assert(std::is_same_v<decltype(oUnitForceElements::Index), Counted<std::int16_t, HoldingChanges>>);

namespace {

class AllArtilleryPieces : public ProgramTest {
  protected:
    AllArtilleryPieces() {
        add_entry(1, infantry);
        add_entry(2, guns);
        add_entry(3, guns);
    }

    void add_entry(int number, std::int16_t force_type) {
        oForceElements entry;
        entry.force_type = force_type;
        entry.description = std::to_string(number);
        program.campaign.colForceElements->add(std::make_shared<oForceElements>(entry),
                                               " " + std::to_string(number));
    }

    static std::shared_ptr<oUnitForceElements> add_element(const oUnits& unit, std::int16_t index) {
        auto element = std::make_shared<oUnitForceElements>();
        element->ID = "{F" + std::to_string(unit.force_elements.count()) + "}";
        element->Index = index;
        unit.force_elements->add(element, element->ID);
        return element;
    }

    static void add_elements(const oUnits& unit, std::initializer_list<std::int16_t> indices) {
        for (const std::int16_t index : indices) add_element(unit, index);
    }

    /// Each as its unit and its number in the catalogue.
    std::string pieces() {
        std::string all;
        for (const ArtilleryPieces::Piece& piece : all_artillery_pieces(program).pieces)
            all += piece.unit->ID + piece.entry->description + " ";
        return all;
    }

    static constexpr std::int16_t infantry = 0;
    static constexpr std::int16_t guns = 4;
};

} // namespace

TEST_F(AllArtilleryPieces, StandsInTheOrderOfTheUnitsAndOfTheirElements) {
    const auto first = add_unit("a");
    const auto second = add_unit("b");
    add_element(*second, 2);
    add_elements(*first, {3, 1, 2, 999});
    add_unit("c");
    EXPECT_EQ(pieces(), "a3 a2 b2 ");
    EXPECT_EQ(all_artillery_pieces(program).pieces.at(1).element, first->force_elements->at(3).get());
    EXPECT_EQ(all_artillery_pieces(program).failure, 0);
}

TEST_F(AllArtilleryPieces, FollowsWhatAUnitHolds) {
    const auto unit = add_unit("a");
    EXPECT_EQ(pieces(), "");
    const auto element = add_element(*unit, 2);
    EXPECT_EQ(pieces(), "a2 ") << "added";
    element->Index = 3;
    EXPECT_EQ(pieces(), "a3 ") << "of another kind now";
    unit->force_elements->remove(element->ID);
    EXPECT_EQ(pieces(), "") << "removed";
    add_element(*unit, 2);
    EXPECT_EQ(pieces(), "a2 ");
    unit->force_elements.drop();
    EXPECT_EQ(pieces(), "") << "dropped";
    const auto other = add_unit("b");
    add_element(*other, 3);
    EXPECT_EQ(pieces(), "b3 ");
    unit->force_elements = other->force_elements;
    EXPECT_EQ(pieces(), "a3 b3 ") << "shared";
}

TEST_F(AllArtilleryPieces, AreLookedUpOnceAsLongAsNothingChanges) {
    const auto unit = add_unit("a");
    const auto element = add_element(*unit, 2);
    const auto* const found = all_artillery_pieces(program).pieces.data();
    element->FireFanAngle = 90;
    unit->xcoord = 100;
    EXPECT_EQ(all_artillery_pieces(program).pieces.data(), found);
}

TEST_F(AllArtilleryPieces, FollowsTheListOfUnits) {
    add_element(*add_unit("a"), 2);
    EXPECT_EQ(pieces(), "a2 ");
    const auto late = std::make_shared<oUnits>();
    late->ID = "b";
    add_element(*late, 3);
    EXPECT_EQ(pieces(), "a2 ") << "in no list yet";
    program.campaign.colUnits->add(late, late->ID);
    EXPECT_EQ(pieces(), "a2 b3 ");
    program.campaign.colUnits->remove("a");
    EXPECT_EQ(pieces(), "b3 ");
    program.campaign.colUnits.drop();
    EXPECT_EQ(pieces(), "");
}

TEST_F(AllArtilleryPieces, FollowsTheCatalogue) {
    add_element(*add_unit("a"), 4);
    EXPECT_EQ(all_artillery_pieces(program).failure, 5);
    add_entry(4, guns);
    EXPECT_EQ(pieces(), "a4 ");
    EXPECT_EQ(all_artillery_pieces(program).failure, 0);
    program.campaign.colForceElements.drop();
    add_entry(4, infantry);
    EXPECT_EQ(pieces(), "");
}

TEST_F(AllArtilleryPieces, OfAUnitWithAnElementThatTheCatalogueLacksIsWhatStandsBeforeThat) {
    const auto lacking = add_unit("a");
    add_elements(*lacking, {2, 77, 3});
    add_element(*add_unit("b"), 3);
    EXPECT_EQ(pieces(), "a2 b3 ");
    EXPECT_EQ(all_artillery_pieces(program).failure, 5);
    const ArtilleryPieces own = artillery_pieces_of(program, *lacking);
    ASSERT_EQ(own.pieces.size(), 1U);
    EXPECT_EQ(own.pieces[0].entry->description, "2");
    EXPECT_EQ(own.failure, 5);
}
