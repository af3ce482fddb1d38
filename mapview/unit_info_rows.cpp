#include "mapview/unit_info_rows.h"

#include "core/catalogue.h"

#include <array>
#include <cstring>

namespace {

constexpr std::size_t key_length = 38; // of a GUID in braces
constexpr const char* key_mark = "###";

std::string casualties(const oUnitForceElements& element) {
    const std::string missing = std::to_string(element.MIA) + " MIA";
    const std::string killed = std::to_string(element.KIA) + " KIA";
    if (element.MIA > 0 && element.KIA > 0) return ", casulties = " + missing + ", " + killed;
    if (element.MIA > 0) return ", casulties = " + missing;
    if (element.KIA > 0) return ", casulties = " + killed;
    return "";
}

/// Noughts in front by value, so that one below zero gets two of them, too.
std::string three_digits(std::int16_t quantity) {
    const char* const noughts = quantity < 10 ? "00" : quantity < 100 ? "0" : "";
    return noughts + std::to_string(quantity);
}

} // namespace

std::string full_name(const oUnits& unit) { return unit.nationality + " " + unit.name + " " + unit.unittype; }

std::string element_row(const Program& program, const oUnitForceElements& element) {
    const std::string what =
        element.Index == free_text_index ? element.free_text : catalogue_entry(program, element).description;
    return what + " x " + three_digits(element.quantity) + ", " + element.experience +
           " ,ammo = " + std::to_string(element.ammo) + casualties(element);
}

std::string subordinate_row(const oUnits& unit, int depth) {
    constexpr std::array<std::size_t, listed_levels> indents{0, 3, 7, 11, 15, 19, 23, 27, 31, 35};
    return std::string(indents.at(static_cast<std::size_t>(depth) - 1), ' ') + unit.name + " " +
           unit.unittype + std::string(150, ' ') + key_mark + unit.ID;
}

std::string element_key(const std::string& row) {
    return row.size() < key_length ? "" : row.substr(row.size() - key_length);
}

std::string subordinate_key(const std::string& row) {
    const std::size_t mark = row.find(key_mark);
    return mark == std::string::npos ? "" : row.substr(mark + std::strlen(key_mark));
}
