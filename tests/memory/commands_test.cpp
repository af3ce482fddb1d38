#include "persistence/main_file_reader.h"
#include "persistence/main_file_writer.h"
#include "tests/memory/scarce_memory.h"
#include "tests/support/map_test.h"

namespace {

using Told = std::vector<std::string>;

/// A program for each attempt, with what it needs to load and save a campaign.
struct Desk : MapTest {
    void TestBody() override {}

    using MapTest::path;

    Desk() {
        platform.contents["file"] = campaign_file();
        platform.log.reserve(100); // what tests log is not to fail
    }

    void choose(const std::string& file) { platform.chosen_files = {file}; }
    void load() { cmdLoad_Click(program); }
    void save() { cmdSave_Click(program); }

    void load_campaign() {
        choose("file");
        load();
    }
    std::string saved() {
        choose(path("saved.tvn"));
        save();
        return file_bytes("saved.tvn");
    }

    static const std::string& campaign_file() {
        static const std::string bytes = [] {
            std::ostringstream all;
            all << std::ifstream(TEST_DATA "/campaigns/tag 1.0.tvn", std::ios::binary).rdbuf();
            return all.str();
        }();
        return bytes;
    }

    void expect_sound_state() {
        for (const auto& unit : campaign.colUnits)
            EXPECT_EQ(campaign.colUnits->find(unit->ID), unit) << "the key is the ID";
        for (int i = 1; i < campaign.gNextUnitIndex; ++i)
            EXPECT_NE(main.imgUnit(i).tag, "") << "each index handed out is a unit's";
    }

    Told texts() const { return platform.texts(); }
    void forget_messages() { platform.messages.clear(); }
};

/// An HQ with a subordinate and an element, and a unit beside them.
struct PressInScarceMemory : MapTest {
    PressInScarceMemory() {
        headquarters = add_marked("{1}", 300, 300);
        add_child(*headquarters, "{2}");
        add_unit("{2}", "{1}");
        auto element = std::make_shared<oUnitForceElements>();
        element->Index = 999;
        element->free_text = "mules";
        headquarters->force_elements->add(element, "{F}");
        other = add_marked("{3}", 600, 600);
    }

    std::shared_ptr<oUnits> headquarters;
    std::shared_ptr<oUnits> other;
};

} // namespace

TEST(CommandsInScarceMemory, LoadEndsInAMessageOrIsWhole) {
    Desk first;
    first.load_campaign();
    const std::string whole = first.saved();
    ASSERT_EQ(first.texts(), Told{});
    try_with_scarce_memory([&](auto scarcely) {
        Desk desk;
        desk.choose("file");
        EXPECT_EQ(scarcely([&] { desk.load(); }), 0);
        desk.expect_sound_state();
        if (desk.texts().empty()) {
            EXPECT_EQ(desk.saved(), whole);
        } else {
            EXPECT_THAT(desk.texts(), testing::Each(testing::StartsWith("Error 7 when ")));
        }
    });
}

TEST(CommandsInScarceMemory, SaveEndsInItsMessageAndTheNextOneIsWhole) {
    Desk desk;
    desk.load_campaign();
    const std::string whole = desk.saved();
    const std::string saving_to = desk.path("another.tvn");
    try_with_scarce_memory([&](auto scarcely) {
        desk.forget_messages();
        desk.choose(saving_to);
        EXPECT_EQ(scarcely([&] { desk.save(); }), 0);
        EXPECT_THAT(desk.texts(), testing::Each(testing::StartsWith("Error 7 when ")));
        EXPECT_LE(desk.texts().size(), 1U);
        EXPECT_EQ(desk.saved(), whole);
    });
}

TEST_F(PressInScarceMemory, EndsInAMessageAndTheNextOneShowsTheUnit) {
    press_unit(*headquarters);
    const ListBox subordinates = main.lstUIchildunits;
    const ListBox elements = main.lstUIfe;
    ASSERT_EQ(subordinates.rows.size() + elements.rows.size(), 2U);
    try_with_scarce_memory([&](auto scarcely) {
        press_unit(*other);
        platform.messages.clear();
        EXPECT_EQ(scarcely([&] { press_unit(*headquarters); }), 0);
        EXPECT_THAT(platform.texts(), testing::Each(testing::StartsWith("Error 7 when ")));
        EXPECT_LE(platform.messages.size(), 1U);
        press_unit(*headquarters);
        EXPECT_EQ(main.lstUIchildunits.rows, subordinates.rows);
        EXPECT_EQ(main.lstUIfe.rows, elements.rows);
        EXPECT_EQ(campaign.curUnit, headquarters);
        EXPECT_EQ(selected(), 1U);
    });
}
