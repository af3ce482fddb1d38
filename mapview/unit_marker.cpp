#include "mapview/unit_marker.h"

#include "core/numbers.h"
#include "core/trap.h"

namespace {

/// The unit's picture; 0 when even the blank one is missing.
PictureId load_picture(Program& program, oUnits& unit) {
    const std::string& app_path = program.campaign.gAppPath;
    PictureId picture = 0;
    int number =
        failure_of([&] { picture = program.platform.load_marker(app_path + unit.symbol, unit.color); });
    if (number == failure::file_not_found) {
        program.platform.message({"Unable to load unit image '" + program.platform.shown_path(app_path) +
                                      unit.symbol + "'.\nSetting unit image to blank.",
                                  Icon::warning});
        unit.symbol = blank_symbol;
        number =
            failure_of([&] { picture = program.platform.load_marker(app_path + unit.symbol, unit.color); });
        // Asking again would never end.
        if (number == failure::file_not_found) return 0;
    }
    if (number != 0) throw Failure{number};
    return picture;
}

void place_dot(const Program& program, const oUnits& unit, OverviewDot& dot) {
    const frmMain& main = program.main;
    const double scale = main.picOverviewmap.scale_width() / main.picMap.width;
    dot.left = scale * unit.xcoord;
    dot.top = round_half_even(scale * unit.ycoord) - 2;
}

} // namespace

void make_unit_marker(Program& program, oUnits& unit) {
    const PictureId picture = load_picture(program, unit);
    frmMain& main = program.main;
    const int index = program.campaign.gNextUnitIndex;

    OverviewDot& dot = main.shpUnit.load(index);
    dot.colour = unit.color;
    place_dot(program, unit, dot);
    dot.tag = unit.ID;

    UnitMarker& marker = main.imgUnit.load(index);
    marker.tag = unit.ID;
    marker.left = unit.xcoord - 14;
    marker.top = unit.ycoord - 15;
    marker.width = marker_width;
    marker.height = marker_height;
    marker.picture = picture;
    marker.colour = unit.color;
    main.bring_to_front(marker);
    marker.visible = true;
    dot.visible = main.mnuOVPU_show_units.checked;
    program.campaign.gNextUnitIndex = to_int16(index + 1);
}
