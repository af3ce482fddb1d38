#include "persistence/version_gates.h"

#include <algorithm>
#include <array>

namespace {

/// What an old version lacks or has otherwise.
struct OldVersion {
    std::string_view tag;
    bool absolute_symbol;
    bool no_state;
    bool no_free_text;
    bool ends_after_shapes;
    bool ends_after_polygon;
    bool no_rate;
};

// The order of the tags tells nothing: "6" and "beta 2.1" came late.
constexpr std::array<OldVersion, 9> old_versions{{
    //  tag        symbol state  text   shapes polyg. rate
    {"beta 4", true, true, true, true, true, true},
    {"beta 4.1", false, true, true, true, true, true},
    {"beta 5", false, true, true, false, true, true},
    {"beta 6", false, false, true, false, false, true},
    {"6", false, false, true, false, false, true},
    {"beta 7.1", false, false, true, false, false, true},
    {"beta 8", false, false, false, false, false, true},
    {"beta 8.1", false, false, false, false, false, true},
    {"beta 2.1", false, false, false, false, false, true},
}};

bool told(std::string_view tag, bool OldVersion::*question) {
    const auto* const row = std::find_if(old_versions.begin(), old_versions.end(),
                                         [&](const OldVersion& v) { return v.tag == tag; });
    return row != old_versions.end() && row->*question;
}

} // namespace

bool has_absolute_symbol(std::string_view tag) { return told(tag, &OldVersion::absolute_symbol); }
bool has_unit_state(std::string_view tag) { return !told(tag, &OldVersion::no_state); }
bool has_free_text(std::string_view tag) { return !told(tag, &OldVersion::no_free_text); }
bool ends_after_shapes(std::string_view tag) { return told(tag, &OldVersion::ends_after_shapes); }
bool ends_after_polygon(std::string_view tag) { return told(tag, &OldVersion::ends_after_polygon); }
bool has_rate_and_shells(std::string_view tag) { return !told(tag, &OldVersion::no_rate); }
