#include "core/hierarchy.h"
#include "core/identity.h"
#include "tests/support/program_test.h"

using Identity = ProgramTest;

TEST_F(Identity, NewGuidIsUpperCaseInBracesAndNeverTheSame) {
    const std::string first = new_guid(platform);
    EXPECT_THAT(first, testing::MatchesRegex("\\{[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\\}"));
    EXPECT_EQ(first.size(), 38U);
    EXPECT_NE(first, new_guid(platform));
}

TEST_F(Identity, NoSourceOfChanceGivesAnEmptyGuid) {
    platform.has_chance = false;
    EXPECT_EQ(new_guid(platform), "");
}

TEST_F(Identity, EchelonsCompareByRank) {
    EXPECT_EQ(compare_echelon("Army", "Corps"), "larger");
    EXPECT_EQ(compare_echelon("Company", "Battalion"), "smaller");
    EXPECT_EQ(compare_echelon("Squad", "Squad"), "equal");
    const std::vector<const char*> ranks{"Army",    "Corps",   "Division", "Brigade", "Regiment", "Battalion",
                                         "Company", "Platoon", "Squad",    "Team",    "Battery"};
    for (std::size_t i = 1; i < ranks.size(); ++i) {
        EXPECT_EQ(compare_echelon(ranks[i - 1], ranks[i]), "larger") << ranks[i];
        EXPECT_EQ(compare_echelon(ranks[i], ranks[i - 1]), "smaller") << ranks[i];
    }
}

TEST_F(Identity, BatteryRanksBelowTeam) {
    EXPECT_EQ(compare_echelon("Team", "Battery"), "larger");
    EXPECT_EQ(compare_echelon("Battery", "Team"), "smaller");
}

TEST_F(Identity, UnknownEchelonCompareToNothing) {
    EXPECT_EQ(compare_echelon("", "Army"), std::nullopt);
    EXPECT_EQ(compare_echelon("Army", ""), std::nullopt);
    EXPECT_EQ(compare_echelon("army", "Army"), std::nullopt);
}

TEST_F(Identity, WithoutChanceTheSecondUnitEndsTheRenumbering) {
    for (const char* id : {"{1}", "{2}", "{3}"}) add_unit(id);
    platform.has_chance = false;
    assign_new_ids(program);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 457 when assigning new IDs."});
    ASSERT_EQ(program.campaign.colUnits.count(), 1U) << "the rest is lost";
    EXPECT_EQ(program.campaign.colUnits->at(1)->ID, "");
    EXPECT_TRUE(program.campaign.colUnits->contains(""));
}
