#include "operations/fire_fans.h"

#include "annotation/draw_lines.h"
#include "core/catalogue.h"
#include "core/marker_of.h"
#include "core/numbers.h"
#include "core/trap.h"
#include "core/unit_place.h"

#include <cmath>
#include <utility>

namespace {

constexpr double pi = 3.14159265;
constexpr double pixels_per_metre = 150 / 1000.0;

constexpr std::int32_t red = 255;
constexpr std::int32_t green = 0xFF00;
constexpr std::int32_t blue = 0xFF0000;

/// Draws the piece's arc of 60 degrees around its bearing, or the full circle.
void draw_firefan(Surface& surface, Point at, const oUnitForceElements& element, const oForceElements& piece,
                  double radius) {
    surface.pen.DrawStyle = 0;
    if (!piece.firefan) {
        surface.circle(at, radius);
        return;
    }
    int middle = 360 - element.FireFanAngle + 90; // counter-clockwise from the east
    if (middle >= 360) middle -= 360;
    int start = middle - 30;
    if (start < 0) start += 360;
    int end = middle + 30;
    if (end > 359) end -= 360;
    surface.pie(at, radius, start * pi / 180, end * pi / 180);
}

/// The unit's pieces up to an element that the catalogue lacks. Fails with 7.
UnitFans fans_of(const Program& program, const oUnits& unit) {
    UnitFans fans{&unit, {}, 0};
    if (unit.force_elements.empty()) return fans;
    fans.failure = failure_of([&] {
        for (const auto& element : unit.force_elements)
            if (const oForceElements* const entry = artillery_piece(program, *element))
                fans.pieces.push_back({element.get(), entry});
    });
    if (fans.failure == failure::out_of_memory) throw Failure{fans.failure}; // not to be kept
    return fans;
}

/// Runs `draw(element, piece)` for each artillery piece of the unit, then fails if there should have been
/// more.
template <class Draw> void for_each_piece(const UnitFans& fans, Draw draw) {
    for (const auto& [element, entry] : fans.pieces) draw(*element, *entry);
    if (fans.failure != 0) throw Failure{fans.failure};
}

bool is_active(const Program& program, const oUnits& unit) {
    return program.main.picUnitInfo.visible && program.campaign.curUnit.get() == &unit;
}

bool is_current(const Program& program, const oUnitForceElements& element) {
    return program.campaign.curUFE.get() == &element;
}

void draw_on_overview(const Program& program, Surface& overview, const oUnits& unit,
                      const oUnitForceElements& element, const oForceElements& piece, std::int32_t colour) {
    const frmMain& main = program.main;
    if (marker_of(main, unit) == nullptr) return; // nor has it a dot
    const OverviewDot& dot = main.shpUnit(unit.img_index);
    const double ratio = main.picOverviewmap.scale_width() / main.picMap.width;
    overview.pen.DrawMode = 9;
    overview.pen.FillStyle = 0;
    overview.pen.FillColor = colour;
    draw_firefan(overview, {dot.left + 1, dot.top + 2}, element, piece,
                 ratio * piece.max_range * pixels_per_metre);
}

void draw_unit_on_overview(const Program& program, Surface& overview, const UnitFans& fans) {
    const oUnits& unit = *fans.unit;
    for_each_piece(fans, [&](const oUnitForceElements& element, const oForceElements& piece) {
        const std::int32_t side = unit.affiliation == "Allied" ? red : blue;
        draw_on_overview(program, overview, unit, element, piece,
                         is_current(program, element) ? green : side);
    });
}

void draw_unit_firefans(const Program& program, Painting& painting, const UnitFans& fans) {
    Surface& map = painting.map;
    const oUnits& unit = *fans.unit;
    for_each_piece(fans, [&](const oUnitForceElements& element, const oForceElements& piece) {
        map.pen.FillStyle = unit.affiliation == "Allied" ? 2 : 3;
        map.pen.FillColor = blue;
        const bool current = is_current(program, element);
        if (is_active(program, unit)) map.pen.FillColor = current ? green : red;
        draw_firefan(map, place_of(unit), element, piece, piece.max_range * pixels_per_metre);
        // The element in hand is to be seen on the overview whatever that one shows.
        if (current && is_active(program, unit))
            draw_on_overview(program, painting.overview, unit, element, piece, green);
    });
}

/// The fans of all units that have any, or whose drawing fails, as they now are: good, with their pointers,
/// until the list of units, what one of them holds or the catalogue changes. Each paint draws them, and most
/// units of a large campaign have none.
const std::vector<UnitFans>& units_with_fans(Program& program) {
    const Campaign& campaign = program.campaign;
    const auto find_all = [&] {
        std::vector<UnitFans> found;
        for (const auto& unit : campaign.colUnits) {
            UnitFans fans = fans_of(program, *unit);
            if (!fans.pieces.empty() || fans.failure != 0) found.push_back(std::move(fans));
        }
        return found;
    };
    return program.painting.units_with_fans.get(find_all, campaign.colUnits->version(),
                                                HoldingChanges::count(),
                                                campaign.colForceElements->version());
}

/// Runs `draw`. Fans that can't be drawn leave those of other units and the rest of the picture alone; the
/// paint tells of them at its end. Only too little memory to look them up leaves out all that the layer was
/// to draw.
template <class Draw> void try_fans(Painting& painting, Draw draw) {
    const int number = failure_of(draw);
    if (number != 0) painting.firefan_failure = number;
}

/// Runs `draw(fans)` for each unit with fans.
template <class Draw> void try_fans_of_all(Program& program, Painting& painting, Draw draw) {
    try_fans(painting, [&] {
        for (const UnitFans& fans : units_with_fans(program)) try_fans(painting, [&] { draw(fans); });
    });
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
    const auto draw = [&](const UnitFans& fans) { draw_unit_on_overview(program, painting.overview, fans); };
    if (program.campaign.gDispOmFirefans) try_fans_of_all(program, painting, draw);
    if (program.main.mnuOVPU_showlines.checked) draw_overview_lines(program, painting);
}

bool firefans_are_shown(const Program& program) { return program.campaign.gDispFirefans; }

void draw_firefans(Program& program, Painting& painting) {
    const Campaign& campaign = program.campaign;
    const auto draw = [&](const UnitFans& fans) { draw_unit_firefans(program, painting, fans); };
    if (program.main.picUnitInfo.visible && campaign.gDispFirefansSelected) {
        painting.map.pen.ForeColor = red;
        if (campaign.curUnit) try_fans(painting, [&] { draw(fans_of(program, *campaign.curUnit)); });
    } else if (campaign.gDispFirefansAll) {
        painting.map.pen.ForeColor = blue;
        try_fans_of_all(program, painting, draw);
    }
}
