#include "core/reference_files.h"

#include "core/trap.h"
#include "tests/support/program_test.h"

namespace {

class ReferenceFiles : public ProgramTest {
  protected:
    void add_picture(const std::string& side, const std::string& name) {
        write_file("data/forces/" + side + " forces/" + name, "GIF");
    }

    const oUnitTypes& type(const std::string& key) { return *program.campaign.colUnitTypes->item(key); }
};

} // namespace

TEST_F(ReferenceFiles, PictureBecomesAUnitType) {
    add_picture("allied", "Rifle Company.gif");
    add_picture("axis", "Panzer Battalion.GIF");
    load_unit_types(program);
    EXPECT_TRUE(platform.messages.empty());
    const oUnitTypes& rifle = type("AlliedRifle Company");
    EXPECT_EQ(rifle.unittype, "Rifle Company");
    EXPECT_EQ(rifle.echelon, "Company");
    EXPECT_EQ(rifle.nationality, "Allied");
    EXPECT_EQ(rifle.fullname, "\\data\\forces\\allied forces\\Rifle Company.gif");
    EXPECT_EQ(type("AxisPanzer Battalion").echelon, "Battalion");
}

TEST_F(ReferenceFiles, EchelonComesFromTheFirstWordOfTheListAnywhereInTheName) {
    EXPECT_EQ(echelon_of_file_name("Division of Corps.gif"), "Corps");
    EXPECT_EQ(echelon_of_file_name("Steamer.gif"), "Team");
    EXPECT_EQ(echelon_of_file_name("Squadron.gif"), "Squad");
    EXPECT_EQ(echelon_of_file_name("Teamster Battery.gif"), "Team");
    EXPECT_EQ(echelon_of_file_name("RIFLE COMPANY.gif"), "");
    EXPECT_EQ(echelon_of_file_name("Foo.gif"), "");
    EXPECT_EQ(echelon_of_file_name("army team.gif"), "Army");
    EXPECT_EQ(echelon_of_file_name("Brigade.gif"), "Brigade");
    EXPECT_EQ(echelon_of_file_name("regiment.gif"), "Regiment");
    EXPECT_EQ(echelon_of_file_name("platoon.gif"), "Platoon");
    const std::vector<std::string> order{"Army",    "Corps",   "Division", "Brigade", "Regiment", "Battalion",
                                         "Company", "Platoon", "Squad",    "Team",    "Battery"};
    for (std::size_t i = 1; i < order.size(); ++i)
        EXPECT_EQ(echelon_of_file_name(order[i] + " " + order[i - 1] + ".gif"), order[i - 1]);
    for (const std::string& word : order) {
        std::string small = word;
        small[0] = static_cast<char>(small[0] - 'A' + 'a');
        EXPECT_EQ(echelon_of_file_name("1st " + small + ".gif"), word);
    }
}

TEST_F(ReferenceFiles, SameNameOnBothSidesIsTwoTypes) {
    add_picture("allied", "Foo.gif");
    add_picture("axis", "Foo.gif");
    load_unit_types(program);
    EXPECT_EQ(program.campaign.colUnitTypes.count(), 2U);
    EXPECT_EQ(type("AlliedFoo").echelon, "");
}

TEST_F(ReferenceFiles, TypesStandInTheOrderOfTheirNames) {
    for (const char* name : {"b.gif", "C.gif", "a.gif"}) add_picture("allied", name);
    add_picture("axis", "a.gif");
    load_unit_types(program);
    EXPECT_EQ(program.campaign.colUnitTypes->at(1)->unittype, "a");
    EXPECT_EQ(program.campaign.colUnitTypes->at(2)->unittype, "b");
    EXPECT_EQ(program.campaign.colUnitTypes->at(3)->unittype, "C");
}

TEST_F(ReferenceFiles, SideWithoutPicturesIsToldAndTheOtherIsStillRead) {
    add_picture("axis", "Foo.gif");
    load_unit_types(program);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error! No Allied forces found in " + folder +
                                                         "\\data\\forces\\allied forces\\"});
    EXPECT_EQ(platform.messages[0].title, "Tolvane ][");
    EXPECT_EQ(program.campaign.colUnitTypes.count(), 1U);
}

TEST_F(ReferenceFiles, BothSidesWithoutPicturesAreToldInOrder) {
    load_unit_types(program);
    ASSERT_EQ(platform.messages.size(), 2U);
    EXPECT_EQ(platform.texts()[1],
              "Error! No Axis forces found in " + folder + "\\data\\forces\\axis forces\\");
}

TEST_F(ReferenceFiles, FailureWhileReadingTypesIsTold) {
    add_picture("allied", "Foo.gif");
    add_picture("allied", "Foo.GIF"); // the same type twice
    load_unit_types(program);
    add_picture("axis", "Bar.gif");
    platform.messages.clear();
    program.campaign.colUnitTypes.drop();
    load_unit_types(program);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 457 while loading unit-types."});
    EXPECT_FALSE(program.campaign.colUnitTypes->contains("AxisBar")) << "the step ends";
}

TEST_F(ReferenceFiles, FolderThatCantBeReadIsTold) {
    std::filesystem::create_directories(path("data/forces"));
    std::filesystem::create_symlink("allied forces", path("data/forces/allied forces")); // leads to itself
    load_unit_types(program);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 75 while loading unit-types."});
}

TEST_F(ReferenceFiles, CatalogueKeysAreNumbersWithALeadingBlank) {
    write_file("data/forces/elements.txt", "1,0,0,\"Rifle squad\",#FALSE#,0,600,80,1200\r\n"
                                           "2,1,4,\"Howitzer, light\",#TRUE#,100,10000,6,60\r\n");
    load_force_elements(program);
    EXPECT_TRUE(platform.messages.empty());
    const oForceElements& gun = *program.campaign.colForceElements->item(" 2");
    EXPECT_EQ(gun.ID, 2);
    EXPECT_EQ(gun.affiliation, 1);
    EXPECT_EQ(gun.force_type, 4);
    EXPECT_EQ(gun.description, "Howitzer, light");
    EXPECT_TRUE(gun.firefan);
    EXPECT_EQ(gun.min_range, 100);
    EXPECT_EQ(gun.max_range, 10000);
    EXPECT_EQ(gun.rof, 6);
    EXPECT_EQ(gun.max_ammo, 60);
    EXPECT_EQ(program.campaign.colForceElements->at(1)->description, "Rifle squad");
}

TEST_F(ReferenceFiles, EmptyCatalogueIsNoError) {
    write_file("data/forces/elements.txt", "");
    load_force_elements(program);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_TRUE(program.campaign.colForceElements.empty());
}

TEST_F(ReferenceFiles, MissingCatalogueIsError53) {
    load_force_elements(program);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 53 when loading force element types."});
}

TEST_F(ReferenceFiles, RepeatedCatalogueNumberEndsTheStepWithTheRowsBefore) {
    const std::string row = "1,0,0,\"x\",#FALSE#,0,0,0,0\r\n";
    write_file("data/forces/elements.txt", row + row + "2,0,0,\"x\",#FALSE#,0,0,0,0\r\n");
    load_force_elements(program);
    EXPECT_EQ(platform.texts()[0], "Error 457 when loading force element types.");
    EXPECT_EQ(program.campaign.colForceElements.count(), 1U);
}

TEST_F(ReferenceFiles, DamagedCatalogueRowsAreToldByTheirNumber) {
    const std::string good = "1,0,0,\"x\",#FALSE#,0,0,0,0\r\n";
    const std::vector<std::pair<std::string, int>> damages{
        {"2,0,0,\"cut", 62}, {"2,0,0,\"x\",#FALSE#,0,40000,0,0", 6}, {"two,0,0,\"x\",#FALSE#,0,0,0,0", 13}};
    for (const auto& [row, number] : damages) {
        program.campaign.colForceElements.drop();
        platform.messages.clear();
        write_file("data/forces/elements.txt", good + row);
        load_force_elements(program);
        EXPECT_EQ(platform.texts()[0],
                  "Error " + std::to_string(number) + " when loading force element types.");
        EXPECT_EQ(program.campaign.colForceElements.count(), 1U);
    }
}

TEST_F(ReferenceFiles, RostersTakeARepeatedNameOnceAndTheNextSaveDropsTheRow) {
    write_file("data/game masters.txt", "\"A\",\"a1\"\r\n\"B\",\"b\"\r\n\"A\",\"a2\"\r\n\"C, D\",\"c\"\r\n");
    load_user_data(program);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(program.campaign.colGameMasters.count(), 3U);
    EXPECT_EQ(program.campaign.colGameMasters->item("A")->email, "a1");
    EXPECT_EQ(program.campaign.colGameMasters->at(3)->name, "C, D");
    save_user_data(program);
    EXPECT_EQ(file_bytes("data/game masters.txt"), "\"A\",\"a1\"\r\n\"B\",\"b\"\r\n\"C, D\",\"c\"\r\n");
}

TEST_F(ReferenceFiles, RepeatedPlayersCountOnceToo) {
    write_file("data/axis players.txt", "\"A\",\"a1\"\r\n\"A\",\"a2\"\r\n");
    write_file("data/allied players.txt", "\"B\",\"b1\"\r\n\"B\",\"b2\"\r\n");
    load_user_data(program);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(program.campaign.colGermanPlayers->item("A")->email, "a1");
    EXPECT_EQ(program.campaign.colRussianPlayers->item("B")->email, "b1");
}

TEST_F(ReferenceFiles, MissingRostersAreSilentlyEmpty) {
    load_user_data(program);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_TRUE(program.campaign.colGermanPlayers.empty());
}

TEST_F(ReferenceFiles, FailureInTheFirstRosterLeavesTheOthersUnread) {
    write_file("data/axis players.txt", "\"A\",\"a\"\r\n\"cut\"");
    write_file("data/allied players.txt", "\"B\",\"b\"\r\n");
    load_user_data(program);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 62 when user data."});
    EXPECT_EQ(program.campaign.colGermanPlayers.count(), 1U);
    EXPECT_TRUE(program.campaign.colRussianPlayers.empty());
}

TEST_F(ReferenceFiles, RosterRowThatLacksItsLastQuoteIsKept) {
    write_file("data/axis players.txt", "\"A\",\"a");
    load_user_data(program);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(program.campaign.colGermanPlayers->item("A")->email, "a");
}

TEST_F(ReferenceFiles, TownsKeepTheOrderOfTheFileAndTakeARepeatedIdOnce) {
    write_file("data/towns.txt", "\"Zeta\",\"Z\",\"0150\",\"4000\",\"church, mill\",32767,\"1\"\r\n"
                                 "\"Alpha\",\"A\",\"0200\",\"3900\",\"\",5,\"2\"\r\n"
                                 "\"Twice\",\"T\",\"0\",\"0\",\"\",5,\"1\"\r\n \r\n");
    load_towns(program);
    EXPECT_TRUE(platform.messages.empty());
    ASSERT_EQ(program.campaign.colTowns.count(), 2U);
    const oTowns& town = *program.campaign.colTowns->at(1);
    EXPECT_EQ(town.axis_name, "Zeta");
    EXPECT_EQ(town.allied_name, "Z");
    EXPECT_EQ(town.xcoord, "0150");
    EXPECT_EQ(town.ycoord, "4000");
    EXPECT_EQ(town.notes, "church, mill");
    EXPECT_EQ(town.population, 32767);
}

TEST_F(ReferenceFiles, MissingGazetteerIsError53AndTooManyPeopleAreError6) {
    load_towns(program);
    write_file("data/towns.txt", "\"Zeta\",\"Z\",\"1\",\"2\",\"\",40000,\"1\"\r\n");
    load_towns(program);
    EXPECT_EQ(platform.texts(), (std::vector<std::string>{"Error 53 when loading towns data.",
                                                          "Error 6 when loading towns data."}));
}

TEST_F(ReferenceFiles, WritersGiveBackTheBytesThatWereRead) {
    std::string every_byte;
    for (int byte = 1; byte < 256; ++byte)
        if (byte != '"') every_byte += static_cast<char>(byte);
    const std::string person = "\"" + every_byte + "\",\"x@example.org\"\r\n";
    const std::string towns = "\"" + every_byte + "\",\"A\",\"0150\",\"4000\",\"n\",-5,\"{id}\"\r\n";
    for (const char* roster : {"axis players", "allied players", "game masters"})
        write_file(std::string("data/") + roster + ".txt", person);
    write_file("data/towns.txt", towns);
    load_user_data(program);
    load_towns(program);
    save_user_data(program);
    save_towns(program);
    for (const char* roster : {"axis players", "allied players", "game masters"})
        EXPECT_EQ(file_bytes(std::string("data/") + roster + ".txt"), person) << roster;
    EXPECT_EQ(file_bytes("data/towns.txt"), towns);
}

TEST_F(ReferenceFiles, EmptyRosterBecomesAnEmptyFile) {
    write_file("data/game masters.txt", "\"A\",\"a\"\r\n");
    save_user_data(program);
    EXPECT_EQ(file_bytes("data/game masters.txt"), "");
    load_user_data(program);
    EXPECT_TRUE(program.campaign.colGameMasters.empty());
}

TEST_F(ReferenceFiles, WritingToAMissingFolderFailsWith76) {
    EXPECT_EQ(number_of([&] { save_towns(program); }), 76);
}

TEST_F(ReferenceFiles, RostersAreWrittenMastersFirstThenAlliedThenAxis) {
    auto master = std::make_shared<oGameMasters>();
    master->name = "new master";
    program.campaign.colGameMasters->add(master, master->name);
    write_file("data/axis players.txt", "old");
    std::filesystem::create_directories(path("data/allied players.txt"));
    EXPECT_EQ(number_of([&] { save_user_data(program); }), 75);
    EXPECT_NE(file_bytes("data/game masters.txt").find("new master"), std::string::npos);
    EXPECT_EQ(file_bytes("data/axis players.txt"), "old");
}
