#include "operations/draw_areas.h"

#include "core/unit_place.h"

namespace {

/// Where the area lies beside its unit, nothing when it has too few points to be one.
const Bounds& area_bounds(const oUnits& unit) {
    return unit.area_bounds.get([&] {
        return unit.area_of_opeartion.count() < 3 ? Bounds::nothing() : box_of(unit.area_of_opeartion);
    });
}

void draw_area(Surface& map, const oUnits& unit) {
    const Bounds& bounds = area_bounds(unit);
    if (bounds.is_nothing()) return;
    map.pen.DrawMode = 9;
    map.pen.FillStyle = 0;
    map.pen.DrawWidth = 1;
    map.pen.FillColor = unit.color;
    map.pen.ForeColor = 0;
    if (map.wants(bounds.moved_by(place_of(unit)).grown_by(2)))
        draw_closed(map, unit.area_of_opeartion, place_of(unit));
}

} // namespace

bool area_is_being_drawn(const Program& program) {
    const auto& unit = program.campaign.curUnit;
    return unit && unit->area_of_opeartion.count() > 1 && program.main.drawing_aoo &&
           program.main.linTempLine.visible;
}

void draw_area_being_drawn(Program& program, Painting& painting) {
    const oUnits& unit = *program.campaign.curUnit;
    painting.map.pen.DrawWidth = 1;
    painting.map.pen.ForeColor = 0;
    draw_path(painting.map, unit.area_of_opeartion, place_of(unit));
}

bool selected_area_is_shown(const Program& program) {
    const Campaign& campaign = program.campaign;
    return campaign.curUnit && campaign.gDispAooSelected && campaign.gDispAoo && !program.main.drawing_aoo &&
           program.main.picUnitInfo.visible;
}

void draw_selected_aoo(Program& program, Painting& painting) {
    draw_area(painting.map, *program.campaign.curUnit);
}

bool all_areas_are_shown(const Program& program) {
    return program.campaign.gDispAooAll && program.campaign.gDispAoo;
}

void draw_all_aoo(Program& program, Painting& painting) {
    for (const auto& unit : program.campaign.colUnits)
        if (!(program.main.drawing_aoo && unit == program.campaign.curUnit)) draw_area(painting.map, *unit);
}
