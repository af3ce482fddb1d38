#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// The program's arithmetic at the edges of its types. Every step from floating point to a whole number goes
// through here, so that halves round to the even neighbour everywhere and nothing wraps silently.
// No procedure looks at the locale.

/// The nearest whole number, a half to the even neighbour.
double round_half_even(double value);

/// The nearest Int16, a half to the even neighbour. Fails with 6 outside the range.
std::int16_t to_int16(double value);

/// The nearest Long (32 bits), a half to the even neighbour. Fails with 6 outside the range.
std::int32_t to_long(double value);

/// The value as a Single. Fails with 6 when it is beyond the range of 32-bit floating point.
float to_single(double value);

/// The greatest whole number that is not above the value: -1.5 gives -2.
double whole_part(double value);

/// The whole part as an Int16. Fails with 6 outside the range.
std::int16_t whole_int16(double value);

/// Whether the text is a number: blanks around, one sign, digits with at most one point, an optional
/// exponent with E or D; at least one digit.
bool is_numeric(std::string_view text);

/// The number that a numeric text stands for. Fails with 13 when it is none, with 6 beyond a Double.
double to_double(std::string_view text);

/// The Single nearest to it; by way of a Double it could be the next one. Fails alike.
float to_single(std::string_view text);

/// The number at the front of a text, blanks taken out; 0 when there is none.
double val(std::string_view text);

/// A number as text: shortest of at most 15 digits, a point as decimal mark, no leading blank: "4", "0.5".
std::string number_text(double value);

/// Like `number_text` with a sign place (a blank or a minus sign) and no zero before the point: " .5".
std::string str(double value);

/// `str` with a blank behind: what printing a number to a report gives.
std::string print_form(double value);

/// At least `integer_digits` digits before the point and exactly `decimals` behind it, a half rounded away
/// from zero on the decimal value: (7, 2, 0) gives "07", (1.005, 1, 2) gives "1.01".
std::string format_fixed(double value, int integer_digits, int decimals);

/// Write the shortest plain decimal digits that give the same value back, without exponent, and answer where
/// they end. There must be room for `longest_integer` or `longest_decimal` characters.
char* write_integer(char* to, std::int64_t value);
char* write_decimal(char* to, float value);
char* write_decimal(char* to, double value);
inline constexpr std::size_t longest_integer = 20;
inline constexpr std::size_t longest_decimal = 400;
