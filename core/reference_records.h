#pragma once

#include "core/collection.h"

#include <cstdint>
#include <string>

// Catalogue, rosters and gazetteer.

/// A row of the catalogue of force elements. In its list it does not change.
struct oForceElements {
    std::int16_t ID = 0;          // the row's 1-based place in the file
    std::int16_t affiliation = 0; // 0 Allied, 1 Axis
    std::int16_t force_type = 0;  // 0 infantry ... 4 artillery, 5 AT gun, 6 headquarter
    std::string description;
    bool firefan = false;
    std::int16_t min_range = 0; // metres
    std::int16_t max_range = 0;
    std::int16_t rof = 0;
    std::int16_t max_ammo = 0;
};

struct oTowns {
    std::string axis_name;
    std::string allied_name;
    std::int16_t population = 0;
    std::string notes;
    std::string xcoord; // four digits of a grid reference, kept as text
    std::string ycoord;
    std::string ID;
};

/// A row of the catalogue of unit types: one marker picture.
struct oUnitTypes {
    std::string unittype;
    std::string echelon;
    std::string nationality; // "Allied" or "Axis": the side
    std::string fullname;    // path as in `oUnits::symbol`
};

struct oGameMasters {
    std::string name;
    std::string email;
};

struct oGermanPlayers {
    std::string name;
    std::string email;
};

struct oRussianPlayers {
    std::string name;
    std::string email;
};

/// Declared for orders and their parts; nothing creates, reads or stores them.
struct oSegment {
    std::string ID;
    std::int16_t speed = 0;
    std::int16_t start_year = 0;
    std::int16_t start_month = 0;
    std::int16_t start_day = 0;
    std::int16_t start_hour = 0;
    std::int16_t start_minute = 0;
    std::int16_t end_year = 0;
    std::int16_t end_month = 0;
    std::int16_t end_day = 0;
    std::int16_t end_hour = 0;
    std::int16_t end_minute = 0;
    std::string notes;
    std::string segment_type;
    float X = 0;
    float Y = 0;
};

struct oUnits;

struct oOrder {
    std::string ID;
    std::string name;
    std::int16_t start_year = 0;
    std::int16_t start_month = 0;
    std::int16_t start_day = 0;
    std::int16_t start_hour = 0;
    std::int16_t start_minute = 0;
    std::int16_t end_year = 0;
    std::int16_t end_month = 0;
    std::int16_t end_day = 0;
    std::int16_t end_hour = 0;
    std::int16_t end_minute = 0;
    std::string notes;
    CollectionRef<oSegment> colSegments;
    CollectionRef<oUnits> colAssignedUnits;
};
