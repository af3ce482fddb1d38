#include "core/code_page.h"

#include <algorithm>
#include <array>

namespace {

// What the codes 0x80 to 0x9F stand for.
constexpr std::array<char32_t, 32> upper_codes{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

} // namespace

char32_t character_of(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? upper_codes[byte - 0x80U] : byte;
}

char byte_of(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
    const auto* const found = std::find(upper_codes.begin(), upper_codes.end(), character);
    if (found == upper_codes.end()) return '?';
    return static_cast<char>(0x80 + (found - upper_codes.begin()));
}

unsigned char lower_case(unsigned char byte) {
    if (byte == 0x8A || byte == 0x8C || byte == 0x8E) return static_cast<unsigned char>(byte + 0x10);
    if (byte == 0x9F) return 0xFF;
    const bool ascii = byte >= 'A' && byte <= 'Z';
    const bool marked = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
    return ascii || marked ? static_cast<unsigned char>(byte + 0x20) : byte;
}

std::string lower_case(std::string_view text) {
    std::string lower(text);
    for (char& c : lower) c = static_cast<char>(lower_case(static_cast<unsigned char>(c)));
    return lower;
}
