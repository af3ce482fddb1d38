#include "mapview/unit_states.h"

#include "core/marker_of.h"
#include "core/trap.h"

#include <array>
#include <string_view>

namespace {

std::int32_t bar_colour(std::int16_t state) {
    constexpr std::array<std::int32_t, 5> colours{0, 0xFF00, 0xFFFF, 255, 0};
    return state < 5 ? colours.at(static_cast<std::size_t>(state)) : 0;
}

void place_bar(Program& program, StateBar& bar, const UnitMarker& marker) {
    bar.left = marker.left + 17;
    bar.top = marker.top + 26;
    bar.width = 12;
    bar.height = 5;
    bar.container = marker.container;
    program.main.bring_to_front(bar);
    bar.visible = true;
}

void show_bar(Program& program, const oUnits& unit) {
    // Not the tag of deleted markers, which begins with a small letter: what stops here is a unit of this ID.
    constexpr std::string_view without_bar = "Deleted";
    const UnitMarker& marker = program.main.imgUnit(unit.img_index);
    StateBar& bar = program.main.shpUnitState.load(unit.img_index);
    bar.visible = unit.state > 0 && marker.tag != without_bar;
    if (!bar.visible) return;
    bar.fill_colour = bar_colour(unit.state);
    place_bar(program, bar, marker);
}

} // namespace

void refresh_unit_states(Program& program) {
    frmMain& main = program.main;
    if (!main.mnuUnitState.checked) return;
    for (const auto& unit : program.campaign.colUnits)
        if (marker_of(main, *unit) != nullptr) show_bar(program, *unit);
}

void mnuUnitState_Click(Program& program) {
    trap(program, " when displaying unit states.", [&] {
        frmMain& main = program.main;
        main.mnuUnitState.checked = !main.mnuUnitState.checked;
        main.shpUnitState.unload_from(1);
        refresh_unit_states(program);
    });
}

void move_state_bar(Program& program, const oUnits& unit) {
    if (program.main.mnuUnitState.checked) show_bar(program, unit);
}
