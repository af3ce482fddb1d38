#include "operations/draw_areas.h"

#include "core/unit_place.h"
#include "operations/unit_plans.h"

namespace {

void set_area_pen(Surface& map, const oUnits& unit) {
    map.pen.DrawMode = 9;
    map.pen.FillStyle = 0;
    map.pen.DrawWidth = 1;
    map.pen.FillColor = unit.color;
    map.pen.ForeColor = 0;
}

void draw_area(Surface& map, const oUnits& unit) { draw_closed(map, unit.area_of_opeartion, place_of(unit)); }

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
    const oUnits& unit = *program.campaign.curUnit;
    if (unit.area_of_opeartion.count() < corners_of_an_area) return;
    set_area_pen(painting.map, unit);
    draw_area(painting.map, unit);
}

bool all_areas_are_shown(const Program& program) {
    return program.campaign.gDispAooAll && program.campaign.gDispAoo;
}

void draw_all_aoo(Program& program, Painting& painting) {
    const oUnits* last = nullptr;
    for (const auto& [unit, bounds] : unit_plans(program).areas) {
        if (program.main.drawing_aoo && unit == program.campaign.curUnit.get()) continue;
        last = unit;
        if (!painting.map.wants(bounds)) continue;
        set_area_pen(painting.map, *unit);
        draw_area(painting.map, *unit);
    }
    if (last != nullptr) set_area_pen(painting.map, *last); // also when it was out of view
}
