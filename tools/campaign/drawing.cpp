#include "tools/campaign/drawing.h"

#include "core/identity.h"
#include "core/numbers.h"
#include "mapview/label_control.h"
#include "mapview/shape_control.h"

#include <array>
#include <cmath>

namespace {

std::int32_t x_of(double east) { return to_long(east * 150); }
std::int32_t y_of(double north) { return to_long((40 - north) * 150 + 102); }

void add_vertices(Collection<oCoordinates>& vertices, const std::vector<Kilometres>& points) {
    for (const auto& [east, north] : points)
        vertices.add(std::make_shared<oCoordinates>(oCoordinates{x_of(east), y_of(north)}));
}

std::string two_digits(int value) { return format_fixed(value, 2, 0); }

} // namespace

void line(Program& program, std::int32_t colour, int style, int width, const std::string& boundary,
          const std::vector<Kilometres>& points) {
    auto made = std::make_shared<oLines>();
    made->linecolor = colour;
    made->linestyle = static_cast<std::int16_t>(style);
    made->linewidth = static_cast<std::int16_t>(width);
    made->is_polyline = points.size() > 2;
    made->is_boundry = !boundary.empty();
    made->boundry_size = boundary.empty() ? "Battalion" : boundary;
    add_vertices(*made->colCoords, points);
    program.campaign.colLines->add(made);
}

void objective(Program& program, const std::string& name, std::int32_t colour,
               const std::vector<Kilometres>& points) {
    auto made = std::make_shared<oPolygons>();
    made->ID = new_guid(program.platform);
    made->bordercolor = 0x0000C0;
    made->borderwidth = 2;
    made->fillcolor = colour;
    made->drawmode = 9;
    made->notes = name;
    made->fontcolor = 0x000080;
    add_vertices(*made->coordinates, points);
    program.campaign.colPolygons->add(made, made->ID);
}

void label(Program& program, const std::string& text, Kilometres at, int size, std::int32_t colour) {
    auto made = std::make_shared<oLabels>();
    made->ID = new_guid(program.platform);
    made->xcoord = to_int16(x_of(at.first));
    made->ycoord = to_int16(y_of(at.second));
    made->text = text;
    made->font_name = "Arial";
    made->font_color = colour;
    made->font_bold = true;
    made->font_size = static_cast<std::int16_t>(size);
    made->backcolor = 0xE1F1F6;
    made->borderstyle = 1;
    made->backstyle = 1;
    program.campaign.colLabels->add(made, made->ID);
    make_label_control(program, *made);
}

void shape(Program& program, const std::string& notes, Kilometres at, int kind, int width, int height,
           std::int32_t fill) {
    auto made = std::make_shared<oShapes>();
    made->ID = new_guid(program.platform);
    made->shape_index = program.campaign.gNextShapeIndex;
    made->xcoord = to_int16(x_of(at.first));
    made->ycoord = to_int16(y_of(at.second));
    made->bordercolor = 0x000000;
    made->borderwidth = 1;
    made->fillcolor = fill;
    made->width = static_cast<std::int16_t>(width);
    made->height = static_cast<std::int16_t>(height);
    made->notes = notes;
    made->notescolor = 0x000000;
    made->notesfont = "Arial";
    made->notesfontsize = 9;
    made->notesfontbold = true;
    made->drawmode = 9;
    made->shape = static_cast<std::int16_t>(kind);
    program.campaign.colShapes->add(made, made->ID);
    make_shape_controls(program, *made);
}

void mission(Program& program, const std::string& notes, int mission_class, int type, int pattern,
             Kilometres at, const std::string& affiliation) {
    auto made = std::make_shared<oFireMission>();
    made->ID = new_guid(program.platform);
    made->notes = notes;
    made->missionclass = static_cast<std::int16_t>(mission_class);
    made->missiontype = static_cast<std::int16_t>(type);
    made->start_year = made->end_year = "1942";
    made->start_month = made->end_month = "November";
    made->start_day = made->end_day = "25";
    made->start_hour = "07";
    made->start_minute = "30";
    made->end_hour = "08";
    made->end_minute = "10";
    made->numbtarget_id = type >= 3 ? "K" + std::to_string(110 + type) : "";
    made->pattern = static_cast<std::int16_t>(pattern);
    made->line_length = static_cast<std::int16_t>(pattern == 4 ? 800 : 0);
    made->xcoord = to_int16(x_of(at.first));
    made->ycoord = to_int16(y_of(at.second));
    made->affiliation = affiliation;
    made->rate = 4;
    made->shells = 120;
    program.campaign.colFireMissions->add(made, made->ID);
}

void march(Program& program, const std::string& name, double speed, const std::vector<Kilometres>& points,
           const std::string& notes) {
    for (const auto& unit : *program.campaign.colUnits) {
        if (unit->name != name) continue;
        double x = unit->xcoord;
        double y = unit->ycoord;
        int minute = 7 * 60;
        for (const auto& [east, north] : points) {
            auto leg = std::make_shared<oWaypoint>();
            leg->ID = new_guid(program.platform);
            leg->X = static_cast<float>(x_of(east));
            leg->Y = static_cast<float>(y_of(north));
            const double a = round_half_even(std::abs(x - leg->X) * 100 / 150);
            const double b = round_half_even(std::abs(y - leg->Y) * 100 / 150);
            leg->range = to_int16(std::hypot(a, b) * 10);
            leg->speed = speed;
            leg->start_year = leg->end_year = "1942";
            leg->start_month = leg->end_month = "November";
            leg->start_day = two_digits(25 + minute / 1440);
            leg->start_hour = two_digits(minute / 60 % 24);
            leg->start_minute = two_digits(minute % 60);
            minute += to_int16(leg->range / (speed * 1000 / 60));
            leg->end_day = two_digits(25 + minute / 1440);
            leg->end_hour = two_digits(minute / 60 % 24);
            leg->end_minute = two_digits(minute % 60);
            leg->notes = notes;
            unit->waypoints->add(leg, leg->ID);
            x = leg->X;
            y = leg->Y;
        }
    }
}

void area(Program& program, const std::string& name, double width, double depth, double facing) {
    for (const auto& unit : *program.campaign.colUnits) {
        if (unit->name != name) continue;
        const double angle = facing * 3.14159265 / 180;
        constexpr std::array<std::pair<double, double>, 4> corners{
            {{-0.5, -0.35}, {0.5, -0.35}, {0.5, 0.65}, {-0.5, 0.65}}};
        for (const auto& [side, forward] : corners) {
            const double across = side * width;
            const double ahead = forward * depth;
            const double east = ahead * std::sin(angle) + across * std::cos(angle);
            const double north = ahead * std::cos(angle) - across * std::sin(angle);
            unit->area_of_opeartion->add(
                std::make_shared<oCoordinates>(oCoordinates{to_long(east * 150), to_long(-north * 150)}));
        }
    }
}
