#include "core/hierarchy.h"

#include "core/identity.h"
#include "core/trap.h"

#include <memory>
#include <string>

namespace {

/// Repairs the entries of one HQ; answers how many errors that count were fixed.
int check_children(const Collection<oUnits>& units, oUnits& headquarters) {
    if (headquarters.children.empty()) return 0;
    int fixed = 0;
    for (const auto& child : headquarters.children->items()) {
        const auto unit = units.find(child->ID);
        if (!unit) {
            headquarters.children->remove(child->ID);
        } else if (unit->parent_ID.empty()) {
            unit->parent_ID = headquarters.ID;
            unit->parent_name = headquarters.name;
            ++fixed;
        } else if (unit->parent_ID != headquarters.ID) {
            headquarters.children->remove(child->ID);
            ++fixed;
        }
    }
    return fixed;
}

/// Repairs the upward link of one unit; answers how many errors that count were fixed.
int check_parent(const Collection<oUnits>& units, oUnits& unit) {
    if (unit.parent_ID.empty()) return 0;
    const auto headquarters = units.find(unit.parent_ID);
    if (!headquarters) {
        unit.parent_ID.clear();
        return 0;
    }
    const bool added =
        headquarters->children->add_new(std::make_shared<oChildren>(oChildren{unit.ID, unit.name}), unit.ID);
    return added ? 1 : 0;
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
        for (const auto& unit : units) fixed += check_children(units, *unit);
        for (const auto& unit : units) fixed += check_parent(units, *unit);
        if (fixed > 0)
            program.platform.message(
                {"Found and fixed a total of " + std::to_string(fixed) + " errors in the unit hierarchy."});
    });
}

void assign_new_ids(Program& program) {
    trap(program, " when assigning new IDs.", [&] {
        Collection<oUnits> waiting;
        for (const auto& unit : *program.campaign.colUnits) waiting.add(unit, unit->ID);
        program.campaign.colUnits.drop();
        const Renumbering units{*program.campaign.colUnits, waiting};
        for (const auto& unit : waiting) renumber(program, units, unit);
    });
}

void mnuCheckHQSub_Click(Program& program) { check_hierarchy(program); }

void mnuChangeUnitID_Click(Program& program) {
    check_hierarchy(program);
    assign_new_ids(program);
}
