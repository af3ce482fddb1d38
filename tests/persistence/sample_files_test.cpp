// Every campaign file of tests/data/campaigns is loaded into an empty campaign. Beside it stands what must
// come of it: the messages, then the bytes of the campaign saved again.

#include "persistence/main_file_reader.h"
#include "persistence/main_file_writer.h"
#include "tests/support/program_test.h"

#include <algorithm>

namespace {

const std::filesystem::path samples = std::filesystem::path(TEST_DATA) / "campaigns";

std::string bytes_of(const std::filesystem::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

std::vector<std::string> sample_names() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(samples))
        if (entry.path().extension() == ".tvn") names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string test_name(std::string name) {
    for (char& c : name)
        if (std::isalnum(static_cast<unsigned char>(c)) == 0) c = '_';
    return name;
}

class SampleFile : public ProgramTest, public testing::WithParamInterface<std::string> {
  protected:
    void load(const std::string& bytes) {
        platform.contents["file"] = bytes;
        platform.chosen_files = {"file"};
        cmdLoad_Click(program);
    }

    std::string saved_again() {
        platform.chosen_files = {path("again.tvn")};
        cmdSave_Click(program);
        return file_bytes("again.tvn");
    }

    std::string told_messages() const {
        std::string all;
        for (std::string text : platform.texts()) {
            for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos;)
                text.replace(at, 1, "\\n");
            all += "> " + text + "\n";
        }
        return all;
    }
};

class SampleDamage : public SampleFile {
  protected:
    /// The program must go on: a message at the most, the pointer normal, every control's tag leading to its
    /// record. Only renumbering units whose links are broken may lose some of them.
    void expect_usable_program(const Program& loaded) {
        EXPECT_FALSE(platform.waiting);
        EXPECT_FALSE(platform.exit_code.has_value());
        for (int i = 1; i < loaded.campaign.gNextLabelIndex; ++i)
            EXPECT_TRUE(loaded.campaign.colLabels->contains(loaded.main.lblUser(i).tag));
        const auto texts = platform.texts();
        if (std::find(texts.begin(), texts.end(), "Error 5 when assigning new IDs.") != texts.end()) return;
        for (int i = 1; i < loaded.campaign.gNextUnitIndex; ++i)
            EXPECT_TRUE(loaded.campaign.colUnits->contains(loaded.main.imgUnit(i).tag));
    }
};

} // namespace

TEST_P(SampleFile, GivesTheCampaignThatStandsBesideIt) {
    load(bytes_of(samples / (GetParam() + ".tvn")));
    const std::string messages = told_messages();
    EXPECT_EQ(messages + "\n" + saved_again(), bytes_of(samples / (GetParam() + ".expected")));
}

INSTANTIATE_TEST_SUITE_P(Samples, SampleFile, testing::ValuesIn(sample_names()),
                         [](const auto& test) { return test_name(test.param); });

TEST_P(SampleDamage, EveryPrefixEndsInAMessageAndAUsableProgram) {
    const std::string whole = bytes_of(samples / (GetParam() + ".tvn"));
    for (std::size_t length = 0; length < whole.size(); length += length < 400 ? 1 : 3) {
        Program fresh(platform, paint_order());
        fresh.main.picMap.width = 5376;
        platform.messages.clear();
        platform.contents["file"] = whole.substr(0, length);
        platform.chosen_files = {"file"};
        cmdLoad_Click(fresh);
        EXPECT_FALSE(platform.waiting);
        EXPECT_EQ(fresh.campaign.colUnits.count() + 1,
                  static_cast<std::size_t>(fresh.campaign.gNextUnitIndex));
        EXPECT_TRUE(length >= 40 || !platform.messages.empty()) << length;
    }
}

TEST_P(SampleDamage, FlippedBytesEndInAUsableProgram) {
    const std::string whole = bytes_of(samples / (GetParam() + ".tvn"));
    std::uint32_t seed = 25111942;
    const auto next = [&seed] { return seed = seed * 1664525U + 1013904223U, seed >> 8; };
    for (int round = 0; round < 300 && !whole.empty(); ++round) {
        std::string damaged = whole;
        for (int flips = 0; flips < 3; ++flips) damaged[next() % damaged.size()] = static_cast<char>(next());
        Program fresh(platform, paint_order());
        fresh.main.picMap.width = 5376;
        platform.messages.clear();
        platform.contents["file"] = damaged;
        platform.chosen_files = {"file"};
        cmdLoad_Click(fresh);
        expect_usable_program(fresh);
    }
}

INSTANTIATE_TEST_SUITE_P(Samples, SampleDamage,
                         testing::Values("tag 1.0", "tag beta 4", "tag beta 5",
                                         "duplicate IDs of every kind"),
                         [](const auto& test) { return test_name(test.param); });

TEST_F(ProgramTest, EveryKnownTagHasASample) {
    const auto names = sample_names();
    for (const char* tag :
         {"1.0", "beta 4", "beta 4.1", "beta 5", "beta 6", "6", "beta 7.1", "beta 8", "beta 8.1", "beta 2.1"})
        EXPECT_NE(std::find(names.begin(), names.end(), std::string("tag ") + tag), names.end()) << tag;
}
