#include "persistence/unit_list.h"

#include "core/hierarchy.h"
#include "core/trap.h"
#include "mapview/unit_marker.h"
#include "persistence/record_reader.h"
#include "persistence/record_writer.h"
#include "persistence/tray_test.h"
#include "persistence/unit_id_question.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace {

using Units = std::vector<std::shared_ptr<oUnits>>;
using Selection = CollectionRef<oUnits>;

FileDialog unit_list_dialog(const Program& program, bool saving) {
    return {"tolvane ii units", program.campaign.gAppPath, "uni|*.uni", "", saving, saving};
}

Units units_of_side(const Program& program, const std::string& affiliation) {
    Units found;
    for (const auto& unit : program.campaign.colUnits)
        if (unit->affiliation == affiliation) found.push_back(unit);
    return found;
}

void write_units(const Program& program, const Units& units, OutputFile& file) {
    FieldWriter record;
    record.text(program.main.file_version).end_record();
    write_count(record, units.size());
    for (const auto& unit : units) {
        write_unit(record, *unit);
        file.write(record.bytes());
        record.clear();
    }
    file.write(record.bytes());
    file.close();
}

/// Runs `body`; any failure but a cancelled dialog is told. Whether it was not cancelled.
template <class Body> bool trap_all_but_cancel(Program& program, const char* ending, Body body) {
    const int number = failure_of(body);
    if (number == failure::cancelled) return false;
    if (number != 0) show_failure(program, number, ending, Icon::warning);
    return true;
}

void save(Program& program, const Units& units) {
    const std::string path = program.platform.file_dialog(unit_list_dialog(program, true));
    write_units(program, units, *program.platform.open_for_output(path));
}

/// The steps that all four commands share; the units are looked for when the tray has been looked at.
template <class Find> void save_found(Program& program, Find find) {
    trap_all_but_cancel(program, " when saving units.", [&] {
        if (!units_left_in_tray(program)) save(program, find());
    });
}

using Ids = std::unordered_set<std::string_view>;

/// The IDs that the selected units have now: the selection still holds them under those of their selecting.
Ids ids_of(const Selection& selection) {
    Ids ids;
    for (const auto& unit : selection) ids.insert(unit->ID);
    return ids;
}

bool has_all_children(const Ids& selected, const oUnits& unit) {
    if (unit.children.empty()) return true;
    for (const auto& child : unit.children)
        if (!selected.contains(child->ID)) return false;
    return true;
}

/// Whether the selection is a whole branch. The flag never returns to true, so that HQs are looked for only
/// until the first one that is there; users have built their lists on it.
bool is_whole_branch(const Selection& selection) {
    const Ids selected = ids_of(selection);
    bool no_parent_yet = true;
    for (const auto& unit : selection) {
        if (!has_all_children(selected, *unit)) return false;
        if (unit->parent_ID.empty()) continue;
        if (selected.contains(unit->parent_ID)) no_parent_yet = false;
        if (no_parent_yet) return false;
    }
    return true;
}

void load_units(Program& program, FieldReader& in) {
    const std::string file_tag = in.text();
    const int count = in.int16();
    bool duplicate_key = false; // one for the whole list: from the first on, no unit gets a marker
    for (int i = 0; i < count; ++i) {
        const auto unit = read_unit(in, file_tag, duplicate_key);
        unit->img_index = program.campaign.gNextUnitIndex;
        if (!unit_may_enter(program, *unit)) continue;
        if (!program.campaign.colUnits->add_new(unit, unit->ID)) duplicate_key = true;
        if (!duplicate_key) make_unit_marker(program, *unit);
    }
}

} // namespace

void mnuSaveAlliedUnits_Click(Program& program) {
    save_found(program, [&] { return units_of_side(program, "Allied"); });
}

void mnuSaveAxisUnits_Click(Program& program) {
    save_found(program, [&] { return units_of_side(program, "Axis"); });
}

void mnuSaveAllUnits_Click(Program& program) {
    save_found(program, [&] { return program.campaign.colUnits->items(); });
}

void mnuSaveSelectedUnits_Click(Program& program) {
    trap_all_but_cancel(program, " when saving units.", [&] {
        if (units_left_in_tray(program)) return;
        if (!is_whole_branch(program.campaign.colSelectedUnits)) {
            program.platform.message({"You must select all units in a hierarchy!", Icon::warning});
            return;
        }
        save(program, program.campaign.colSelectedUnits->items());
    });
}

void mnuLoadUnits_Click(Program& program) {
    const bool went_on = trap_all_but_cancel(program, " when loading units!", [&] {
        const std::string path = program.platform.file_dialog(unit_list_dialog(program, false));
        const Hourglass hourglass(program.platform);
        const std::string bytes = program.platform.read_file(path);
        FieldReader in(bytes);
        load_units(program, in);
        check_hierarchy(program);
    });
    if (went_on) program.main.picMap.Refresh(); // what a list that broke off has brought is seen, too
}
