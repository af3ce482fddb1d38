#pragma once

#include <algorithm>
#include <string>

// A text field can't hold a double quote, so the texts that users type are stored with the character of code
// 247 in its place.
inline constexpr char stored_quote = static_cast<char>(247);

inline std::string with_quotes_back(std::string text) {
    std::replace(text.begin(), text.end(), stored_quote, '"');
    return text;
}
