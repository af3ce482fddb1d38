#include "program/frmMain_load.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "core/reference_files.h"
#include "core/trap.h"
#include "mapview/grid_reference.h"
#include "mapview/layout.h"

#include <utility>

namespace {

constexpr double status_bar_above_bottom = 28;

void take_over_map(Program& program) {
    MapPanel::Map& map = program.main.picMap;
    map.picture = std::exchange(program.campaign.gMapPicture, nullptr);
    map.width = map.picture->width();
    map.height = map.picture->height();
}

std::string default_font(Platform& platform) {
    std::string chosen = "Arial";
    for (const std::string& font : platform.fonts())
        if (font == "Arial Unicode MS") chosen = font;
    return chosen;
}

void set_start_values(Program& program) {
    Campaign& campaign = program.campaign;
    frmMain& main = program.main;
    static_cast<ToolFlags&>(main) = {};
    campaign.placing_label = false;
    campaign.placing_fire_mission = false;
    campaign.selecting_fire_mission = false;
    campaign.moving_fire_mission = false;
    campaign.gNextLabelIndex = 1;
    campaign.gNextUnitIndex = 1;
    campaign.gNextShapeIndex = 1;
    campaign.colLabels.drop();
    campaign.gDefaultFont = default_font(program.platform);
    campaign.gShowGrid = false;
    campaign.gUnitEdited = false;
    main.saving_selected = false;
}

void set_options(Program& program) {
    program.main.file_version = "1.0";
    static_cast<DisplayOptions&>(program.campaign) = {};
    static_cast<SaveOptions&>(program.campaign) = {};
    program.campaign.gCopyColorCreate = false;
    program.campaign.gCopyColorEdit = false;
}

} // namespace

void frmMain_Load(Program& program) {
    trap(program, " when initializing.", [&] {
        const Hourglass hourglass(program.platform);
        Campaign& campaign = program.campaign;
        frmMain& main = program.main;
        main.width = campaign.gScreenW;
        main.height = campaign.gScreenH;
        main.sbarMap.top = main.height - status_bar_above_bottom;
        take_over_map(program);
        fit_main_window(program);
        campaign.gMapEast0 = 0;
        campaign.gMapNorth0 = whole_int16(main.picMap.height / pixels_per_km);
        size_rulers(program);
        main.show_coords = false;
        main.shpOverviewbox.left = 0;
        main.shpOverviewbox.top = 0;
        size_overview_box(program);
        set_start_values(program);
        static_cast<CampaignClock&>(campaign) = {};
        show_clock(program);
        set_options(program);
        load_unit_types(program);
        load_force_elements(program);
        load_user_data(program);
        load_towns(program);
        main.picMap.Refresh();
    });
}
