#include "operations/fire_fans.h"

#include "annotation/draw_lines.h"
#include "core/marker_of.h"
#include "core/numbers.h"
#include "core/trap.h"
#include "core/unit_place.h"
#include "operations/artillery_pieces.h"

#include <cmath>

namespace {

constexpr double pi = 3.14159265;
constexpr double pixels_per_metre = 150 / 1000.0;

constexpr std::int32_t red = 255;
constexpr std::int32_t green = 0xFF00;
constexpr std::int32_t blue = 0xFF0000;

using Piece = ArtilleryPieces::Piece;

/// Draws the piece's arc of 60 degrees around its bearing, or the full circle.
void draw_firefan(Surface& surface, Point at, const Piece& piece, double radius) {
    surface.pen.DrawStyle = 0;
    if (!piece.entry->firefan) {
        surface.circle(at, radius);
        return;
    }
    int middle = 360 - piece.element->FireFanAngle + 90; // counter-clockwise from the east
    if (middle >= 360) middle -= 360;
    int start = middle - 30;
    if (start < 0) start += 360;
    int end = middle + 30;
    if (end > 359) end -= 360;
    surface.pie(at, radius, start * pi / 180, end * pi / 180);
}

bool is_active(const Program& program, const oUnits& unit) {
    return program.main.picUnitInfo.visible && program.campaign.curUnit.get() == &unit;
}

bool is_current(const Program& program, const Piece& piece) {
    return program.campaign.curUFE.get() == piece.element;
}

void draw_on_overview(const Program& program, Surface& overview, const Piece& piece, std::int32_t colour) {
    const frmMain& main = program.main;
    if (marker_of(main, *piece.unit) == nullptr) return; // nor has it a dot
    const OverviewDot& dot = main.shpUnit(piece.unit->img_index);
    const double ratio = main.picOverviewmap.scale_width() / main.picMap.width;
    overview.pen.DrawMode = 9;
    overview.pen.FillStyle = 0;
    overview.pen.FillColor = colour;
    draw_firefan(overview, {dot.left + 1, dot.top + 2}, piece,
                 ratio * piece.entry->max_range * pixels_per_metre);
}

void draw_on_map(const Program& program, Painting& painting, const Piece& piece) {
    Surface& map = painting.map;
    const oUnits& unit = *piece.unit;
    const bool active = is_active(program, unit);
    const bool current = is_current(program, piece);
    map.pen.FillStyle = unit.affiliation == "Allied" ? 2 : 3;
    map.pen.FillColor = !active ? blue : current ? green : red;
    draw_firefan(map, place_of(unit), piece, piece.entry->max_range * pixels_per_metre);
    // The element in hand is to be seen on the overview whatever that one shows.
    if (current && active) draw_on_overview(program, painting.overview, piece, green);
}

/// Runs `draw(piece)` for each piece that `find` gives. Fans that can't be drawn leave the others and the
/// rest of the picture alone; the paint tells of them at its end.
template <class Find, class Draw> void draw_fans(Painting& painting, Find find, Draw draw) {
    const auto note = [&](int number) {
        if (number != 0) painting.firefan_failure = number;
    };
    note(failure_of([&] {
        const ArtilleryPieces& found = find();
        for (const Piece& piece : found.pieces) note(failure_of([&] { draw(piece); }));
        note(found.failure);
    }));
}

} // namespace

std::int16_t firefan_angle(const oUnits& unit, double x, double y) {
    const double dx = x - unit.xcoord;
    const double dy = y - unit.ycoord; // down
    if (dx == 0) return dy < 0 ? 0 : 180;
    if (dy == 0) return dx > 0 ? 90 : 270;
    const double t = std::atan(std::abs(dy) / std::abs(dx)) * 180 / pi;
    const double side = dx > 0 ? 90 : 270;
    const bool turns_back = (dx > 0) == (dy < 0);
    return whole_int16(turns_back ? side - t : side + t);
}

void set_firefan_angle(Program& program, double x, double y) {
    trap(program, " when moving firefans.", [&] {
        const Campaign& campaign = program.campaign;
        if (!campaign.curUFE || !campaign.curUnit) throw Failure{failure::no_object};
        campaign.curUFE->FireFanAngle = firefan_angle(*campaign.curUnit, x, y);
        program.main.picMap.Refresh();
    });
}

void draw_overview(Program& program, Painting& painting) {
    painting.overview.clear();
    const auto find = [&]() -> const ArtilleryPieces& { return all_artillery_pieces(program); };
    const auto draw = [&](const Piece& piece) {
        const std::int32_t side = piece.unit->affiliation == "Allied" ? red : blue;
        draw_on_overview(program, painting.overview, piece, is_current(program, piece) ? green : side);
    };
    if (program.campaign.gDispOmFirefans) draw_fans(painting, find, draw);
    if (program.main.mnuOVPU_showlines.checked) draw_overview_lines(program, painting);
}

bool firefans_are_shown(const Program& program) { return program.campaign.gDispFirefans; }

void draw_firefans(Program& program, Painting& painting) {
    const Campaign& campaign = program.campaign;
    const auto all = [&]() -> const ArtilleryPieces& { return all_artillery_pieces(program); };
    const auto of_selected = [&] { return artillery_pieces_of(program, *campaign.curUnit); };
    const auto draw = [&](const Piece& piece) { draw_on_map(program, painting, piece); };
    if (program.main.picUnitInfo.visible && campaign.gDispFirefansSelected) {
        painting.map.pen.ForeColor = red;
        if (campaign.curUnit) draw_fans(painting, of_selected, draw);
    } else if (campaign.gDispFirefansAll) {
        painting.map.pen.ForeColor = blue;
        draw_fans(painting, all, draw);
    }
}
