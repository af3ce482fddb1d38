#pragma once

#include "core/collection.h"
#include "core/unit_records.h"

#include <cstdint>
#include <string>

// What is drawn or written on the map besides the units.

/// A line or polyline; it has no identity.
struct oLines {
    std::int32_t linecolor = 0;
    std::int16_t linestyle = 0; // 1 solid, 2 dash, 3 dot, 4 dash-dot, 5 dash-dot-dot
    std::int16_t linewidth = 0;
    CollectionRef<oCoordinates> colCoords;
    FromCorners<Bounds> bounds; // of its vertices; nothing with fewer than two
    bool is_arrow = false;
    bool is_polyline = false;
    bool is_boundry = false;
    std::string boundry_size; // an echelon word
    std::int32_t arrow1_x = 0;
    std::int32_t arrow2_x = 0;
    std::int32_t arrow1_y = 0;
    std::int32_t arrow2_y = 0;
};

/// A filled map area.
struct oPolygons {
    std::string ID;
    std::int32_t bordercolor = 0;
    std::int16_t borderwidth = 0;
    std::int32_t fillcolor = 0;
    std::int16_t drawmode = 0; // 13 opaque, 9 semi transparent
    std::string notes;
    std::int32_t fontcolor = 0;
    CollectionRef<oCoordinates> coordinates;
};

/// A placed rectangle, square, oval, circle or rounded form with its caption.
struct oShapes {
    std::string ID;
    std::int16_t shape_index = 0;
    std::int16_t xcoord = 0; // the centre
    std::int16_t ycoord = 0;
    std::int32_t bordercolor = 0;
    std::int16_t borderwidth = 0;
    std::int32_t fillcolor = 0;
    std::int16_t width = 0;
    std::int16_t height = 0;
    std::string notes;
    std::int32_t notescolor = 0;
    std::string notesfont;
    std::int16_t notesfontsize = 0;
    bool notesfontbold = false;
    bool notesfontitalic = false;
    std::int16_t drawmode = 0;
    std::int16_t shape = 0; // 0 rectangle, 1 square, 2 oval, 3 circle, 4 and 5 the rounded two
};

/// A text on the map.
struct oLabels {
    std::string ID;
    std::int16_t xcoord = 0; // the top left corner
    std::int16_t ycoord = 0;
    std::string text;
    std::string font_name;
    std::int32_t font_color = 0;
    bool font_bold = false;
    bool font_italic = false;
    bool font_underline = false;
    bool font_strikethru = false;
    std::int16_t font_size = 0;
    std::int32_t backcolor = 0;
    std::int16_t borderstyle = 0;
    std::int16_t backstyle = 0;
};

/// An artillery or air task.
struct oFireMission {
    std::string ID;
    std::string notes;
    std::int16_t missionclass = 0; // 0 artillery, 1 airforce
    std::int16_t missiontype = 0;
    std::string start_year;
    std::string start_month;
    std::string start_day;
    std::string start_hour;
    std::string start_minute;
    std::string end_year;
    std::string end_month;
    std::string end_day;
    std::string end_hour;
    std::string end_minute;
    std::string numbtarget_id;
    std::int16_t pattern = 0;
    std::int16_t line_length = 0; // metres
    std::int16_t line_angle = 0;  // degrees
    std::int16_t xcoord = 0;
    std::int16_t ycoord = 0;
    std::string assigned_to;
    std::string affiliation;
    std::int16_t rate = 0;
    std::int16_t shells = 0;
};
