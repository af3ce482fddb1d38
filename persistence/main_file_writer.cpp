#include "persistence/main_file_writer.h"

#include "core/hierarchy.h"
#include "core/trap.h"
#include "persistence/fence_buttons.h"
#include "persistence/frmSaveSelect.h"
#include "persistence/record_writer.h"
#include "persistence/tray_test.h"

namespace {

/// The campaign file being written, a record at a time.
struct MainFile {
    OutputFile& file;
    const bool selective;
    FieldWriter record = {};

    void flush() {
        file.write(record.bytes());
        record.clear();
    }

    template <class Record, class Write>
    void section(const CollectionRef<Record>& records, bool wanted, Write write) {
        const bool left_out = selective && !wanted;
        write_count(record, left_out ? 0 : records.count());
        flush();
        if (left_out || records.empty()) return;
        for (const auto& one : records->whole()) {
            write(record, *one);
            flush();
        }
    }
};

void write_campaign(const Program& program, OutputFile& out) {
    const Campaign& campaign = program.campaign;
    MainFile file{out, program.main.saving_selected};
    file.record.text(program.main.file_version).end_record();
    file.record.text(campaign.gDateYear)
        .text(campaign.gDateMonth)
        .text(campaign.gDateDay)
        .text(campaign.gDateHour)
        .text(campaign.gDateMinute)
        .end_record();
    file.flush();
    file.section(campaign.colLabels, campaign.gSaveLabels, write_label);
    file.section(campaign.colLines, campaign.gSaveLines, write_line);
    file.section(campaign.colUnits, campaign.gSaveUnits, write_unit);
    file.section(campaign.colShapes, campaign.gSaveShapes, write_shape);
    file.section(campaign.colPolygons, campaign.gSavePolygons, write_polygon);
    file.section(campaign.colFireMissions, campaign.gSaveFmissions, write_fire_mission);
    out.close();
}

bool nothing_to_save(const Campaign& campaign) {
    return campaign.colLines.empty() && campaign.colLabels.empty() && campaign.colUnits.empty() &&
           campaign.colShapes.empty() && campaign.colPolygons.empty() && campaign.colFireMissions.empty();
}

void save(Program& program) {
    Platform& platform = program.platform;
    if (nothing_to_save(program.campaign) &&
        platform.message({"Nothing to save. Do you want to save this as an empty file?", Icon::question,
                          Buttons::yes_no}) == Answer::no)
        return;
    if (units_left_in_tray(program)) return;
    enable_fenced_buttons(program);
    const std::string path =
        platform.file_dialog({"tolvane ii data", program.campaign.gAppPath, "tvn|*.tvn", "", true, true});
    const Hourglass hourglass(platform);
    check_hierarchy(program);
    write_campaign(program, *platform.open_for_output(path));
}

} // namespace

void cmdSave_Click(Program& program) {
    const int number = failure_of([&] { save(program); });
    if (number != 0 && number != failure::cancelled)
        show_failure(program, number, " when saving data.", Icon::warning);
}

void mnuSave_Click(Program& program) { cmdSave_Click(program); }

void mnuSaveSelected_Click(Program& program) {
    program.form<frmSaveSelect>().show_modal();
    program.main.saving_selected = true;
    cmdSave_Click(program);
    program.main.saving_selected = false;
}
