#include "core/hierarchy.h"

#include "core/identity.h"
#include "core/trap.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace {

/// The check of all links: first from the HQs down, then from the units up.
class LinkCheck {
  public:
    explicit LinkCheck(const Collection<oUnits>& units) : units(units), linked(units.count()) {}

    /// Repairs what differs; answers how many errors that count were fixed.
    int repair() {
        int fixed = 0;
        for (const auto& unit : units) fixed += check_children(*unit);
        for (std::size_t position = 1; position <= units.count(); ++position)
            if (!linked[position - 1]) fixed += check_parent(*units.at(position));
        return fixed;
    }

  private:
    int check_children(oUnits& headquarters) {
        if (headquarters.children.empty()) return 0;
        int fixed = 0;
        std::vector<std::string> wrong; // taken out when the walk is over, so that it misses no neighbour
        for (const auto& child : headquarters.children) {
            const std::size_t position = units.position(child->ID);
            if (position == 0) {
                wrong.push_back(child->ID);
                continue;
            }
            oUnits& unit = *units.at(position);
            if (unit.parent_ID.empty()) {
                unit.parent_ID = headquarters.ID;
                unit.parent_name = headquarters.name;
                ++fixed;
            } else if (unit.parent_ID != headquarters.ID) {
                wrong.push_back(child->ID);
                ++fixed;
                continue;
            }
            linked[position - 1] = true;
        }
        for (const std::string& id : wrong) headquarters.children->remove(id);
        return fixed;
    }

    int check_parent(oUnits& unit) const {
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

    const Collection<oUnits>& units;
    std::vector<bool> linked; // by position: both directions were seen in step from the HQ's side
};

/// The units while they are being renumbered: those that are done and those that wait.
struct Renumbering {
    Collection<oUnits>& done;
    const Collection<oUnits>& waiting;

    /// Fails with 5 when the unit is in neither.
    oUnits& unit(const std::string& id) const {
        if (oUnits* const found = done.look_up(id)) return *found;
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
        const int fixed = LinkCheck(*program.campaign.colUnits).repair();
        if (fixed > 0)
            program.platform.message(
                {"Found and fixed a total of " + std::to_string(fixed) + " errors in the unit hierarchy."});
    });
}

void assign_new_ids(Program& program) {
    trap(program, " when assigning new IDs.", [&] {
        const CollectionRef<oUnits> waiting = program.campaign.colUnits;
        program.campaign.colUnits.drop();
        program.campaign.colUnits->reserve(waiting.count());
        const Renumbering units{*program.campaign.colUnits, *waiting};
        for (const auto& unit : *waiting) renumber(program, units, unit);
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
