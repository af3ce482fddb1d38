#include "persistence/main_file_reader.h"

#include "core/clock.h"
#include "core/hierarchy.h"
#include "core/trap.h"
#include "mapview/label_control.h"
#include "mapview/shape_control.h"
#include "mapview/unit_marker.h"
#include "persistence/fence_buttons.h"
#include "persistence/label_font.h"
#include "persistence/line_duplicates.h"
#include "persistence/record_reader.h"
#include "persistence/unit_id_question.h"
#include "persistence/version_gates.h"

#include <string>

namespace {

/// One load: what it reads from, and where it is.
struct MainFileLoad {
    Program& program;
    std::string bytes = {};
    std::string file_tag = {};
    int sequence_id = 0; // 1 labels, 2 lines, 3 units, 4 shapes, 5 polygons, 6 fire missions
    LabelFontChoice label_font = {};
};

std::string clock_text(const CampaignClock& clock) {
    return clock.gDateMonth + " " + clock.gDateDay + ", " + clock.gDateYear + ". " + clock.gDateHour + ":" +
           clock.gDateMinute;
}

bool same_clock(const CampaignClock& a, const CampaignClock& b) {
    return a.gDateYear == b.gDateYear && a.gDateMonth == b.gDateMonth && a.gDateDay == b.gDateDay &&
           a.gDateHour == b.gDateHour && a.gDateMinute == b.gDateMinute;
}

void load_clock(Program& program, FieldReader& in) {
    CampaignClock stored;
    stored.gDateYear = in.text();
    stored.gDateMonth = in.text();
    stored.gDateDay = in.text();
    stored.gDateHour = in.text();
    stored.gDateMinute = in.text();
    CampaignClock& current = program.campaign;
    if (same_clock(current, stored)) return;
    const Answer answer = program.platform.message({"Current date/time is " + clock_text(current) +
                                                        "\nIn this file the date/time " + clock_text(stored) +
                                                        "\nDo you want to update current date/time?",
                                                    Icon::question, Buttons::yes_no});
    if (answer != Answer::yes) return;
    current = stored;
    show_clock(program);
}

void load_labels(MainFileLoad& load, FieldReader& in) {
    Program& program = load.program;
    const int count = in.int16();
    for (int i = 0; i < count; ++i) {
        const auto label = read_label(in);
        if (!program.campaign.colLabels->add_new(label, label->ID)) continue;
        give_working_font(program, *label, load.label_font);
        make_label_control(program, *label);
    }
}

void load_lines(Program& program, FieldReader& in) {
    const int count = in.int16();
    Collection<oLines>& lines = *program.campaign.colLines;
    LineDuplicates duplicates(lines);
    for (int i = 0; i < count; ++i) {
        const auto line = read_line(in);
        if (duplicates.is_present(*line)) continue;
        lines.add(line);
        duplicates.remember(line);
    }
}

void load_units(MainFileLoad& load, FieldReader& in) {
    Program& program = load.program;
    const int count = in.int16();
    for (int i = 0; i < count; ++i) {
        bool duplicate_key = false; // here a repeated key in a unit's lists has no further effect
        const auto unit = read_unit(in, load.file_tag, duplicate_key);
        unit->img_index = program.campaign.gNextUnitIndex;
        if (!unit_may_enter(program, *unit)) continue;
        if (program.campaign.colUnits->add_new(unit, unit->ID)) make_unit_marker(program, *unit);
    }
}

void load_shapes(Program& program, FieldReader& in) {
    const int count = in.int16();
    for (int i = 0; i < count; ++i) {
        const auto shape = read_shape(in);
        if (program.campaign.colShapes->add_new(shape, shape->ID)) make_shape_controls(program, *shape);
    }
}

/// Answers whether the file goes on behind the polygons.
bool load_polygons(MainFileLoad& load, FieldReader& in) {
    const int count = in.int16();
    for (int i = 0; i < count; ++i) {
        const auto polygon = read_polygon(in);
        load.program.campaign.colPolygons->add_new(polygon, polygon->ID);
        // Tested at the end of each round, so that such a file is read up to its first polygon, and one
        // without polygons goes on.
        if (ends_after_polygon(load.file_tag)) return false;
    }
    return true;
}

void load_fire_missions(MainFileLoad& load, FieldReader& in) {
    const int count = in.int16();
    for (int i = 0; i < count; ++i) {
        const auto mission = read_fire_mission(in, load.file_tag);
        load.program.campaign.colFireMissions->add_new(mission, mission->ID);
    }
}

void load_sections(MainFileLoad& load) {
    FieldReader in(load.bytes);
    load.sequence_id = 1;
    load.file_tag = in.text();
    load_clock(load.program, in);
    load_labels(load, in);
    load.sequence_id = 2;
    load_lines(load.program, in);
    load.sequence_id = 3;
    load_units(load, in);
    load.sequence_id = 4;
    load_shapes(load.program, in);
    if (ends_after_shapes(load.file_tag)) return;
    load.sequence_id = 5;
    if (!load_polygons(load, in)) return;
    load.sequence_id = 6;
    load_fire_missions(load, in);
}

void show_load_failure(const MainFileLoad& load, int number) {
    if (number == failure::file_not_found)
        load.program.platform.message(
            {"Error loading data. Sequence ID = " + std::to_string(load.sequence_id), Icon::warning});
    else
        show_failure(load.program, number, " when loading data!", Icon::warning);
}

void load_file(Program& program, const std::string& path) {
    const Hourglass hourglass(program.platform);
    MainFileLoad load{program};
    const int number = failure_of([&] {
        load.bytes = program.platform.read_file(path);
        load_sections(load);
        check_hierarchy(program);
        bring_labels_to_front(program);
    });
    if (number != 0) show_load_failure(load, number);
    program.main.picMap.Refresh();
}

} // namespace

void cmdLoad_Click(Program& program) {
    enable_fenced_buttons(program);
    std::string path;
    const int number = failure_of([&] {
        path = program.platform.file_dialog({"tolvane ii data", program.campaign.gAppPath, "tvn|*.tvn"});
    });
    if (number == 0)
        load_file(program, path);
    else if (number != failure::cancelled)
        show_failure(program, number, " when loading data!", Icon::warning);
}

void mnuLoad_Click(Program& program) { cmdLoad_Click(program); }
