// The rooms of the program and the direction of their includes, read from the sources themselves.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path root = SOURCE_DIR;

// From the bottom up: a room includes itself and those before it.
const std::vector<std::string> rooms{"core",       "widgets", "mapview", "persistence", "annotation",
                                     "operations", "forces",  "program", "platform"};

std::size_t floor_of(const std::string& room) {
    return static_cast<std::size_t>(std::find(rooms.begin(), rooms.end(), room) - rooms.begin());
}

struct Include {
    fs::path file;
    std::string target; // as written
    bool quoted;
};

std::vector<Include> includes() {
    std::vector<Include> found;
    for (const std::string& room : rooms) {
        if (!fs::exists(root / room)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / room)) {
            const auto extension = entry.path().extension();
            if (extension != ".h" && extension != ".cpp") continue;
            std::ifstream in(entry.path());
            for (std::string line; std::getline(in, line);) {
                if (!line.starts_with("#include ")) continue;
                const bool quoted = line[9] == '"';
                const std::size_t end = line.find(quoted ? '"' : '>', 10);
                found.push_back({fs::relative(entry.path(), root), line.substr(10, end - 10), quoted});
            }
        }
    }
    return found;
}

std::string room_of(const fs::path& path) { return path.begin()->string(); }

bool is_window_file(const fs::path& path) {
    const std::string room = room_of(path);
    return path.stem().string().ends_with("_window") || room == "widgets" || room == "platform";
}

} // namespace

TEST(Arrows, PointFromHigherRoomsToLowerOnesOnly) {
    const auto all = includes();
    ASSERT_GT(all.size(), 100U);
    for (const Include& include : all)
        if (include.quoted)
            EXPECT_LE(floor_of(room_of(include.target)), floor_of(room_of(include.file)))
                << include.file << " includes " << include.target;
}

TEST(Arrows, EveryOwnIncludeNamesItsRoom) {
    for (const Include& include : includes())
        if (include.quoted)
            EXPECT_TRUE(fs::exists(root / include.target)) << include.file << ": " << include.target;
}

TEST(Arrows, RulesSeeNoWindowSystem) {
    for (const Include& include : includes()) {
        if (is_window_file(include.file)) continue;
        EXPECT_FALSE(!include.quoted && include.target.front() == 'Q')
            << include.file << ": " << include.target;
        EXPECT_FALSE(include.quoted && is_window_file(include.target))
            << include.file << ": " << include.target;
    }
}

TEST(Sources, AskNeitherEnvironmentNorSettings) {
    const std::vector<std::string> askers{"getenv(", "qEnvironmentVariable", "QSettings",
                                          "QProcessEnvironment", "argc"};
    for (const std::string& room : rooms) {
        if (!fs::exists(root / room)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / room)) {
            if (!entry.is_regular_file() || entry.path().filename() == "main.cpp") continue;
            std::ifstream in(entry.path());
            const std::string text(std::istreambuf_iterator<char>(in), {});
            for (const std::string& asker : askers)
                EXPECT_EQ(text.find(asker), std::string::npos) << entry.path() << ": " << asker;
        }
    }
    std::ifstream in(root / "platform" / "main.cpp");
    const std::string text(std::istreambuf_iterator<char>(in), {});
    EXPECT_NE(text.find("int main(int /*argc*/, char** argv)"), std::string::npos);
    EXPECT_NE(text.find("QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, \"/dev/null\")"),
              std::string::npos);
    EXPECT_EQ(text.find("argv["), std::string::npos);
}
