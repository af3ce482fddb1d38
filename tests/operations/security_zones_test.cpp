#include "operations/security_zones.h"

#include "tests/support/figures.h"
#include "tests/support/program_test.h"

namespace {

oUnits unit_of(const std::string& echelon, const std::string& type, const std::string& unit_class,
               const std::string& status) {
    oUnits unit;
    unit.echelon = echelon;
    unit.unittype = type;
    unit.order_id = unit_class;
    unit.op_status = status;
    return unit;
}

ZoneRadii radii_of(const std::string& echelon, const std::string& type, const std::string& unit_class,
                   const std::string& status) {
    return zone_radii(unit_of(echelon, type, unit_class, status));
}

class SecurityZones : public ProgramTest {
  protected:
    SecurityZones() {
        const auto unit = add_unit("{1}");
        *unit = unit_of("Battalion", "", "", "");
        unit->ID = "{1}";
        unit->xcoord = 1000;
        unit->ycoord = 2000;
        unit->color = 77;
        add_unit("{2}")->order_id = "none";
        program.campaign.gDispUSZ = true;
    }
    Painting painting;
};

} // namespace

TEST(ZoneRadiiOfUnits, LargeFormationsHaveFixedOnes) {
    for (const char* echelon : {"Army", "Corps", "Division", "Brigade", "Regiment", "Battalion"})
        EXPECT_EQ(radii_of(echelon, "Rifle", "Supply column", "Recon"), (ZoneRadii{150, 200})) << echelon;
}

TEST(ZoneRadiiOfUnits, CompaniesInLineFollowTheirStatus) {
    const std::vector<std::pair<std::string, ZoneRadii>> rows{
        {"Deployed", {150, 100}},     {"Prepped for moving", {150, 50}},
        {"Combat moving", {150, 75}}, {"Normal moving", {150, 25}},
        {"Column moving", {150, 10}}, {"Attacking", {150, 100}},
        {"Assaulting", {150, 125}},   {"Defensive", {150, 150}},
        {"Disorganized", {150, 10}},  {"Building", {150, 25}},
        {"Recon", {50, 150}},         {"Asleep", {0, 0}}};
    for (const auto& [status, radii] : rows) {
        EXPECT_EQ(radii_of("Company", "Rifle Company", "Line unit", status), radii) << status;
        EXPECT_EQ(radii_of("", "Rifle Company", "Line unit", status), radii) << status;
    }
}

TEST(ZoneRadiiOfUnits, ClassDecidesBeforeStatus) {
    for (const char* echelon : {"Company", "Platoon", "unknown"}) {
        EXPECT_EQ(radii_of(echelon, "Rifle", "Rear echelon", "Recon"), (ZoneRadii{150, 200}));
        EXPECT_EQ(radii_of(echelon, "Rifle", "Supply column", "Recon"), (ZoneRadii{150, 10}));
        EXPECT_EQ(radii_of(echelon, "Rifle", "Other", "Deployed"), (ZoneRadii{0, 0}));
    }
}

TEST(ZoneRadiiOfUnits, SmallUnitsWithoutHeavyWeaponsReachLess) {
    EXPECT_EQ(radii_of("Platoon", "Infantry Platoon", "Line unit", "Deployed"), (ZoneRadii{50, 10}));
    EXPECT_EQ(radii_of("Squad", "Infantry Squad", "Line unit", "Recon"), (ZoneRadii{50, 150}));
    EXPECT_EQ(radii_of("Platoon", "Mortar Platoon", "Line unit", "Deployed"), (ZoneRadii{150, 100}));
    EXPECT_EQ(radii_of("Battery", "IG Battery", "Line unit", "Deployed"), (ZoneRadii{150, 100}));
    EXPECT_EQ(radii_of("Battery", "Signal Battery", "Line unit", "Deployed"), (ZoneRadii{50, 10}));
    EXPECT_EQ(radii_of("Company", "Infantry Company", "Line unit", "Deployed"),
              radii_of("Company", "Mortar Company", "Line unit", "Deployed"));
}

TEST(ZoneRadiiOfUnits, BitsOfTheWordsPlacesDecideWhatIsHeavy) {
    const ZoneRadii heavy{150, 100};
    const ZoneRadii light{50, 10};
    EXPECT_EQ(radii_of("Platoon", "Mortar Observation Platoon", "Line unit", "Deployed"), heavy);
    EXPECT_EQ(radii_of("Squad", "ATG Leader Squad", "Line unit", "Deployed"), light);
    EXPECT_EQ(radii_of("Platoon", "AT Gun Leader", "Line unit", "Deployed"), heavy);
    EXPECT_EQ(radii_of("Platoon", "Artillery Command", "Line unit", "Deployed"), light);
    EXPECT_EQ(radii_of("Platoon", "mortar Platoon", "Line unit", "Deployed"), light);
}

TEST(ZoneRadiiOfUnits, EachWordOfTheTypeCounts) {
    const ZoneRadii heavy{150, 100};
    const ZoneRadii light{50, 10};
    for (const char* word :
         {"Rocket", "Howitzer", "Cannon", "Artillery", "Mortar", "Flak", "AA", "IG", "ATG", "AT"})
        EXPECT_EQ(radii_of("Team", word, "Line unit", "Deployed"), heavy) << word;
    for (const std::string word :
         {"Observation", "Leader", "Command", "Signal", "Column", "Obstacle", "Armor"})
        EXPECT_EQ(radii_of("Team", "AT  " + word, "Line unit", "Deployed"), light) << word;
    EXPECT_EQ(radii_of("Team", "AT  Rifle", "Line unit", "Deployed"), heavy);
    EXPECT_EQ(radii_of("Team", "Rifle", "Line unit", "Deployed"), light);
}

TEST(ZoneRadiiOfUnits, PixelsRoundHalvesToEven) {
    const std::vector<std::pair<int, int>> rows{{10, 15},   {25, 38},   {50, 75},   {75, 112},
                                                {100, 150}, {125, 188}, {150, 225}, {200, 300}};
    for (const auto& [hundredths, pixels] : rows) EXPECT_EQ(zone_pixels(hundredths), pixels);
}

TEST_F(SecurityZones, FilledZonesAreMaskedInTheUnitsColour) {
    program.campaign.gDispUSZAll = true;
    painting.map.pen.ForeColor = 99;
    draw_security_zones(program, painting);
    EXPECT_EQ(told(painting.map),
              (std::vector<std::string>{"circle 1000,2000 r225", "circle 1000,2000 r300"}));
    for (const auto& figure : painting.map.figures())
        EXPECT_EQ(told(figure.pen), "fore 0 fill 77 style 0 dash 0 width 2 mode 9");
}

TEST_F(SecurityZones, HatchedZonesDifferInStyle) {
    program.campaign.gDispUSZAll = true;
    program.campaign.gDispUSZFilled = false;
    draw_security_zones(program, painting);
    EXPECT_EQ(told(painting.map.figures()[0].pen), "fore 77 fill 77 style 2 dash 0 width 2 mode 9");
    EXPECT_EQ(told(painting.map.figures()[1].pen), "fore 77 fill 77 style 7 dash 0 width 2 mode 9");
}

TEST_F(SecurityZones, OfTheSelectedUnitOnlyWhileItsPanelIsOpen) {
    program.campaign.gDispUSZSelected = true;
    program.campaign.curUnit = program.campaign.colUnits->item("{1}");
    program.campaign.colUnits->item("{2}")->echelon = "Battalion"; // which has zones, too
    draw_security_zones(program, painting);
    EXPECT_TRUE(painting.map.figures().empty());
    program.main.picUnitInfo.visible = true;
    draw_security_zones(program, painting);
    EXPECT_EQ(painting.map.figures().size(), 2U);
    program.campaign.curUnit = nullptr;
    draw_security_zones(program, painting);
    EXPECT_EQ(painting.map.figures().size(), 2U);
}

TEST_F(SecurityZones, NothingWhenNeitherOptionIsChosenOrTheGateIsShut) {
    program.main.picUnitInfo.visible = true;
    program.campaign.curUnit = program.campaign.colUnits->item("{1}");
    draw_security_zones(program, painting);
    EXPECT_TRUE(painting.map.figures().empty());
    EXPECT_TRUE(security_zones_are_shown(program));
    program.campaign.gDispUSZ = false;
    EXPECT_FALSE(security_zones_are_shown(program));
}
