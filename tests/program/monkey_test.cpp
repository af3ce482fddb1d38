// A hundred thousand presses, moves, releases, keys and commands by chance, always the same ones.

#include "annotation/line_panel.h"
#include "core/hierarchy.h"
#include "core/trap.h"
#include "mapview/keys.h"
#include "mapview/overview.h"
#include "mapview/painting.h"
#include "mapview/unit_info.h"
#include "mapview/unit_tray.h"
#include "program/menus.h"
#include "program/toolbar.h"
#include "program/unit_info_buttons.h"
#include "tests/support/map_test.h"

#include <random>

namespace {

class Monkey : public MapTest {
  protected:
    Monkey() {
        for (int i = 0; i < 20; ++i)
            add_marked("{" + std::string(36, static_cast<char>('a' + i)) + "}", chance(5000), chance(5000));
        for (int i = 1; i <= 3; ++i) {
            MapLabel& label = main.lblUser.load(i);
            label.visible = true;
            label.left = chance(5000);
            label.top = chance(5000);
            label.width = label.height = 400;
        }
        collect_commands();
    }

    int chance(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

    void collect_commands() {
        for (const MenuRow& row : menu_rows())
            if (row.click != nullptr && std::string(row.control) != "mnuExit") commands.push_back(row.click);
        for (const ToolbarRow& row : toolbar_rows())
            if (row.click != nullptr) commands.push_back(row.click);
        for (const UnitInfoButton& row : unit_info_buttons())
            if (row.click != nullptr) commands.push_back(row.click);
        for (const auto click :
             {cmdStartDrawLines_Click, cmdDeleteLine_Click, cmdMovePoint_Click, cmdDeletePoint_Click,
              cmdInsertPointLine_Click, cmdExitDrawLine_Click, optPolyline_Click, optSingleLine_Click,
              chkArrow_Click, chkBoundry_Click, scrlLineWidth_Change, cmdSelectHQ_Click, chkShowAllFE_Click,
              lstUIchildunits_DblClick, lstUIfe_Click, cmdUTClose_Click})
            commands.push_back(click);
    }

    HitTarget target(double x, double y) {
        if (chance(3) == 0) return {TargetKind::unit, 1 + chance(campaign.gNextUnitIndex - 1)};
        return hit_target(program, x, y);
    }

    MapPress random_press() {
        constexpr std::array<int, 3> buttons{left_button, right_button, 4};
        constexpr std::array<int, 3> keys{0, shift_key, ctrl_key};
        MapPress press{buttons.at(static_cast<std::size_t>(chance(3))),
                       keys.at(static_cast<std::size_t>(chance(3))), chance(11000) / 2.0,
                       chance(11000) / 2.0};
        // Often where a vertex is, so that the tools have something to pick.
        if (chance(2) == 0 && !campaign.colLines.empty()) {
            const auto& vertices = campaign.colLines->at(1 + random() % campaign.colLines.count())->colCoords;
            if (!vertices.empty()) {
                press.x = vertices->at(1)->x_cor;
                press.y = vertices->at(1)->y_cor;
            }
        }
        return press;
    }

    void act() {
        const MapPress press = random_press();
        switch (chance(9)) {
        case 0:
        case 1:
        case 2:
            mouse_down(program, target(press.x, press.y), press);
            break;
        case 3:
            mouse_move(program, target(press.x, press.y), press);
            break;
        case 4:
            picMap_MouseUp(program, press);
            break;
        case 5:
            if (main.dragging) drag_drop(program, static_cast<DropSite>(chance(4)), press.x, press.y);
            break;
        case 6:
            Form_KeyDown(program, 30 + chance(80));
            Form_KeyUp(program, key::ctrl);
            break;
        case 7:
            picUnitTray_MouseDown(program, press);
            picUnitTray_MouseMove(program, press);
            picUnitTray_MouseUp(program, press);
            picOverviewmap_MouseMove(program, press);
            break;
        default:
            commands[random() % commands.size()](program);
        }
    }

    void expect_sound_state() {
        for (const auto& unit : campaign.colUnits)
            ASSERT_EQ(campaign.colUnits->find(unit->ID), unit) << "the key is the ID";
        for (int i = 1; i < campaign.gNextUnitIndex; ++i) {
            const std::string& tag = main.imgUnit(i).tag;
            ASSERT_TRUE(tag == deleted_tag || campaign.colUnits->contains(tag)) << i;
        }
        ASSERT_EQ(campaign.gNextUnitIndex, 21) << "no index is handed out by tools";
        ASSERT_GE(main.scrlHMap.value, 0);
        ASSERT_LE(main.scrlHMap.value, main.scrlHMap.max);
    }

    std::mt19937 random{1942};
    std::vector<void (*)(Program&)> commands;
};

} // namespace

TEST_F(Monkey, NothingLeavesItsTrapAndTheStateStaysSound) {
    std::size_t lines_drawn = 0;
    std::size_t panels_shown = 0;
    for (int i = 0; i < 100000; ++i) {
        platform.answers = {chance(2) == 0 ? Answer::yes : Answer::no};
        ASSERT_EQ(failure_of([&] { act(); }), 0) << "step " << i;
        if (i % 200 == 0) {
            paint_if_marked(program);
            expect_sound_state();
            platform.messages.clear();
            platform.log.clear();
            lines_drawn += campaign.colLines.count();
            panels_shown += main.picUnitInfo.visible ? 1 : 0;
            campaign.colLines.drop();
        }
    }
    EXPECT_GT(lines_drawn, 100U) << "the monkey gets into the tools";
    EXPECT_GT(panels_shown, 100U);
    check_hierarchy(program);
    platform.messages.clear();
    check_hierarchy(program);
    EXPECT_TRUE(platform.messages.empty()) << "the links are in step";
}
