#include "widgets/text.h"

#include <algorithm>
#include <array>

namespace {

// What the codes 0x80 to 0x9F stand for; the five without a character stand for themselves.
constexpr std::array<char16_t, 32> upper_codes{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QChar to_character(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? QChar(upper_codes[byte - 0x80U]) : QChar(char16_t(byte));
}

char to_byte(QChar character) {
    const char16_t code = character.unicode();
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<char>(code);
    const auto* const found = std::find(upper_codes.begin(), upper_codes.end(), code);
    if (found == upper_codes.end()) return '?';
    return static_cast<char>(0x80 + (found - upper_codes.begin()));
}

} // namespace

QString to_qt(const std::string& text) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (const char c : text) result += to_character(static_cast<unsigned char>(c));
    return result;
}

std::string from_qt(const QString& text) {
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (const QChar character : text)
        if (!character.isLowSurrogate()) result += to_byte(character);
    return result;
}
