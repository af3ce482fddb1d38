#include "core/identity.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

// From the highest rank to the lowest.
constexpr std::array<std::string_view, 11> echelons{"Army",     "Corps",     "Division", "Brigade",
                                                    "Regiment", "Battalion", "Company",  "Platoon",
                                                    "Squad",    "Team",      "Battery"};

} // namespace

std::string new_guid(Platform& platform) {
    std::array<std::uint8_t, 16> bytes{};
    if (!platform.random_bits(bytes)) return "";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string guid = "{";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) guid += '-';
        guid += digits[bytes[i] >> 4];
        guid += digits[bytes[i] & 15];
    }
    return guid + "}";
}

std::optional<std::string> compare_echelon(std::string_view first, std::string_view second) {
    const auto* const a = std::find(echelons.begin(), echelons.end(), first);
    const auto* const b = std::find(echelons.begin(), echelons.end(), second);
    if (a == echelons.end() || b == echelons.end()) return std::nullopt;
    if (a == b) return "equal";
    return a < b ? "larger" : "smaller";
}
