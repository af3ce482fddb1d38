#include "operations/range_tools.h"

#include "core/numbers.h"
#include "core/unit_place.h"
#include "mapview/tool_modes.h"

#include <cmath>

namespace {

/// The distance of two map pixels in hundredths of a kilometre.
double hundredths(Point from, Point to) {
    const double a = round_half_even(std::abs(from.x - to.x) * 100 / 150);
    const double b = round_half_even(std::abs(from.y - to.y) * 100 / 150);
    return std::sqrt(a * a + b * b);
}

std::string range_text(double hundredths_of_km) {
    return "Range: " + format_fixed(hundredths_of_km / 100, 1, 2) + " km.";
}

double live_leg(const LineControl& rubber) {
    return hundredths({rubber.x1, rubber.y1}, {rubber.x2, rubber.y2});
}

std::string& range_panel(Program& program) { return program.main.sbarMap.panels[2]; }

void centre(ShapeControl& anchor, const MapPress& press) {
    anchor.width = anchor.height = 7;
    anchor.left = press.x - anchor.width / 2;
    anchor.top = press.y - anchor.height / 2;
    anchor.visible = true;
}

void forget_path(Program& program) {
    frmMain& main = program.main;
    main.shpAnchor.resize(1);
    main.shpAnchor[0].visible = false;
    main.linTempLine.visible = false;
    program.campaign.colPathPoints.drop();
    range_panel(program).clear();
    main.picMap.Refresh();
}

void end_range(Program& program) {
    frmMain& main = program.main;
    main.cmdRangecheck.show_on(false);
    main.shpAnchor[0].visible = false;
    main.linTempLine.width = 2;
    main.linTempLine.visible = false;
    range_panel(program).clear();
    enable_all(program);
}

/// Lets only the tool's own button be pressed.
void start_tool(Program& program, Button& own) {
    own.show_on(true);
    disable_all(program);
    own.enabled = true;
}

} // namespace

void cmdRangecheck_Click(Program& program) {
    frmMain& main = program.main;
    main.checking_range = !main.checking_range;
    if (!main.checking_range) {
        end_range(program);
        return;
    }
    main.linTempLine.width = 2;
    main.linTempLine.colour = 0;
    start_tool(program, main.cmdRangecheck);
}

void cmdPathRange_Click(Program& program) {
    frmMain& main = program.main;
    main.checking_path_range = !main.checking_path_range;
    if (main.checking_path_range) {
        main.linTempLine.width = 2;
        start_tool(program, main.cmdPathRange);
        return;
    }
    main.cmdPathRange.show_on(false);
    forget_path(program);
    enable_all(program);
}

void mnuRangeCircles_Click(Program& program) {
    frmMain& main = program.main;
    main.showing_range_circles = !main.showing_range_circles;
    main.mnuRangeCircles.checked = main.showing_range_circles;
    if (!main.showing_range_circles) program.campaign.colCirclePoints.drop();
    main.picMap.Refresh();
}

bool circles_are_on(const Program& program) { return program.main.showing_range_circles; }

Outcome press_sets_circles(Program& program, const MapPress& press) {
    if (press.button == left_button)
        program.campaign.colCirclePoints->add(
            std::make_shared<oCoordinates>(oCoordinates{to_long(press.x), to_long(press.y)}));
    else
        program.campaign.colCirclePoints.drop();
    program.main.picMap.Refresh();
    return Outcome::goes_on;
}

bool range_is_checked(const Program& program) { return program.main.checking_range; }

Outcome press_anchors_range(Program& program, const MapPress& press) {
    centre(program.main.shpAnchor[0], press);
    start_scratch_line(program.main.linTempLine, press);
    return Outcome::goes_on;
}

Outcome press_ends_range(Program& program, const MapPress& /*press*/) {
    program.main.checking_range = false;
    end_range(program);
    return Outcome::done;
}

bool path_range_is_checked(const Program& program) { return program.main.checking_path_range; }

Outcome press_adds_path_point(Program& program, const MapPress& press) {
    frmMain& main = program.main;
    auto& path = program.campaign.colPathPoints;
    path->add(std::make_shared<oCoordinates>(oCoordinates{to_long(press.x), to_long(press.y)}));
    main.shpAnchor.resize(path.count());
    centre(main.shpAnchor.back(), press);
    start_scratch_line(main.linTempLine, press);
    main.picMap.Refresh();
    return Outcome::goes_on;
}

Outcome press_drops_path(Program& program, const MapPress& /*press*/) {
    forget_path(program);
    return Outcome::goes_on;
}

bool leg_is_measured(const Program& program) {
    const frmMain& main = program.main;
    return main.linTempLine.visible && (main.checking_range || main.set_waypoints);
}

void show_leg(Program& program, const MapPress& /*press*/) {
    range_panel(program) = range_text(round_half_even(live_leg(program.main.linTempLine)));
}

void show_path(Program& program, const MapPress& /*press*/) {
    const auto& path = program.campaign.colPathPoints;
    if (path.empty()) return;
    std::int16_t total = 0;
    for (std::size_t i = 1; i < path.count(); ++i)
        total = to_int16(total + hundredths(place_of(*path->at(i)), place_of(*path->at(i + 1))));
    range_panel(program) = range_text(round_half_even(total + live_leg(program.main.linTempLine)));
}
