#include "core/hierarchy.h"

#include "core/identity.h"
#include "core/trap.h"

#include <memory>
#include <string>
#include <vector>

namespace {

/// Repairs the entries of one HQ; answers how many errors that count were fixed.
int check_children(const Collection<oUnits>& units, oUnits& headquarters) {
    if (headquarters.children.empty()) return 0;
    int fixed = 0;
    std::vector<std::string> wrong; // taken out when the walk is over, so that it misses no neighbour
    for (const auto& child : headquarters.children) {
        oUnits* const unit = units.look_up(child->ID);
        if (unit == nullptr) {
            wrong.push_back(child->ID);
        } else if (unit->parent_ID.empty()) {
            unit->parent_ID = headquarters.ID;
            unit->parent_name = headquarters.name;
            ++fixed;
        } else if (unit->parent_ID != headquarters.ID) {
            wrong.push_back(child->ID);
            ++fixed;
        }
    }
    for (const std::string& id : wrong) headquarters.children->remove(id);
    return fixed;
}

/// Repairs the upward link of one unit; answers how many errors that count were fixed.
int check_parent(const Collection<oUnits>& units, oUnits& unit) {
    if (unit.parent_ID.empty()) return 0;
    oUnits* const headquarters = units.look_up(unit.parent_ID);
    if (headquarters == nullptr) {
        unit.parent_ID.clear();
        return 0;
    }
    if (headquarters->children->contains(unit.ID)) return 0;
    headquarters->children->add(std::make_shared<oChildren>(oChildren{unit.ID, unit.name}), unit.ID);
    return 1;
}

/// The units while they are being renumbered: those that are done and those that wait.
struct Renumbering {
    Collection<oUnits>& done;
    const Collection<oUnits>& waiting;

    /// Fails with 5 when the unit is in neither.
    oUnits& unit(const std::string& id) const {
        if (const auto found = done.find(id)) return *found;
        return *waiting.item(id);
    }
};

void renumber(Program& program, const Renumbering& units, const std::shared_ptr<oUnits>& unit) {
    const std::string old_id = unit->ID;
    unit->ID = new_guid(program.platform);
    units.done.add(unit, unit->ID);
    // A unit whose marker was never made has nothing to tag.
    if (program.main.imgUnit.has(unit->img_index) && unit->img_index > 0)
        program.main.imgUnit(unit->img_index).tag = unit->ID;
    if (!unit->parent_ID.empty()) {
        Collection<oChildren>& entries = *units.unit(unit->parent_ID).children;
        const auto entry = entries.item(old_id);
        entries.remove(old_id);
        entry->ID = unit->ID;
        entries.add(entry, unit->ID);
    }
    if (unit->children.empty()) return;
    for (const auto& child : unit->children) units.unit(child->ID).parent_ID = unit->ID;
}

} // namespace

void check_hierarchy(Program& program) {
    trap(program, " when checking HQ/Subordinate links.", [&] {
        const Collection<oUnits>& units = *program.campaign.colUnits;
        int fixed = 0;
        for (const auto& unit : units.whole()) fixed += check_children(units, *unit);
        for (const auto& unit : units.whole()) fixed += check_parent(units, *unit);
        if (fixed > 0)
            program.platform.message(
                {"Found and fixed a total of " + std::to_string(fixed) + " errors in the unit hierarchy."});
    });
}

void assign_new_ids(Program& program) {
    trap(program, " when assigning new IDs.", [&] {
        Collection<oUnits> waiting;
        for (const auto& unit : program.campaign.colUnits->whole()) waiting.add(unit, unit->ID);
        program.campaign.colUnits.drop();
        const Renumbering units{*program.campaign.colUnits, waiting};
        for (const auto& unit : waiting.whole()) renumber(program, units, unit);
    });
}

// Most repairs are silent, and layers show links: the map is painted anew.
void mnuCheckHQSub_Click(Program& program) {
    check_hierarchy(program);
    program.main.picMap.Refresh();
}

void mnuChangeUnitID_Click(Program& program) {
    check_hierarchy(program);
    assign_new_ids(program);
    program.main.picMap.Refresh();
}
