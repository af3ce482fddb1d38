#include "mapview/move_unit.h"

#include "core/marker_of.h"
#include "core/numbers.h"
#include "core/trap.h"
#include "mapview/frmEnterCoord.h"
#include "mapview/unit_states.h"

#include <algorithm>

namespace {

const PictureBox& container_of(const Program& program, const UnitMarker& marker) {
    return marker.container == Container::tray ? program.main.picUnitTray : program.main.picMap;
}

/// Keeps the centre inside the container.
double clamped(double edge, double size, double room) {
    return std::clamp(edge, -size / 2, std::max(room - size / 2, -size / 2));
}

void place_dot(const frmMain& main, OverviewDot& dot, const UnitMarker& marker) {
    const double ratio = main.picOverviewmap.scale_width() / main.picMap.width; // of widths, for both axes
    dot.left = ratio * marker.left;
    dot.top = round_half_even(ratio * marker.top) - 2;
}

void leave_area(oUnits& unit, int dx, int dy) {
    if (unit.area_of_opeartion.empty()) return;
    for (const auto& vertex : unit.area_of_opeartion) {
        vertex->x_cor = to_long(static_cast<double>(vertex->x_cor) - dx);
        vertex->y_cor = to_long(static_cast<double>(vertex->y_cor) - dy);
    }
}

struct Place {
    double left;
    double top;
};

/// Moves marker, dot and bar; `centre_of` gives the unit's new place from where the marker now is.
template <class Centre> void move(Program& program, int index, Place wanted, Centre centre_of) {
    frmMain& main = program.main;
    UnitMarker& marker = main.imgUnit(index);
    OverviewDot& dot = main.shpUnit(index);
    oUnits& unit = *program.campaign.colUnits->item(marker.tag);
    const PictureBox& container = container_of(program, marker);
    marker.visible = false;
    dot.visible = false;
    marker.left = clamped(wanted.left, marker.width, container.scale_width());
    marker.top = clamped(wanted.top, marker.height, container.scale_height());
    place_dot(main, dot, marker);
    const auto [x, y] = centre_of(marker);
    const int dx = x - unit.xcoord;
    const int dy = y - unit.ycoord;
    unit.xcoord = x;
    unit.ycoord = y;
    main.bring_to_front(marker);
    if (main.mnuLeaveAOO.checked) leave_area(unit, dx, dy);
    marker.visible = true;
    dot.visible = true;
    move_state_bar(program, unit);
}

using Centre = std::pair<std::int16_t, std::int16_t>;

} // namespace

void move_unit_marker(Program& program, int index, double x, double y) {
    const frmMain& main = program.main;
    move(program, index, {x - main.unit_grab_x, y - main.unit_grab_y}, [](const UnitMarker& marker) {
        return Centre{to_int16(marker.width / 2 + marker.left), to_int16(marker.height / 2 + marker.top)};
    });
}

void move_unit_marker_to(Program& program, int index, std::int16_t x, std::int16_t y) {
    const UnitMarker& marker = program.main.imgUnit(index);
    move(program, index, {x - marker.width / 2, y - marker.height / 2}, [&](const UnitMarker&) {
        return Centre{x, y};
    });
}

void drop_markers(Program& program, Container container, double x, double y) {
    frmMain& main = program.main;
    UnitMarker& dragged = main.imgUnit(main.drag_index);
    const double a = dragged.left - x;
    const double b = dragged.top - y;
    dragged.container = container;
    const auto& selected = program.campaign.colSelectedUnits;
    if (selected.empty()) return; // a tool took the press: the marker keeps its place
    move_unit_marker(program, main.drag_index, x, y);
    if (selected.count() < 2) return;
    for (const auto& unit : selected->items()) {
        if (unit->img_index == main.drag_index) continue;
        UnitMarker* const marker = marker_of(main, *unit);
        if (marker == nullptr) throw Failure{failure::no_such_control};
        marker->container = container;
        move_unit_marker(program, unit->img_index, marker->left - a, marker->top - b);
    }
}

void mnuLeaveAOO_Click(Program& program) {
    program.main.mnuLeaveAOO.checked = !program.main.mnuLeaveAOO.checked;
}

void mnuUP_moveto_Click(Program& program) {
    trap(program, " when moving a unit.", [&] {
        program.campaign.gCoordCancelled = false;
        program.form<frmEnterCoord>().show_modal();
        if (program.campaign.gCoordCancelled) return;
        move_unit_marker_to(program, program.main.drag_index, program.campaign.gFindX,
                            program.campaign.gFindY);
        program.main.picMap.Refresh();
    });
}
