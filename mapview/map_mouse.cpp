#include "mapview/map_mouse.h"

#include "core/numbers.h"
#include "core/trap.h"
#include "mapview/grid_reference.h"
#include "mapview/move_label.h"
#include "mapview/move_unit.h"
#include "mapview/rubberband.h"
#include "mapview/scrolling.h"
#include "mapview/selection.h"
#include "mapview/unit_info.h"

namespace {

void show_coordinates(Program& program, std::int16_t& x, std::int16_t& y) {
    std::string east;
    std::string north;
    pixel_to_grid(program, x, y, east, north);
    program.main.sbarMap.panels[0] = "Eastern: " + east + " - Northern: " + north;
}

/// Offers the press to the tools in their order.
Outcome offer(Program& program, const MapPress& press, unsigned target) {
    for (const PressRow& row : program.tool_order.presses) {
        if ((row.targets & target) == 0 || (row.button != 0 && row.button != press.button)) continue;
        if (row.applies(program) && row.act(program, press) == Outcome::done) return Outcome::done;
    }
    return Outcome::goes_on;
}

void grab_marker(Program& program, int index, const MapPress& press) {
    const UnitMarker& marker = program.main.imgUnit(index);
    program.main.unit_grab_x = press.x - marker.left;
    program.main.unit_grab_y = press.y - marker.top;
}

void grab_label(Program& program, const MapLabel& label, const MapPress& press) {
    program.main.label_grab_x = press.x - label.left;
    program.main.label_grab_y = press.y - label.top;
}

void grab(Program& program, const HitTarget& target, const MapPress& press) {
    if (target.kind == TargetKind::unit) grab_marker(program, target.index, press);
    if (target.kind == TargetKind::label) grab_label(program, program.main.lblUser(target.index), press);
    if (target.kind == TargetKind::shape_label)
        grab_label(program, program.main.lblShapeLabel(target.index), press);
}

/// A plain press never drags.
void start_drag(Program& program, const HitTarget& target, const MapPress& press) {
    if (press.button != left_button || press.shift != shift_key) return;
    program.main.dragging = true;
    program.main.dragged = target;
    program.main.shpRubberband.visible = false; // a label's press has begun one
}

void take_in_hand(Program& program, int index, const MapPress& press) {
    frmMain& main = program.main;
    if (!(main.place_unit && main.moving_line_point && main.drawing_lines)) main.drag_index = index;
    start_drag(program, {TargetKind::unit, main.drag_index}, press);
}

/// A marker that Ctrl has shown again though its unit is gone.
bool is_tomb(const Program& program, int index) {
    return !program.campaign.colUnits->contains(program.main.imgUnit(index).tag);
}

void imgUnit_MouseDown(Program& program, int index, const MapPress& press) {
    if (offer(program, press, press_on::marker_first) == Outcome::done) return;
    const bool tomb = is_tomb(program, index);
    if (press.button == left_button && press.shift == ctrl_key && !tomb) {
        toggle_selection(program, index);
        return;
    }
    const auto& selected = program.campaign.colSelectedUnits;
    if (press.shift != ctrl_key && selected.count() < 2 && !tomb) clear_selection(program);
    if (offer(program, press, press_on::marker_middle) == Outcome::done) return;
    if (!tomb) take_in_hand(program, index, press);
    if (offer(program, press, press_on::marker_last) == Outcome::done) return;
    if (tomb) {
        show_unit_info(program, program.main.imgUnit(index).tag); // which tells that there is none
        return;
    }
    if (selected.count() < 2)
        select_alone(program, program.campaign.colUnits->item(program.main.imgUnit(index).tag));
    if (press.button == right_button) program.platform.popup_menu(mnuUnitPopup);
}

/// What every move over the map does, whatever stands there.
void follow_pointer(Program& program, const MapPress& press) {
    edge_scroll(program, press.x, press.y);
    for (const MoveRow& row : program.tool_order.moves)
        if (row.applies(program)) row.act(program, press);
}

void picMap_MouseMove(Program& program, const MapPress& press) {
    frmMain& main = program.main;
    main.current_x = to_int16(press.x);
    main.current_y = to_int16(press.y);
    follow_pointer(program, press);
    // The conversion adds 48 to `current_y` itself: who reads that field allows for it.
    show_coordinates(program, main.current_x, main.current_y);
    if (press.button == left_button && band_may_grow(program, main.shpRubberband))
        stretch_band(program, main.shpRubberband, press.x, press.y);
}

void control_MouseMove(Program& program, const HitTarget& target, const MapPress& press) {
    grab(program, target, press);
    follow_pointer(program, press);
    std::int16_t x = to_int16(press.x);
    std::int16_t y = to_int16(press.y);
    show_coordinates(program, x, y);
}

/// A place of the overview as map pixels.
Point map_place(const Program& program, double x, double y) {
    const frmMain& main = program.main;
    return {main.picMap.width / main.picOverviewmap.scale_width() * x,
            main.picMap.height / main.picOverviewmap.scale_height() * y};
}

/// The label or caption that is dragged, or nothing.
const MapLabel* dragged_label(const frmMain& main) {
    if (main.dragged.kind == TargetKind::label) return &main.lblUser(main.dragged.index);
    if (main.dragged.kind == TargetKind::shape_label) return &main.lblShapeLabel(main.dragged.index);
    return nullptr;
}

/// Where the centre of what is dragged would land.
Point dragged_centre(const Program& program, double x, double y) {
    const frmMain& main = program.main;
    const MapLabel* const label = dragged_label(main);
    if (label == nullptr) {
        const UnitMarker& marker = main.imgUnit(main.drag_index);
        return {x - main.unit_grab_x + marker.width / 2, y - main.unit_grab_y + marker.height / 2};
    }
    return {x - main.label_grab_x + label->width / 2, y - main.label_grab_y + label->height / 2};
}

void drop_label(Program& program, double x, double y) {
    if (program.main.dragged.kind == TargetKind::label)
        move_label(program, program.main.dragged.index, x, y);
    else
        move_shape_by_caption(program, program.main.dragged.index, x, y);
}

void drop_unit(Program& program, DropSite site, double x, double y) {
    if (site == DropSite::overview) {
        const Point place = map_place(program, x, y);
        drop_markers(program, Container::map, round_half_even(place.x), round_half_even(place.y));
    } else if (site == DropSite::tray) {
        drop_markers(program, Container::tray, x, y);
    } else {
        drop_markers(program, Container::map, whole_part(x), whole_part(y));
    }
}

} // namespace

void mouse_down(Program& program, const HitTarget& target, MapPress press) {
    trap(program, " when pressing a mouse button on the map.", [&] {
        press.on_bare_map = target.kind == TargetKind::map;
        grab(program, target, press);
        if (target.kind == TargetKind::unit) {
            imgUnit_MouseDown(program, target.index, press);
            return;
        }
        // Whichever row acts: a right click that ends a tool must not make the map jump.
        if (press.on_bare_map && press.button == right_button) {
            program.main.popup_x = to_int16(press.x);
            program.main.popup_y = to_int16(press.y);
        }
        const Outcome outcome = offer(program, press, press_on::map);
        if (!press.on_bare_map && outcome == Outcome::goes_on) start_drag(program, target, press);
    });
}

void end_press(Program& program) {
    frmMain& main = program.main;
    main.dragging = false;
    main.shpRubberband.visible = false;
    main.shpTrayRubberband.visible = false;
    main.map_popup_shown = false;
}

void mouse_move(Program& program, const HitTarget& target, const MapPress& press) {
    trap(program, " when moving the mouse.", [&] {
        if (target.kind == TargetKind::map)
            picMap_MouseMove(program, press);
        else
            control_MouseMove(program, target, press);
    });
}

void control_MouseUp(Program& program, const HitTarget& target) {
    // A label takes a press as the map does, but no release: what only that would end must not stay.
    if (target.kind != TargetKind::unit) end_press(program);
}

void picMap_MouseUp(Program& program, const MapPress& press) {
    trap(program, " when releasing a mouse button.", [&] {
        frmMain& main = program.main;
        if (main.map_popup_shown) {
            main.map_popup_shown = false;
            return;
        }
        if (press.button == right_button) {
            if (main.aoo_popup_guard) {
                main.aoo_popup_guard = false;
                return;
            }
            if (!main.drawing_lines && !program.campaign.selecting_fire_mission)
                pan_map(program, press.x, press.y);
        }
        finish_band(program);
        if (program.campaign.colSelectedUnits.count() > 1) set_menus_by_count(program);
    });
}

void drag_over(Program& program, DropSite site, double x, double y) {
    trap(program, " when moving a unit.", [&] {
        frmMain& main = program.main;
        if (site == DropSite::nowhere || site == DropSite::tray) return;
        if (site == DropSite::overview && dragged_label(main) != nullptr) return;
        Point centre{x, y};
        if (site == DropSite::overview) {
            centre = map_place(program, x, y);
        } else {
            edge_scroll(program, x, y);
            centre = dragged_centre(program, x, y);
        }
        std::int16_t east = to_int16(centre.x);
        std::int16_t north = to_int16(centre.y);
        pixel_to_grid(program, east, north, main.lblUIeastcoord.caption, main.lblUInorthcoord.caption);
        main.sbarMap.panels[0] =
            "Eastern: " + main.lblUIeastcoord.caption + " - Northern: " + main.lblUInorthcoord.caption;
    });
}

void drag_drop(Program& program, DropSite site, double x, double y) {
    program.main.dragging = false;
    trap(program, " when moving a unit.", [&] {
        const bool label = dragged_label(program.main) != nullptr;
        // Labels stay on the map: overview and tray take markers only.
        if (site == DropSite::nowhere || (label && site != DropSite::map)) return;
        if (label)
            drop_label(program, x, y);
        else
            drop_unit(program, site, x, y);
        program.main.picMap.Refresh();
    });
}
