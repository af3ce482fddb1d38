#pragma once

#include "core/program.h"

/// The two zones around a unit, in hundredths of a kilometre; 0: none.
struct ZoneRadii {
    int zone_radius_1 = 0;
    int zone_radius_2 = 0;

    bool operator==(const ZoneRadii&) const = default;
};

/// The zones that follow from a unit's echelon, type, class and operational state.
ZoneRadii zone_radii(const oUnits& unit);

/// A zone's radius in map pixels. Fails with 6 outside Int16.
std::int16_t zone_pixels(int hundredths);

/// Layer: the zones of all units, or of the one whose panel is open.
bool security_zones_are_shown(const Program& program);
void draw_security_zones(Program& program, Painting& painting);
