#include "core/catalogue.h"
#include "core/files.h"
#include "core/hierarchy.h"
#include "core/reference_files.h"
#include "mapview/unit_info.h"
#include "persistence/main_file_reader.h"
#include "persistence/main_file_writer.h"
#include "persistence/unit_list.h"
#include "tests/support/program_test.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace {

const std::string source = SOURCE_DIR;

/// The program with the data that it is shipped with.
class DataSet : public ProgramTest {
  protected:
    DataSet() {
        program.campaign.gAppPath = source;
        program.main.picMap.width = 5468;
        program.main.picMap.height = 6102;
    }

    static bool is_clean(const std::string& text, std::size_t longest) {
        return text.size() <= longest && text.find('"') == std::string::npos &&
               text.find(std::string(10, ' ')) == std::string::npos && text.find(" - ") == std::string::npos;
    }

    static std::vector<std::string> files_in(const std::string& ending) {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(source + "/campaigns"))
            if (entry.path().extension() == ending) found.push_back(entry.path().string());
        std::sort(found.begin(), found.end());
        return found;
    }

    static std::string bytes_of(const std::string& file) {
        std::ostringstream bytes;
        bytes << std::ifstream(file, std::ios::binary).rdbuf();
        return bytes.str();
    }

    /// Every unit with its picture, its element in the catalogue, and its place on the map.
    void expect_sound_units() const {
        for (const auto& unit : program.campaign.colUnits) {
            EXPECT_TRUE(files::exists(files::reference_path(source + unit->symbol))) << unit->symbol;
            EXPECT_TRUE(unit->xcoord >= 0 && unit->xcoord < 5468 && unit->ycoord >= 0 && unit->ycoord < 6102);
            for (const auto& element : unit->force_elements)
                EXPECT_NO_THROW(catalogue_entry(program, *element)) << element->Index;
        }
    }
};

} // namespace

TEST_F(DataSet, CatalogueIsNumberedByItsRowsAndWithinItsLimits) {
    load_force_elements(program);
    const auto& catalogue = *program.campaign.colForceElements;
    ASSERT_EQ(catalogue.count(), 257U);
    EXPECT_TRUE(platform.messages.empty());
    std::set<std::pair<int, std::string>> seen;
    int row = 0;
    int allied = 0;
    for (const auto& entry : catalogue) {
        EXPECT_EQ(entry->ID, ++row);
        EXPECT_TRUE(is_clean(entry->description, 36)) << entry->description;
        EXPECT_TRUE(seen.insert({entry->affiliation, entry->description}).second) << entry->description;
        EXPECT_TRUE(entry->force_type >= 0 && entry->force_type <= 6);
        EXPECT_TRUE(0 <= entry->min_range && entry->min_range <= entry->max_range);
        EXPECT_TRUE(entry->rof >= 0 && entry->max_ammo >= 0);
        EXPECT_TRUE(!entry->firefan || entry->force_type == 4) << entry->description;
        allied += entry->affiliation == 0 ? 1 : 0;
    }
    EXPECT_EQ(allied, 89);
}

TEST_F(DataSet, TownsAreSortedAndLieOnTheMap) {
    load_towns(program);
    ASSERT_EQ(program.campaign.colTowns.count(), 60U);
    std::string last;
    for (const auto& town : program.campaign.colTowns) {
        EXPECT_LT(last, town->axis_name);
        last = town->axis_name;
        ASSERT_EQ(town->xcoord.size() + town->ycoord.size(), 8U);
        const double x = std::stod(town->xcoord) * 1.5;
        const double y = (4000 - std::stod(town->ycoord)) * 1.5 + 102;
        EXPECT_TRUE(x >= 0 && x < 5468 && y >= 0 && y < 6102) << town->axis_name;
        EXPECT_GT(town->population, 0);
        EXPECT_FALSE(town->allied_name.empty());
        EXPECT_TRUE(is_clean(town->axis_name, 40) && is_clean(town->notes, 40));
    }
}

TEST_F(DataSet, RostersAreInventedPeopleWithReservedAddresses) {
    load_user_data(program);
    EXPECT_EQ(program.campaign.colGameMasters.count(), 6U);
    EXPECT_EQ(program.campaign.colRussianPlayers.count(), 8U);
    EXPECT_EQ(program.campaign.colGermanPlayers.count(), 8U);
    const auto check = [](const auto& roster) {
        for (const auto& person : *roster) {
            EXPECT_EQ(person->name.find(','), std::string::npos) << person->name;
            EXPECT_TRUE(person->email.ends_with("@example.org")) << person->email;
        }
    };
    check(program.campaign.colGameMasters);
    check(program.campaign.colRussianPlayers);
    check(program.campaign.colGermanPlayers);
}

TEST_F(DataSet, EveryTypeNameHasItsMarkerAndEveryMarkerItsEchelon) {
    load_unit_types(program);
    EXPECT_TRUE(platform.messages.empty());
    const auto& types = *program.campaign.colUnitTypes;
    EXPECT_EQ(types.count(), 168U);
    std::map<std::string, int> of_side;
    for (const auto& type : types) {
        ++of_side[type->nationality];
        EXPECT_FALSE(type->echelon.empty()) << type->unittype;
        EXPECT_TRUE(files::exists(files::reference_path(source + type->fullname))) << type->fullname;
    }
    EXPECT_EQ(of_side["Allied"], 75);
    EXPECT_EQ(of_side["Axis"], 93);
    EXPECT_TRUE(files::exists(source + "/data/forces/blank.gif"));
}

TEST_F(DataSet, CampaignsLoadWithoutAWordAndAreSavedToTheSameBytes) {
    const std::vector<std::string> campaigns = files_in(".tvn");
    ASSERT_EQ(campaigns.size(), 2U);
    for (const std::string& file : campaigns) {
        Program fresh(platform, paint_order(), tool_order());
        fresh.campaign.gAppPath = source;
        fresh.main.picMap.width = 5468;
        fresh.main.picMap.height = 6102;
        platform.chosen_files = {file};
        cmdLoad_Click(fresh);
        check_hierarchy(fresh);
        EXPECT_TRUE(platform.messages.empty()) << file << ": " << platform.texts().front();
        platform.chosen_files = {path("again.tvn")};
        cmdSave_Click(fresh);
        EXPECT_TRUE(file_bytes("again.tvn") == bytes_of(file)) << file;
        platform.messages.clear();
    }
}

TEST_F(DataSet, OperationIsWholeAndEveryHeadquartersCanBeShown) {
    load_force_elements(program);
    platform.chosen_files = {source + "/campaigns/polynya.tvn"};
    cmdLoad_Click(program);
    const Campaign& campaign = program.campaign;
    EXPECT_EQ(campaign.colUnits.count(), 1057U);
    EXPECT_GE(campaign.colLines.count(), 9U);
    EXPECT_GE(campaign.colPolygons.count(), 3U);
    EXPECT_GE(campaign.colLabels.count(), 4U);
    EXPECT_GE(campaign.colShapes.count(), 3U);
    EXPECT_EQ(campaign.colFireMissions.count(), 8U);
    expect_sound_units();
    for (const auto& unit : campaign.colUnits->items())
        if (!unit->children.empty()) show_unit_info(program, unit->ID);
    EXPECT_TRUE(platform.messages.empty()) << platform.texts().front();
}

TEST_F(DataSet, NoMarkerOfTheOperationHidesAnother) {
    platform.chosen_files = {source + "/campaigns/polynya.tvn"};
    cmdLoad_Click(program);
    const auto units = program.campaign.colUnits->items();
    for (std::size_t i = 0; i < units.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(std::abs(units[i]->xcoord - units[j]->xcoord) < 29 &&
                         std::abs(units[i]->ycoord - units[j]->ycoord) < 31)
                << units[i]->name << " and " << units[j]->name;
}

TEST_F(DataSet, SmallCampaignIsSmall) {
    load_force_elements(program);
    platform.chosen_files = {source + "/campaigns/first steps.tvn"};
    cmdLoad_Click(program);
    EXPECT_EQ(program.campaign.colUnits.count(), 41U);
    expect_sound_units();
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(DataSet, UnitListsLoadWithoutAWordAndAreSavedToTheSameBytes) {
    const std::vector<std::string> lists = files_in(".uni");
    ASSERT_EQ(lists.size(), 2U);
    for (const std::string& file : lists) {
        Program fresh(platform, paint_order(), tool_order());
        fresh.campaign.gAppPath = source;
        fresh.main.picMap.width = 5468;
        platform.chosen_files = {file};
        mnuLoadUnits_Click(fresh);
        EXPECT_TRUE(platform.messages.empty()) << file << ": " << platform.texts().front();
        platform.chosen_files = {path("again.uni")};
        mnuSaveAllUnits_Click(fresh);
        EXPECT_TRUE(file_bytes("again.uni") == bytes_of(file)) << file;
    }
}
