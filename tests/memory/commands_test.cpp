#include "persistence/main_file_reader.h"
#include "persistence/main_file_writer.h"
#include "tests/memory/scarce_memory.h"
#include "tests/support/map_test.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Told = std::vector<std::string>;

/// A program for each attempt, with what it needs to load and save a campaign.
struct Desk : MapTest {
    void TestBody() override {}

    using MapTest::file_bytes;
    using MapTest::path;

    Desk() {
        platform.contents["file"] = campaign_file();
        platform.log.reserve(100); // what tests log is not to fail
    }

    void choose(const std::string& file) { platform.chosen_files = {file}; }
    void load() { cmdLoad_Click(program); }
    void save() { cmdSave_Click(program); }

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
            EXPECT_TRUE(campaign.colUnits->contains(main.imgUnit(i).tag)) << "each marker has its unit";
    }

    void lack_its_font() {
        platform.missing_fonts = {"Arial"};
        platform.chosen_font = Font{"Times", 14, false, false, false, false};
    }
    /// The messages but for the question for a font.
    Told failures() const {
        Told all = platform.texts();
        std::erase_if(all, [](const std::string& text) { return text.find("select a font") != text.npos; });
        return all;
    }
    void forget_messages() {
        platform.messages.clear();
        platform.log.clear();
    }
};

std::ptrdiff_t open_files() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

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
    for (const bool lacks_font : {false, true}) {
        const auto prepare = [&](Desk& desk) {
            if (lacks_font) desk.lack_its_font();
            desk.choose("file");
        };
        Desk first;
        prepare(first);
        first.load();
        const std::string whole = first.saved();
        ASSERT_EQ(first.failures(), Told{});
        try_with_scarce_memory([&](auto scarcely) {
            Desk desk;
            prepare(desk);
            EXPECT_EQ(scarcely([&] { desk.load(); }), 0);
            desk.expect_sound_state();
            EXPECT_THAT(desk.failures(), testing::Each(testing::StartsWith("Error 7 when ")));
            if (desk.failures().empty()) EXPECT_EQ(desk.saved(), whole);
        });
    }
}

TEST(CommandsInScarceMemory, SaveEndsInItsMessageAndTheNextOneIsWhole) {
    const Told not_saved{"Error 7 when saving data."};
    Desk desk;
    desk.choose("file");
    desk.load();
    const std::string whole = desk.saved();
    const std::string another = desk.path("another.tvn");
    const auto files = open_files();
    try_with_scarce_memory([&](auto scarcely) {
        desk.forget_messages();
        std::filesystem::remove(another);
        desk.choose(another);
        EXPECT_EQ(scarcely([&] { desk.save(); }), 0);
        if (desk.failures() != not_saved) {
            EXPECT_EQ(desk.file_bytes("another.tvn"), whole);
            EXPECT_THAT(desk.failures(), testing::Each("Error 7 when checking HQ/Subordinate links."));
        }
        EXPECT_EQ(open_files(), files);
        EXPECT_EQ(desk.saved(), whole);
    });
}

TEST_F(PressInScarceMemory, EndsInAMessageAndTheNextOneShowsTheUnit) {
    press_unit(*headquarters);
    const ListBox subordinates = main.lstUIchildunits;
    const ListBox elements = main.lstUIfe;
    ASSERT_EQ(subordinates.rows.size() + elements.rows.size(), 2U);
    const auto expect_headquarters = [&] {
        EXPECT_EQ(main.lstUIchildunits.rows, subordinates.rows);
        EXPECT_EQ(main.lstUIfe.rows, elements.rows);
        EXPECT_EQ(campaign.curUnit, headquarters);
        EXPECT_EQ(selected(), 1U);
    };
    try_with_scarce_memory([&](auto scarcely) {
        press_unit(*other);
        platform.messages.clear();
        EXPECT_EQ(scarcely([&] { press_unit(*headquarters); }), 0);
        EXPECT_THAT(platform.texts(), testing::Each(testing::StartsWith("Error 7 when ")));
        if (platform.texts().empty()) expect_headquarters();
        press_unit(*headquarters);
        expect_headquarters();
    });
}
