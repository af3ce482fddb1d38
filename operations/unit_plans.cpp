#include "operations/unit_plans.h"

#include "core/unit_place.h"

#include <algorithm>

namespace {

/// What mark and texts of a waypoint can touch, the texts in letters of up to twelve points.
Bounds bounds_of_waypoint(const oWaypoint& waypoint) {
    constexpr int largest_size = 12;
    constexpr double em = 2.0 * largest_size;
    constexpr std::size_t length_of_numbers = 60;
    std::size_t letters = length_of_numbers;
    std::ptrdiff_t line_ends = 0;
    for (const std::string* text : {&waypoint.end_month, &waypoint.end_day, &waypoint.end_hour,
                                    &waypoint.end_minute, &waypoint.notes}) {
        letters += text->size();
        line_ends += std::count(text->begin(), text->end(), '\n');
    }
    const Point at = place_of(waypoint);
    return {at.x - left_of_waypoint_texts - em, at.y - em, at.x + em * static_cast<double>(letters),
            at.y + em * static_cast<double>(line_ends + 4)};
}

/// Where marks and texts of the unit's waypoints lie, nothing when it has none.
Bounds route_bounds(const oUnits& unit) {
    return unit.route_bounds.get([&] {
        Bounds bounds = Bounds::nothing();
        if (unit.waypoints.empty()) return bounds;
        for (const auto& waypoint : unit.waypoints) bounds = bounds.with(bounds_of_waypoint(*waypoint));
        return bounds;
    });
}

/// Where the area lies beside its unit, nothing when it has too few corners to be one.
Bounds area_bounds(const oUnits& unit) {
    return unit.area_bounds.get([&] {
        return unit.area_of_opeartion.count() < corners_of_an_area ? Bounds::nothing()
                                                                   : box_of(unit.area_of_opeartion);
    });
}

void gather(UnitPlans& plans, const oUnits& unit) {
    constexpr double pen = 4;
    const Point place = place_of(unit);
    const Bounds route = route_bounds(unit);
    if (!route.is_nothing()) plans.routes.push_back({&unit, route.with(bounds_of(place)).grown_by(pen)});
    const Bounds area = area_bounds(unit);
    if (!area.is_nothing()) plans.areas.push_back({&unit, area.moved_by(place).grown_by(pen)});
}

} // namespace

const UnitPlans& unit_plans(Program& program) {
    const Collection<oUnits>& units = *program.campaign.colUnits;
    const auto gather_all = [&] {
        UnitPlans plans;
        for (const auto& unit : units) gather(plans, *unit);
        return plans;
    };
    return program.painting.unit_plans.get(gather_all, units.version(), UnitMoves::count(),
                                           CornerChanges::count());
}
