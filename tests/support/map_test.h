#pragma once

#include "mapview/map_mouse.h"
#include "mapview/unit_marker.h"
#include "tests/support/program_test.h"

/// A program with units on its map, pressed, moved and released as the window would.
class MapTest : public ProgramTest {
  protected:
    /// A unit with its marker, centred on the pixel but for the half one.
    std::shared_ptr<oUnits> add_marked(const std::string& id, int x, int y) {
        auto unit = add_unit(id);
        unit->xcoord = static_cast<std::int16_t>(x);
        unit->ycoord = static_cast<std::int16_t>(y);
        unit->img_index = program.campaign.gNextUnitIndex;
        make_unit_marker(program, *unit);
        return unit;
    }

    UnitMarker& marker(const oUnits& unit) { return program.main.imgUnit(unit.img_index); }

    void press(double x, double y, int button = left_button, int shift = 0) {
        mouse_down(program, hit_target(program, x, y), {button, shift, x, y});
    }
    void press_unit(const oUnits& unit, int button = left_button, int shift = 0) {
        mouse_down(program, {TargetKind::unit, unit.img_index},
                   {button, shift, static_cast<double>(unit.xcoord), static_cast<double>(unit.ycoord)});
    }
    void move(double x, double y, int button = 0) { mouse_move(program, {}, {button, 0, x, y}); }
    void release(double x, double y, int button = left_button) { picMap_MouseUp(program, {button, 0, x, y}); }

    std::size_t selected() const { return program.campaign.colSelectedUnits.count(); }

    frmMain& main = program.main;
    Campaign& campaign = program.campaign;
};
