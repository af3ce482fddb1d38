#pragma once

#include <string_view>

// Which fields a campaign file of a version has. The tag is compared exactly; an unknown tag, like the
// current one, reads as the full format. Each question stands alone.

/// The stored picture path is absolute and has to be cut.
bool has_absolute_symbol(std::string_view tag);
/// A unit record has its last field, `state`.
bool has_unit_state(std::string_view tag);
/// A force element record has its last field, `free_text`.
bool has_free_text(std::string_view tag);
/// There are no polygons and no fire missions.
bool ends_after_shapes(std::string_view tag);
/// The file ends behind its first polygon.
bool ends_after_polygon(std::string_view tag);
/// A fire mission record has its last two fields, `rate` and `shells`.
bool has_rate_and_shells(std::string_view tag);
