#include "mapview/draw_units.h"

#include "core/failure.h"
#include "core/unit_place.h"

#include <cstddef>
#include <unordered_set>
#include <vector>

namespace {

/// Units from the selected one down to the one whose links are drawn.
using Path = std::unordered_set<const oUnits*>;

void draw_subordinate_links(const Program& program, Surface& map, const oUnits& unit, Path& path) {
    if (unit.children.empty()) return;
    if (!path.insert(&unit).second) throw Failure{failure::out_of_stack}; // it is under itself
    for (const auto& child : unit.children) {
        const oUnits& subordinate = *program.campaign.colUnits->item(child->ID);
        map.line(place_of(unit), place_of(subordinate));
        draw_subordinate_links(program, map, subordinate, path);
    }
    path.erase(&unit);
}

/// The unit of each marker, nothing where the tag leads to none: good, with its pointers, until the list of
/// units, a tag or the number of markers changes. Each layer of names goes over all of them.
const std::vector<const oUnits*>& units_of_markers(Program& program) {
    const Campaign& campaign = program.campaign;
    const ControlArray<UnitMarker>& markers = program.main.imgUnit;
    const auto count = static_cast<std::size_t>(campaign.gNextUnitIndex);
    const auto look_all_up = [&] {
        std::vector<const oUnits*> units(count, nullptr);
        for (int i = 1; i < campaign.gNextUnitIndex; ++i)
            if (markers.has(i))
                units[static_cast<std::size_t>(i)] = campaign.colUnits->look_up(markers(i).tag);
        return units;
    };
    return program.painting.units_of_markers.get(look_all_up, campaign.colUnits->version(),
                                                 TagChanges::count(), count);
}

/// Runs `print(marker, unit)` in the look of names for each visible marker. Fails with 5 at one whose unit is
/// gone, wherever it stands.
template <class Print> void print_names(Program& program, Surface& map, Print print) {
    map.pen.FontSize = 8;
    map.pen.FontBold = true;
    map.pen.ForeColor = 0;
    // A name starts beside its marker and goes on to the right and down, however long it is.
    const double em = 2.0 * map.pen.FontSize;
    const std::vector<const oUnits*>& units = units_of_markers(program);
    for (int i = 1; i < program.campaign.gNextUnitIndex; ++i) {
        const UnitMarker& marker = program.main.imgUnit(i);
        if (!marker.visible || marker.tag == deleted_tag) continue;
        const oUnits* const unit = units[static_cast<std::size_t>(i)];
        if (unit == nullptr) throw Failure{failure::invalid_call};
        if (marker.left - em > map.wanted.right || marker.top - em > map.wanted.bottom) continue;
        print(marker, *unit);
    }
    map.pen.FontBold = false;
}

} // namespace

bool hierarchy_is_shown(const Program& program) {
    return program.main.hierarchy_on && program.campaign.curUnit != nullptr;
}

void draw_hierarchy(Program& program, Painting& painting) {
    const oUnits& unit = *program.campaign.curUnit;
    Surface& map = painting.map;
    map.pen.DrawWidth = 3;
    if (!unit.parent_ID.empty()) {
        map.pen.ForeColor = 0xC00000;
        map.line(place_of(unit), place_of(*program.campaign.colUnits->item(unit.parent_ID)));
    }
    map.pen.ForeColor = 0x8000;
    Path path;
    draw_subordinate_links(program, map, unit, path);
    map.pen.DrawWidth = 1;
    map.pen.ForeColor = 0;
}

bool unit_names_are_shown(const Program& program) { return program.campaign.gDispUnitNames; }

void draw_unit_names(Program& program, Painting& painting) {
    print_names(program, painting.map, [&](const UnitMarker& marker, const oUnits& unit) {
        painting.map.print({marker.left, marker.top + marker.height}, unit.name);
    });
}

bool unit_hq_names_are_shown(const Program& program) { return program.campaign.gDispUnitHQNames; }

void draw_unit_hq_names(Program& program, Painting& painting) {
    print_names(program, painting.map, [&](const UnitMarker& marker, const oUnits& unit) {
        painting.map.print({marker.left + marker.width + 1, marker.top}, unit.parent_name);
    });
}
