#include "mapview/grid_reference.h"

#include "tests/support/program_test.h"

namespace {

class GridReference : public ProgramTest {
  protected:
    std::string reference(int x, int y) {
        auto px = static_cast<std::int16_t>(x);
        auto py = static_cast<std::int16_t>(y);
        std::string east;
        std::string north;
        pixel_to_grid(program, px, py, east, north);
        EXPECT_EQ(px, x);
        EXPECT_EQ(py, y + 48);
        return east + " " + north;
    }

    std::pair<int, int> pixel(const std::string& east, const std::string& north) {
        std::int16_t x = 0;
        std::int16_t y = 0;
        grid_to_pixel(program, x, y, east, north);
        return {x, y};
    }

    void map_height(int height) {
        program.main.picMap.height = height;
        program.campaign.gMapNorth0 = static_cast<std::int16_t>(height / 150);
    }
};

} // namespace

TEST_F(GridReference, ReadsEastAndNorthOfAPixel) {
    EXPECT_EQ(reference(225, 102), "01.50 40.00");
    EXPECT_EQ(reference(225, 101), "01.50 40.01");
    EXPECT_EQ(reference(225, 103), "01.50 39.99");
    EXPECT_EQ(reference(150, 252), "01.00 39.00");
    EXPECT_EQ(reference(300, 300), "02.00 38.68");
    EXPECT_EQ(reference(0, 0), "00.00 40.68");
}

TEST_F(GridReference, BottomRowReadsOneKilometreLower) {
    EXPECT_EQ(reference(3000, 5952), "20.00 00.00");
    EXPECT_EQ(reference(3000, 5951), "20.00 01.01");
}

TEST_F(GridReference, BelowTheGridTheRowIsNought) {
    map_height(6200);
    EXPECT_EQ(reference(100, 6102), "00.67 01.00");
    EXPECT_EQ(reference(100, 6260), "00.67 00.05");
}

TEST_F(GridReference, HundredKilometresWrapButTheCorrectedLineDoesNot) {
    map_height(15000);
    EXPECT_EQ(reference(100, 102), "00.67 100.00");
    EXPECT_EQ(reference(100, 52), "00.67 00.33");
    EXPECT_EQ(reference(15075, 102).substr(0, 5), "00.50");
}

TEST_F(GridReference, PixelTooFarDownFailsWith6) {
    std::int16_t x = 0;
    std::int16_t y = 32720;
    std::string east;
    std::string north;
    EXPECT_EQ(number_of([&] { pixel_to_grid(program, x, y, east, north); }), 6);
}

TEST_F(GridReference, FindsThePixelOfAReference) {
    EXPECT_EQ(pixel("0150", "4000"), std::make_pair(225, 102));
    EXPECT_EQ(pixel("9999", "9999"), std::make_pair(14998, -8896));
}

TEST_F(GridReference, HundredthsBecomePixelsHalfToEven) {
    const std::vector<std::pair<std::string, int>> cases{{"01", 2},  {"03", 4},  {"05", 8},
                                                         {"07", 10}, {"09", 14}, {"11", 16}};
    for (const auto& [hundredths, pixels] : cases) EXPECT_EQ(pixel("00" + hundredths, "4000").first, pixels);
}

TEST_F(GridReference, TextThatIsNoNumberFailsWith13) {
    EXPECT_EQ(number_of([&] { pixel("ab12", "4000"); }), 13);
    EXPECT_EQ(number_of([&] { pixel("0150", "40xx"); }), 13);
}

TEST_F(GridReference, RoundTripMayBeOnePixelOff) {
    EXPECT_EQ(pixel("0151", "3999"), std::make_pair(226, 104));
}

TEST_F(GridReference, RulerNumbersAreAlwaysTwoDigits) {
    EXPECT_EQ(last_two_digits(7), "07");
    EXPECT_EQ(last_two_digits(100), "00");
}
