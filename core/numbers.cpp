#include "core/numbers.h"

#include "core/failure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
bool is_digit(char c) { return c >= '0' && c <= '9'; }

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
    return text;
}

/// Length of the longest number at the front of the text, 0 when there is none.
std::size_t number_length(std::string_view text) {
    std::size_t at = 0;
    const auto skip_digits = [&] {
        const std::size_t from = at;
        while (at < text.size() && is_digit(text[at])) ++at;
        return at - from;
    };
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    std::size_t digits = skip_digits();
    if (at < text.size() && text[at] == '.') {
        ++at;
        digits += skip_digits();
    }
    if (digits == 0) return 0;
    const std::size_t mantissa_end = at;
    if (at < text.size() && std::string_view("eEdD").find(text[at]) != std::string_view::npos) {
        ++at;
        if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
        if (skip_digits() == 0) return mantissa_end;
    }
    return at;
}

/// The whole number behind an exponent's letter. Beyond a thousand millions they are all the same.
long exponent_of(std::string_view text) {
    constexpr long far = 1'000'000'000;
    const bool negative = text.starts_with('-');
    long value = 0;
    for (const char c : text)
        if (is_digit(c)) value = std::min(far, value * 10 + (c - '0'));
    return negative ? -value : value;
}

/// Whether a decimal text that no Double can hold is too large, not too small: decided by the place of its
/// first digit.
bool is_beyond_one(std::string_view text) {
    const std::size_t exponent_at = std::min(text.find('e'), text.size());
    const std::string_view mantissa = text.substr(0, exponent_at);
    const auto point = static_cast<long>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<long>(std::min(mantissa.find_first_of("123456789"), mantissa.size()));
    const long exponent = exponent_at < text.size() ? exponent_of(text.substr(exponent_at + 1)) : 0;
    return point - first + exponent > 0;
}

/// Converts a text that `number_length` accepted whole. Fails with 6 beyond the type's range.
template <class Real> Real converted(std::string_view text) {
    if (text.front() == '+') text.remove_prefix(1);
    std::string plain(text);
    std::replace_if(
        plain.begin(), plain.end(), [](char c) { return c == 'd' || c == 'D' || c == 'E'; }, 'e');
    Real value = 0;
    const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        if (is_beyond_one(plain)) throw Failure{failure::overflow};
        return 0; // too small is as good as nothing
    }
    return value;
}

/// The digits of the value before and behind the point, without sign and without exponent.
struct DecimalDigits {
    std::string integer;
    std::string fraction;
};

DecimalDigits decimal_digits(double magnitude) {
    std::array<char, 400> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, std::chars_format::fixed).ptr;
    const std::string text(buffer.data(), end);
    const std::size_t point = text.find('.');
    if (point == std::string::npos) return {text, ""};
    return {text.substr(0, point), text.substr(point + 1)};
}

/// Adds one to a row of decimal digits; a carry out of the front becomes a new digit.
void increment(std::string& digits) {
    for (std::size_t i = digits.size(); i-- > 0;) {
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.insert(digits.begin(), '1');
}

template <class Whole> Whole checked(double rounded) {
    if (!(rounded >= static_cast<double>(std::numeric_limits<Whole>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Whole>::max())))
        throw Failure{failure::overflow};
    return static_cast<Whole>(rounded);
}

} // namespace

double round_half_even(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5) return below;
    if (rest > 0.5) return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::int16_t to_int16(double value) { return checked<std::int16_t>(round_half_even(value)); }

std::int32_t to_long(double value) { return checked<std::int32_t>(round_half_even(value)); }

float to_single(double value) {
    const float nearest = static_cast<float>(value);
    if (!std::isfinite(nearest)) throw Failure{failure::overflow};
    return nearest;
}

double whole_part(double value) { return std::floor(value); }

std::int16_t whole_int16(double value) { return checked<std::int16_t>(std::floor(value)); }

bool is_numeric(std::string_view text) {
    text = trimmed(text);
    return !text.empty() && number_length(text) == text.size();
}

double to_double(std::string_view text) {
    if (!is_numeric(text)) throw Failure{failure::type_mismatch};
    return converted<double>(trimmed(text));
}

float to_single(std::string_view text) {
    if (!is_numeric(text)) throw Failure{failure::type_mismatch};
    return converted<float>(trimmed(text));
}

double val(std::string_view text) {
    std::string packed;
    std::copy_if(text.begin(), text.end(), std::back_inserter(packed), [](char c) { return !is_blank(c); });
    const std::size_t length = number_length(packed);
    return length == 0 ? 0 : converted<double>(std::string_view(packed).substr(0, length));
}

std::string number_text(double value) {
    if (value == 0) return "0";
    std::array<char, 40> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 15)
            .ptr;
    std::string text(buffer.data(), end);
    std::replace(text.begin(), text.end(), 'e', 'E');
    return text;
}

std::string str(double value) {
    std::string text = number_text(std::abs(value));
    if (text.starts_with("0.")) text.erase(0, 1);
    return (value < 0 ? "-" : " ") + text;
}

std::string print_form(double value) { return str(value) + " "; }

std::string format_fixed(double value, int integer_digits, int decimals) {
    const auto places = static_cast<std::size_t>(decimals);
    DecimalDigits digits = decimal_digits(std::abs(value));
    digits.fraction.resize(std::max(digits.fraction.size(), places + 1), '0');
    const bool up = digits.fraction[places] >= '5';
    std::string all = digits.integer + digits.fraction.substr(0, places);
    if (up) increment(all);
    std::string integer = all.substr(0, all.size() - places);
    const std::string fraction = all.substr(all.size() - places);
    integer.erase(0, std::min(integer.find_first_not_of('0'), integer.size()));
    const auto wanted = static_cast<std::size_t>(integer_digits);
    if (integer.size() < wanted) integer.insert(0, wanted - integer.size(), '0');
    const bool nothing = all.find_first_not_of('0') == std::string::npos;
    return (value < 0 && !nothing ? "-" : "") + integer + (decimals > 0 ? "." + fraction : "");
}

char* write_integer(char* to, std::int64_t value) {
    return std::to_chars(to, to + longest_integer, value).ptr;
}

namespace {

/// Most decimals in a campaign are whole numbers of map pixels, and those are far quicker to write.
template <class Decimal> char* write_whole_or_decimal(char* to, Decimal value) {
    constexpr Decimal limit = 1 << 20;
    if (value > -limit && value < limit) {
        const auto whole = static_cast<std::int32_t>(value);
        if (static_cast<Decimal>(whole) == value) return write_integer(to, whole);
    }
    return std::to_chars(to, to + longest_decimal, value, std::chars_format::fixed).ptr;
}

} // namespace

char* write_decimal(char* to, float value) { return write_whole_or_decimal(to, value); }
char* write_decimal(char* to, double value) { return write_whole_or_decimal(to, value); }
