#include "mapview/unit_states.h"

#include "core/trap.h"

#include <array>

namespace {

void place_bar(Program& program, StateBar& bar, const UnitMarker& marker) {
    bar.left = marker.left + 17;
    bar.top = marker.top + 26;
    bar.width = 12;
    bar.height = 5;
    bar.container = marker.container;
    program.main.bring_to_front(bar);
    bar.visible = true;
}

} // namespace

void refresh_unit_states(Program& program) {
    constexpr std::array<std::int32_t, 5> colours{0, 0xFF00, 0xFFFF, 255, 0};
    frmMain& main = program.main;
    if (!main.mnuUnitState.checked) return;
    for (int i = 1; i < program.campaign.gNextUnitIndex; ++i) main.shpUnitState.load(i).visible = false;
    for (const auto& unit : program.campaign.colUnits) {
        if (unit->state <= 0 || !main.imgUnit.has(unit->img_index) || unit->img_index == 0) continue;
        StateBar& bar = main.shpUnitState(unit->img_index);
        bar.fill_colour = unit->state < 5 ? colours.at(static_cast<std::size_t>(unit->state)) : 0;
        place_bar(program, bar, main.imgUnit(unit->img_index));
    }
}

void mnuUnitState_Click(Program& program) {
    trap(program, " when displaying unit states.", [&] {
        frmMain& main = program.main;
        main.mnuUnitState.checked = !main.mnuUnitState.checked;
        main.shpUnitState.unload_from(1);
        refresh_unit_states(program);
        main.picMap.Refresh();
    });
}

void move_state_bar(Program& program, int index) {
    frmMain& main = program.main;
    if (!main.mnuUnitState.checked || !main.shpUnitState.has(index)) return;
    StateBar& bar = main.shpUnitState(index);
    const bool was_visible = bar.visible;
    place_bar(program, bar, main.imgUnit(index));
    bar.visible = was_visible;
}
