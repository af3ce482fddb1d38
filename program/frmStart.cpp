#include "program/frmStart.h"

#include "core/numbers.h"
#include "core/trap.h"
#include "program/frmMain_load.h"

#include <array>
#include <functional>

namespace {

const std::string map_file = "\\map\\velmora2.jpg";

bool force_to_run(Program& program, int number) {
    return program.platform.message({"Error number " + std::to_string(number) +
                                         " when starting Tolvane II.\n"
                                         "Do you want me to try to force the program to run?",
                                     Icon::question, Buttons::yes_no, Answer::yes, "Tolvane II"}) ==
           Answer::yes;
}

} // namespace

void frmStart::Form_Load() {
    const std::array<std::function<void()>, 4> statements{
        [&] { program.campaign.gAppPath = program.platform.program_directory(); },
        [&] {
            tmrTimer = {250, true};
        },
        [&] { program.platform.hourglass(true); }, [&] { show(); }};
    for (const auto& statement : statements) {
        const int number = failure_of(statement);
        if (number == 0 || force_to_run(program, number)) continue;
        unload();
        return;
    }
}

void frmStart::tmrTimer_Timer() {
    Campaign& campaign = program.campaign;
    std::string path; // of the map, while it is being loaded
    const int number = failure_of([&] {
        const WorkArea area = program.platform.work_area();
        campaign.gScreenW = to_int16(area.width_twips / area.twips_per_pixel_x);
        campaign.gScreenH = to_int16(area.height_twips / area.twips_per_pixel_y);
        path = campaign.gAppPath + map_file;
        campaign.gMapPicture = program.platform.load_map(path);
        path.clear();
        tmrTimer.enabled = false;
        frmMain_Load(program);
        program.platform.show_main_window();
        hide();
    });
    if (number == 0) return;
    // Without the map there is nothing to show; half a map would be worse.
    tmrTimer.enabled = false;
    const std::string where = path.empty() ? "" : "\n" + program.platform.shown_path(path);
    program.platform.message({"Run-time error " + std::to_string(number) + where, Icon::warning});
    program.platform.end_process(1);
}
