#include "mapview/selection.h"

#include "core/marker_of.h"
#include "mapview/unit_info.h"

namespace {

void set_border(Program& program, const oUnits& unit, std::int16_t style) {
    if (UnitMarker* const marker = marker_of(program.main, unit)) marker->border_style = style;
}

bool lies_inside(const UnitMarker& marker, const ShapeControl& band) {
    return marker.top >= band.top && marker.left >= band.left &&
           marker.top + marker.height <= band.top + band.height &&
           marker.left + marker.width <= band.left + band.width;
}

} // namespace

void set_menus_by_count(Program& program) {
    const bool group = program.campaign.colSelectedUnits.count() > 1;
    Menus& menus = program.main;
    menus.mnuDeleteSelected.enabled = group;
    menus.mnuUP_delete_all.enabled = group;
    menus.mnuUP_delete.enabled = !group;
    menus.mnuUP_edit.enabled = !group;
    menus.mnuUP_moveto.enabled = !group;
}

void clear_selection(Program& program) {
    Campaign& campaign = program.campaign;
    for (const auto& unit : campaign.colSelectedUnits) set_border(program, *unit, 0);
    campaign.colSelectedUnits.drop();
    set_menus_by_count(program);
    if (campaign.gDispUnitNames || campaign.gDispUnitHQNames) program.main.picMap.Refresh();
}

void hide_unit_info(Program& program) {
    frmMain& main = program.main;
    main.picUnitInfo.visible = false;
    main.transferring_fe = false;
    main.moving_waypoint = false;
    main.cmdTransferFE.enabled = false;
    program.campaign.curUFE = nullptr;
    main.hierarchy_on = false;
    main.cmdHierarchy.show_on(false);
    main.picMap.Refresh();
}

void select_unit(Program& program, const std::shared_ptr<oUnits>& unit) {
    program.campaign.colSelectedUnits->add_new(unit, unit->ID);
    set_border(program, *unit, 1);
}

void select_alone(Program& program, const std::shared_ptr<oUnits>& unit) {
    clear_selection(program);
    select_unit(program, unit);
    show_unit_info(program, unit->ID);
}

void toggle_selection(Program& program, int index) {
    Campaign& campaign = program.campaign;
    UnitMarker& marker = program.main.imgUnit(index);
    if (marker.border_style == 1) {
        campaign.colSelectedUnits->remove(marker.tag);
        marker.border_style = 0;
    } else {
        campaign.colSelectedUnits->add(campaign.colUnits->item(marker.tag), marker.tag);
        if (campaign.colSelectedUnits.count() > 1) hide_unit_info(program);
        marker.border_style = 1;
    }
    set_menus_by_count(program);
}

int selected_marker(const Program& program) {
    if (program.campaign.colSelectedUnits.empty()) return 0;
    const oUnits& unit = *program.campaign.colSelectedUnits->at(1);
    const UnitMarker* const marker = marker_of(program.main, unit);
    const bool on_map = marker != nullptr && marker->visible && marker->container == Container::map;
    return on_map ? unit.img_index : 0;
}

int select_in_band(Program& program, const ShapeControl& band) {
    Campaign& campaign = program.campaign;
    for (const auto& unit : campaign.colSelectedUnits) set_border(program, *unit, 0);
    campaign.colSelectedUnits.drop();
    int last = 0;
    for (int i = 1; i < campaign.gNextUnitIndex; ++i) {
        UnitMarker& marker = program.main.imgUnit(i);
        if (marker.tag == deleted_tag || !lies_inside(marker, band)) continue;
        campaign.colSelectedUnits->add(campaign.colUnits->item(marker.tag), marker.tag);
        marker.border_style = 1;
        last = i;
    }
    return last;
}
