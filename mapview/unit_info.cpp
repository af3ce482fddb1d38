#include "mapview/unit_info.h"

#include "core/catalogue.h"
#include "core/marker_of.h"
#include "core/numbers.h"
#include "core/trap.h"
#include "mapview/grid_reference.h"
#include "mapview/scrolling.h"
#include "mapview/selection.h"
#include "mapview/unit_info_rows.h"

namespace {

void collect(const Program& program, const std::string& id, int depth, Collection<oChildren>& list) {
    if (depth > listed_levels) return;
    const oUnits& unit = *program.campaign.colUnits->item(id);
    if (unit.children.empty()) return;
    for (const auto& child : unit.children) {
        static_cast<void>(program.campaign.colUnits->item(child->ID));
        list.add(std::make_shared<oChildren>(oChildren{child->ID, std::to_string(depth)}), child->ID);
        collect(program, child->ID, depth + 1, list);
    }
}

std::int16_t sum16(int a, int b) { return to_int16(static_cast<double>(a) + b); }

/// Elements of all subordinates, those of one kind and experience added up.
class Accumulated {
  public:
    void add(const oUnitForceElements& element) {
        const std::string key = std::to_string(element.Index) + "," + element.experience;
        if (oAccuUFE* const known = entries.look_up(key)) {
            known->quantity = sum16(known->quantity, element.quantity);
            known->ammo = sum16(known->ammo, element.ammo);
            known->MIA = sum16(known->MIA, element.MIA);
            known->KIA = sum16(known->KIA, element.KIA);
            return;
        }
        // Made in one go: to assign `Index` would count as a change of what units hold. Free texts are not
        // kept, elements with one add up by experience alone.
        const oAccuUFE first{{.ID = {},
                              .Index = element.Index,
                              .quantity = element.quantity,
                              .experience = element.experience,
                              .ammo = element.ammo,
                              .KIA = element.KIA,
                              .MIA = element.MIA,
                              .free_text = {}}};
        entries.add(std::make_shared<oAccuUFE>(first), key);
    }

    Collection<oAccuUFE> entries;
};

struct Losses {
    std::int64_t missing = 0;
    std::int64_t killed = 0;

    void add(const oUnits& unit) {
        if (unit.force_elements.empty()) return;
        for (const auto& element : unit.force_elements) {
            missing += element->MIA;
            killed += element->KIA;
        }
    }
};

std::int32_t state_colour(std::int16_t state) {
    switch (state) {
    case 0:
        return colour::button_face;
    case 1:
        return 0xFF00;
    case 2:
        return 0xFFFF;
    case 3:
        return 255;
    default:
        return 0;
    }
}

void clear_panel(Program& program) {
    UnitInfoPanel& panel = program.main;
    panel.lstUIchildunits = {};
    panel.lstUIfe = {};
    panel.cmdSetFirefan.enabled = false;
    panel.cmdTransferFE.enabled = false;
    panel.cmdEditFE.enabled = false;
    panel.cmdDeleteFE.enabled = false;
    program.campaign.curUFE = nullptr;
}

void show_identity(Program& program, const oUnits& unit) {
    UnitInfoPanel& panel = program.main;
    const UnitMarker* const marker = marker_of(program.main, unit);
    panel.imgUIunit = marker == nullptr ? PictureId{} : marker->picture;
    panel.lblUIunitname.caption = full_name(unit);
    panel.lblUIparentname.caption =
        unit.parent_ID.empty() ? "" : full_name(*program.campaign.colUnits->item(unit.parent_ID));
    panel.lblUISupplyReq.caption = std::to_string(unit.supply_req);
    panel.lblUICurrSupply.caption = std::to_string(unit.current_supply);
    panel.lblUIOpStatus.caption = unit.op_status;
    panel.lblUIFitness.caption = unit.fitness;
}

void show_own_elements(Program& program, const oUnits& unit) {
    UnitInfoPanel& panel = program.main;
    Losses own;
    own.add(unit);
    panel.lblUIMIA.caption = std::to_string(own.missing);
    panel.lblUIKIA.caption = std::to_string(own.killed);
    if (unit.force_elements.empty()) return;
    for (const auto& element : unit.force_elements)
        panel.lstUIfe.rows.push_back(element_row(program, *element) + std::string(222, ' ') + element->ID);
}

using Subordinates = Collection<oChildren>;

void show_subordinates(Program& program, const oUnits& unit, Subordinates& list) {
    collect_subordinates(program, unit.ID, list);
    for (const auto& entry : list)
        program.main.lstUIchildunits.rows.push_back(
            subordinate_row(*program.campaign.colUnits->item(entry->ID), std::stoi(entry->name)));
}

/// Supplies of a unit and its subordinates.
struct Supplies {
    std::int64_t required;
    std::int64_t current;
};

/// Answers the supplies: they are shown only once the place is known.
Supplies show_accumulated(Program& program, const oUnits& unit, const Subordinates& list) {
    UnitInfoPanel& panel = program.main;
    Losses losses;
    losses.add(unit);
    Supplies supplies{unit.supply_req, unit.current_supply};
    Accumulated accumulated;
    for (const auto& entry : list) {
        const oUnits& subordinate = *program.campaign.colUnits->item(entry->ID);
        supplies.required += subordinate.supply_req;
        supplies.current += subordinate.current_supply;
        losses.add(subordinate);
        if (subordinate.force_elements.empty()) continue;
        for (const auto& element : subordinate.force_elements) accumulated.add(*element);
    }
    if (panel.chkShowAllFE.value)
        for (const auto& entry : accumulated.entries)
            panel.lstUIfe.rows.push_back(element_row(program, *entry));
    panel.lblUIAccMIA.caption = std::to_string(losses.missing);
    panel.lblUIAccKIA.caption = std::to_string(losses.killed);
    return supplies;
}

void show_place(Program& program, const oUnits& unit) {
    std::int16_t x = unit.xcoord;
    std::int16_t y = unit.ycoord; // a copy: the conversion moves it
    pixel_to_grid(program, x, y, program.main.lblUIeastcoord.caption, program.main.lblUInorthcoord.caption);
}

/// The selected row, empty when none is.
std::string selected_row(const ListBox& list) {
    return list.selected < 0 ? "" : list.rows.at(static_cast<std::size_t>(list.selected));
}

/// Selects the unit alone, the panel first: it tells when the unit is gone.
void show_and_select(Program& program, const std::string& id) {
    clear_selection(program);
    show_unit_info(program, id);
    if (const auto unit = program.campaign.colUnits->find(id)) select_unit(program, unit);
}

} // namespace

void collect_subordinates(const Program& program, const std::string& id, Collection<oChildren>& list) {
    collect(program, id, 1, list);
}

void show_unit_info(Program& program, const std::string& id) {
    trap(program, " when displaying unit info.", [&] {
        frmMain& main = program.main;
        clear_panel(program);
        const auto unit = program.campaign.colUnits->item(id);
        show_identity(program, *unit);
        Subordinates subordinates;
        show_subordinates(program, *unit, subordinates);
        show_own_elements(program, *unit);
        const Supplies supplies = show_accumulated(program, *unit, subordinates);
        main.picUnitState.back_colour = state_colour(unit->state);
        show_place(program, *unit);
        program.campaign.curUnit = unit;
        main.lblUIAccSupplyReq.caption = std::to_string(supplies.required);
        main.lblUIAccCurrSupply.caption = std::to_string(supplies.current);
        main.lblUIUnitStatus.caption = unit->order_id;
        main.picUnitInfo.visible = true;
        for (Button* button : {&main.cmdEditWaypt, &main.cmdMoveWaypt, &main.cmdClearWaypt})
            button->enabled = !unit->waypoints.empty();
        main.picMap.Refresh();
    });
}

void locate_unit(Program& program, const std::string& id) {
    const auto unit = program.campaign.colUnits->item(id);
    if (marker_of(program.main, *unit) == nullptr) throw Failure{failure::no_such_control};
    for (int i = 1; i < program.campaign.gNextUnitIndex; ++i) program.main.imgUnit(i).border_style = 0;
    center_map_on(program, unit->xcoord, unit->ycoord);
    program.campaign.colSelectedUnits.drop();
    select_unit(program, unit);
    set_menus_by_count(program);
    show_unit_info(program, id);
}

void lstUIfe_Click(Program& program) {
    trap(program, " when displaying unit info.", [&] {
        frmMain& main = program.main;
        Campaign& campaign = program.campaign;
        const std::string key = element_key(selected_row(main.lstUIfe));
        if (key.starts_with("{") && campaign.curUnit)
            campaign.curUFE = campaign.curUnit->force_elements->item(key);
        if (main.lstUIfe.selected >= 0 && !main.chkShowAllFE.value) {
            main.cmdTransferFE.enabled = true;
            main.cmdEditFE.enabled = true;
            main.cmdDeleteFE.enabled = true;
            main.cmdSetFirefan.enabled = campaign.curUFE && has_firefan(program, *campaign.curUFE);
        }
        main.lblUIFFangle.caption = main.cmdSetFirefan.enabled && campaign.curUFE
                                        ? std::to_string(campaign.curUFE->FireFanAngle)
                                        : "";
        main.picMap.Refresh();
    });
}

void lstUIchildunits_DblClick(Program& program) {
    trap(program, " when displaying unit info.", [&] {
        const std::string key = subordinate_key(selected_row(program.main.lstUIchildunits));
        if (program.main.lstUIchildunits.selected < 0) return;
        show_and_select(program, key);
    });
}

void cmdSelectHQ_Click(Program& program) {
    trap(program, " when displaying unit info.", [&] {
        if (program.main.lblUIparentname.caption.empty() || !program.campaign.curUnit) return;
        const std::string id = program.campaign.curUnit->parent_ID; // a copy: another unit comes in hand
        show_and_select(program, id);
    });
}

void chkShowAllFE_Click(Program& program) {
    if (program.campaign.curUnit) show_unit_info(program, program.campaign.curUnit->ID);
}

void cmdHierarchy_Click(Program& program) {
    program.main.hierarchy_on = !program.main.hierarchy_on;
    program.main.cmdHierarchy.show_on(program.main.hierarchy_on);
    program.main.picMap.Refresh();
}
