#include "core/files.h"

#include "core/code_page.h"

#include "tests/support/program_test.h"

#include <sys/stat.h>
#include <unistd.h>

using Files = ProgramTest;

TEST_F(Files, BackslashesAndLetterCaseFindTheFile) {
    write_file("Data/Forces/Foo.GIF", "x");
    EXPECT_TRUE(files::exists(files::reference_path(folder + "\\data\\forces\\foo.gif")));
    EXPECT_EQ(files::read(files::reference_path(folder + "\\DATA\\forces\\FOO.gif")), "x");
}

TEST_F(Files, PathThatTheUserChoseIsTakenAsItStands) {
    write_file("plan.tvn", "kept");
    write_file("a\\b.tvn", "backslash");
    auto out = files::open_for_output(path("Plan.tvn"));
    out->write("new");
    out->close();
    EXPECT_EQ(file_bytes("plan.tvn"), "kept");
    EXPECT_EQ(files::read(path("a\\b.tvn")), "backslash");
}

TEST_F(Files, NamesBeyondAsciiAreUtf8OnTheDiskAndOneByteInTheProgram) {
    write_file("J\xC3\xA4ger Company.gif", "x");
    EXPECT_EQ(files::list(folder, ".gif"), std::vector<std::string>{"J\xE4ger Company.gif"});
    EXPECT_EQ(files::read(files::reference_path(folder + "\\J\xE4ger Company.gif")), "x");
    EXPECT_EQ(files::read(files::reference_path(folder + "\\J\xC4GER company.gif")), "x");
    EXPECT_EQ(files::from_disk_name("\xE2\x82\xAC\xD0\x96\xFFx"), "\x80?\xFFx");
    EXPECT_EQ(files::from_disk_name(files::to_disk_name("\x80\xE4z")), "\x80\xE4z");
}

TEST_F(Files, NamesThatAreNoUtf8AreKeptByteForByte) {
    for (const char* name :
         {"J\xE4ger Company.gif", "x\xE4.gif", "\xFFxyz.gif", "\xC0\xAFx.gif", "a\xE2\x82"}) {
        EXPECT_EQ(files::from_disk_name(name), name);
        write_file(name, "");
        EXPECT_EQ(files::list(folder, "").size(), 1U) << name;
        std::filesystem::remove(path(name));
    }
}

TEST_F(Files, AllMarkedLettersMatchWithoutCase) {
    EXPECT_EQ(lower_case("\x8A\x8C\x8E\x9F\xC4\xD7\xDE"), "\x9A\x9C\x9E\xFF\xE4\xD7\xFE");
}

TEST_F(Files, ListPassesOverDirectories) {
    write_file("folder.gif/inside.txt", "");
    EXPECT_TRUE(files::list(folder, ".gif").empty());
}

TEST_F(Files, WhatIsNoFileCantBeRead) {
    EXPECT_EQ(number_of([&] { files::read("/dev/zero"); }), 75);
}

TEST_F(Files, WhatWasWrittenBeforeAFailureElsewhereIsInTheFile) {
    EXPECT_EQ(number_of([&] {
                  auto out = files::open_for_output(path("out.txt"));
                  out->write("first line");
                  throw Failure{9};
              }),
              9);
    EXPECT_EQ(file_bytes("out.txt"), "first line");
}

TEST_F(Files, ExactMatchComesBeforeOneWithoutCase) {
    write_file("foo.txt", "lower");
    write_file("FOO.txt", "upper");
    EXPECT_EQ(files::read(files::reference_path(path("FOO.txt"))), "upper");
    EXPECT_EQ(files::read(files::reference_path(path("foo.txt"))), "lower");
}

TEST_F(Files, MissingFileOrFolderFailsWith53AndAFolderWith75) {
    EXPECT_EQ(number_of([&] { files::read(path("none.txt")); }), 53);
    EXPECT_EQ(number_of([&] { files::read(path("none/none.txt")); }), 53);
    EXPECT_EQ(number_of([&] { files::read(folder); }), 75);
}

TEST_F(Files, ListIsInOrderOfNameWithoutCase) {
    for (const char* name : {"b.gif", "A.GIF", "c.txt", "a.gif"}) write_file(name, "");
    EXPECT_EQ(files::list(folder, ".gif"), (std::vector<std::string>{"A.GIF", "a.gif", "b.gif"}));
    EXPECT_TRUE(files::list(path("none"), ".gif").empty());
}

TEST_F(Files, OpeningForOutputEmptiesTheFile) {
    write_file("out.txt", "before");
    auto out = files::open_for_output(path("out.txt"));
    EXPECT_EQ(file_bytes("out.txt"), "");
    out->write("after");
    out->close();
    EXPECT_EQ(file_bytes("out.txt"), "after");
}

TEST_F(Files, OutputFailuresAreToldByTheirCause) {
    EXPECT_EQ(number_of([&] { files::open_for_output(path("none/out.txt")); }), 76);
    EXPECT_EQ(number_of([&] { files::open_for_output(folder); }), 75);
    EXPECT_EQ(number_of([&] {
                  auto out = files::open_for_output("/dev/full");
                  out->write("x");
                  out->close();
              }),
              61);
}

TEST_F(Files, ReadOnlyFolderFailsWith75) {
    using std::filesystem::perms;
    std::filesystem::permissions(folder, perms::owner_read | perms::owner_exec | perms::others_read |
                                             perms::others_exec);
    // The superuser may write anywhere: then the test is made as nobody.
    const bool superuser = geteuid() == 0;
    const int changed = superuser ? seteuid(65534) : 0;
    const int number = number_of([&] { files::open_for_output(path("out.txt")); });
    const int changed_back = superuser ? seteuid(0) : 0;
    std::filesystem::permissions(folder, perms::owner_all);
    EXPECT_EQ(changed + changed_back, 0);
    EXPECT_EQ(number, 75);
}

TEST_F(Files, PipeInThePlaceOfAFileIsNotWaitedFor) {
    const std::string pipe = path("pipe.tvn");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(number_of([&] { files::open_for_output(pipe); }), 75);
}
