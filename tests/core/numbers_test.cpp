#include "core/numbers.h"

#include "core/trap.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <limits>

TEST(Numbers, HalvesGoToTheEvenNeighbour) {
    EXPECT_EQ(round_half_even(0.5), 0);
    EXPECT_EQ(round_half_even(1.5), 2);
    EXPECT_EQ(round_half_even(2.5), 2);
    EXPECT_EQ(round_half_even(-0.5), 0);
    EXPECT_EQ(round_half_even(-1.5), -2);
    EXPECT_EQ(round_half_even(-2.5), -2);
    EXPECT_EQ(round_half_even(2.4999999999), 2);
    EXPECT_EQ(round_half_even(2.5000000001), 3);
}

TEST(Numbers, Int16EndsAtItsRange) {
    EXPECT_EQ(to_int16(32767), 32767);
    EXPECT_EQ(to_int16(32767.4), 32767);
    EXPECT_EQ(to_int16(-32768.5), -32768);
    EXPECT_EQ(failure_of([] { to_int16(32767.5); }), 6);
    EXPECT_EQ(failure_of([] { to_int16(32768); }), 6);
    EXPECT_EQ(failure_of([] { to_int16(-32769); }), 6);
    EXPECT_EQ(failure_of([] { to_int16(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

TEST(Numbers, LongEndsAtItsRange) {
    EXPECT_EQ(to_long(2147483647), 2147483647);
    EXPECT_EQ(to_long(-2147483648.0), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(failure_of([] { to_long(2147483647.5); }), 6);
    EXPECT_EQ(failure_of([] { to_long(-2147483649.0); }), 6);
    EXPECT_EQ(failure_of([] { to_long(std::numeric_limits<double>::infinity()); }), 6);
}

TEST(Numbers, SingleEndsAtItsRange) {
    EXPECT_EQ(to_single(0.1), 0.1F);
    EXPECT_EQ(failure_of([] { to_single(3.5e38); }), 6);
    EXPECT_EQ(failure_of([] { to_single(-3.5e38); }), 6);
}

TEST(Numbers, WholePartGoesDownAlsoBelowZero) {
    EXPECT_EQ(whole_part(1.9), 1);
    EXPECT_EQ(whole_part(-1.1), -2);
    EXPECT_EQ(whole_int16(-0.5), -1);
    EXPECT_EQ(failure_of([] { whole_int16(32768); }), 6);
}

TEST(Numbers, NumericTextIsOneNumberWithBlanksAround) {
    for (const char* text : {"0", " 12 ", "-5", "+5", "1.", ".5", "1.5", "2E3", "2d-3", "1e+2"})
        EXPECT_TRUE(is_numeric(text)) << text;
    for (const char* text : {"", " ", "-", ".", "1 2", "1,5", "1.2.3", "abc", "12a", "E5", "--1", "1e"})
        EXPECT_FALSE(is_numeric(text)) << text;
}

TEST(Numbers, TextBecomesANumberOrFailsWith13) {
    EXPECT_EQ(to_double(" -.5"), -0.5);
    EXPECT_EQ(to_double("2D3"), 2000);
    EXPECT_EQ(to_double("+7"), 7);
    EXPECT_EQ(failure_of([] { to_double("7 a"); }), 13);
    EXPECT_EQ(failure_of([] { to_double(""); }), 13);
    EXPECT_EQ(failure_of([] { to_double("1e999"); }), 6);
    EXPECT_EQ(failure_of([] { to_double("10.05e400"); }), 6);
    EXPECT_EQ(to_double("1e-999"), 0);
}

TEST(Numbers, ValTakesTheNumberInFront) {
    EXPECT_EQ(val("12.5abc"), 12.5);
    EXPECT_EQ(val(" 1 2 3"), 123);
    EXPECT_EQ(val("abc"), 0);
    EXPECT_EQ(val(""), 0);
    EXPECT_EQ(val("-3-4"), -3);
    EXPECT_EQ(val("1e"), 1);
}

TEST(Numbers, StrHasASignPlaceAndNoZeroBeforeThePoint) {
    EXPECT_EQ(str(12), " 12");
    EXPECT_EQ(str(-12), "-12");
    EXPECT_EQ(str(0), " 0");
    EXPECT_EQ(str(0.5), " .5");
    EXPECT_EQ(str(-0.5), "-.5");
}

TEST(Numbers, PrintFormHasABlankBehind) {
    EXPECT_EQ(print_form(4.5), " 4.5 ");
    EXPECT_EQ(print_form(-3), "-3 ");
    EXPECT_EQ(print_form(0.5), " .5 ");
    EXPECT_EQ(print_form(1.0 / 3), " .333333333333333 ");
}

TEST(Numbers, PlainTextKeepsTheZeroBeforeThePoint) {
    EXPECT_EQ(number_text(4), "4");
    EXPECT_EQ(number_text(0.5), "0.5");
    EXPECT_EQ(number_text(-2.25), "-2.25");
    EXPECT_EQ(number_text(0.1 + 0.2), "0.3");
}

TEST(Numbers, FormatPadsAndRoundsHalvesAwayFromZero) {
    EXPECT_EQ(format_fixed(7, 2, 0), "07");
    EXPECT_EQ(format_fixed(100, 2, 0), "100");
    EXPECT_EQ(format_fixed(0, 2, 0), "00");
    EXPECT_EQ(format_fixed(0.5, 2, 0), "01");
    EXPECT_EQ(format_fixed(2.5, 2, 0), "03");
    EXPECT_EQ(format_fixed(-2.5, 2, 0), "-03");
    EXPECT_EQ(format_fixed(-0.2, 2, 0), "00");
    EXPECT_EQ(format_fixed(99.5, 2, 0), "100");
    EXPECT_EQ(format_fixed(1.005, 1, 2), "1.01");
    EXPECT_EQ(format_fixed(0, 1, 2), "0.00");
    EXPECT_EQ(format_fixed(12.345, 1, 1), "12.3");
    EXPECT_EQ(format_fixed(9.996, 1, 2), "10.00");
}

TEST(Numbers, FilesHoldTheShortestPlainDigitsOfEachWidth) {
    const auto written = [](auto value) {
        std::array<char, longest_decimal> room{};
        return std::string(room.data(), write_decimal(room.data(), value));
    };
    EXPECT_EQ(written(0.1F), "0.1");
    EXPECT_EQ(written(4.7), "4.7");
    EXPECT_EQ(written(100000.0), "100000");
    EXPECT_EQ(written(0.00001), "0.00001");
    EXPECT_EQ(to_single(to_double(written(std::numeric_limits<float>::max()))),
              std::numeric_limits<float>::max());
    for (const double extreme :
         {std::numeric_limits<double>::max(), std::numeric_limits<double>::denorm_min()})
        EXPECT_EQ(to_double(written(extreme)), extreme);
    std::array<char, longest_integer> room{};
    EXPECT_EQ(std::string(room.data(), write_integer(room.data(), std::numeric_limits<std::int64_t>::min())),
              "-9223372036854775808");
}

TEST(Numbers, TooLargeOrTooSmallIsDecidedByTheFirstDigitsPlace) {
    const std::string noughts(700, '0');
    EXPECT_EQ(failure_of([&] { to_double("1" + noughts + "e-100"); }), 6);
    EXPECT_EQ(to_double("0." + noughts + "1e100"), 0);
    EXPECT_EQ(failure_of([] { to_double("1e999"); }), 6);
    EXPECT_EQ(to_double("1e-999"), 0);
}

TEST(Numbers, SingleIsReadWithoutADetour) {
    const std::string digits = "0.00000000000000000000000007038531";
    EXPECT_EQ(std::bit_cast<std::uint32_t>(to_single(digits)), 0x15AE43FDU);
    EXPECT_EQ(failure_of([] { to_single("1e39"); }), 6);
    EXPECT_EQ(failure_of([] { to_single("abc"); }), 13);
}
