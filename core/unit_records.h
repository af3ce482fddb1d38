#pragma once

#include "core/changes.h"
#include "core/collection.h"
#include "core/surface.h"

#include <cstdint>
#include <string>

// The records of a unit and of what it owns. Map positions are pixels of the map picture, x to the right, y
// down, 150 to the kilometre; colours are 0x00BBGGRR. Texts are single bytes, Windows-1252.

/// A coordinate of a corner that can be moved.
using Coordinate = Counted<std::int32_t, CornerChanges>;

/// A vertex. In lines and polygons map pixels; in areas of operation offsets from the unit.
struct oCoordinates {
    Coordinate x_cor;
    Coordinate y_cor;
};

template <> struct ListChanges<oCoordinates> : CornerChanges {};

/// A reference to a subordinate unit. The name is a copy and may be stale.
struct oChildren {
    std::string ID;
    std::string name;
};

/// A holding of one kind of force element by a unit.
struct oUnitForceElements {
    std::string ID;
    Counted<std::int16_t, HoldingChanges> Index; // catalogue number, 999 for a free-text element
    std::int16_t quantity = 0;
    std::string experience;
    std::int16_t ammo = 0;
    std::int16_t FireFanAngle = 0; // degrees, 0 north, clockwise
    std::int16_t KIA = 0;
    std::int16_t MIA = 0;
    std::string free_text;
};

template <> struct ListChanges<oUnitForceElements> : HoldingChanges {};

/// Holdings of a unit's subordinates added up; never stored.
struct oAccuUFE : oUnitForceElements {};

/// One leg of a unit's movement. In its list it does not change: to change it is to put another in its place.
struct oWaypoint {
    float X = 0;
    float Y = 0;
    std::int16_t range = 0; // metres
    std::string ID;
    double speed = 0; // km/h
    std::string start_year;
    std::string start_month; // the word
    std::string start_day;
    std::string start_hour;
    std::string start_minute;
    std::string end_year;
    std::string end_month;
    std::string end_day;
    std::string end_hour;
    std::string end_minute;
    std::string notes;
};

template <> struct ListChanges<const oWaypoint> : CornerChanges {};

/// One unit of either side. The fields stand in the order in which walks over all units ask for them: place
/// and plans in one line of the processor's cache, what the unit owns in the next, then its links.
struct alignas(64) oUnits {
    std::int32_t color = 0;
    Counted<std::int16_t, UnitMoves> xcoord; // the centre
    Counted<std::int16_t, UnitMoves> ycoord;
    std::int16_t img_index = 0;            // index of the marker; a value of this run, in no file
    std::int16_t state = 0;                // 0 none, 1 good, 2 moderate, 3 bad, 4 critical
    FromCorners<SmallBounds> route_bounds; // of its waypoints and their texts
    FromCorners<SmallBounds> area_bounds;  // of its area, as offsets from the unit
    CollectionRef<oUnitForceElements> force_elements;
    CollectionRef<const oWaypoint> waypoints;
    CollectionRef<oCoordinates> area_of_opeartion;
    CollectionRef<oChildren> children;
    std::string ID;
    std::string parent_ID;
    std::string affiliation; // "Allied" or "Axis"
    std::string unittype;
    std::string symbol; // picture path below the program directory, with backslashes
    std::string name;
    std::string echelon;
    std::string nationality;
    std::string player_name;
    std::string player_email;
    std::string gm_name;
    std::string gm_email;
    std::string parent_name;
    std::int16_t supply_req = 0; // ton/day
    std::int16_t current_supply = 0;
    std::string op_status;
    std::string fitness;
    std::string order_id; // despite its name the unit class
};
