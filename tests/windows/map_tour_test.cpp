// Units and lines in hand, with the mouse over the real windows. Every stage leaves a picture.

#include "tests/windows/tour.h"

#include "mapview/frmDisplay.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

namespace {

class MapTour : public Tour {
  protected:
    frmMain& main() { return desktop.program.main; }
    QWidget* map() { return desktop.control("picMapwindow"); }

    /// The place of the view where a map pixel is.
    QPoint view(double x, double y) {
        return {static_cast<int>(x + main().picMap.left + 2), static_cast<int>(y + main().picMap.top + 2)};
    }
    QPoint view(const oUnits& unit) { return view(unit.xcoord, unit.ycoord); }

    void press(QPoint at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(map(), button, keys, at);
        QTest::qWait(1);
    }

    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers keys = {}) {
        QTest::mousePress(map(), Qt::LeftButton, keys, from);
        QTest::mouseMove(map(), (from + to) / 2);
        QTest::mouseMove(map(), to);
        QTest::mouseRelease(map(), Qt::LeftButton, keys, to);
        QTest::qWait(1);
    }

    /// A headquarters with artillery and subordinates, close to the front.
    std::shared_ptr<oUnits> headquarters() {
        for (const auto& unit : desktop.program.campaign.colUnits)
            if (unit->name == "1471st") return unit;
        return desktop.program.campaign.colUnits->at(1);
    }

    void centre_on(const oUnits& unit) {
        desktop.control<QScrollBar>("scrlHMap")
            ->setValue(unit.xcoord - static_cast<int>(main().picMapwindow.width) / 2);
        desktop.control<QScrollBar>("scrlVMap")
            ->setValue(unit.ycoord - static_cast<int>(main().picMapwindow.height) / 2);
    }

    void load_sample() {
        desktop.start();
        choose_file("mnuLoad", std::string(PROGRAM_DIRECTORY) + "/campaigns/polynya.tvn", nullptr);
        ASSERT_GE(desktop.program.campaign.colUnits.count(), 300U);
    }

    void show_a_unit() {
        const auto unit = headquarters();
        centre_on(*unit);
        // Markers may lie over each other: the topmost one is what a press takes.
        press(view(*unit));
        ASSERT_TRUE(main().picUnitInfo.visible);
        EXPECT_EQ(desktop.program.campaign.colSelectedUnits.count(), 1U);
        picture(desktop.window(), "01 unit selected");
        desktop.click("cmdHierarchy");
        EXPECT_TRUE(main().hierarchy_on);
        picture(desktop.window(), "02 chain of command");
    }

    void band_and_move() {
        const QPoint corner = view(*headquarters()) - QPoint(200, 160);
        press(QPoint(map()->width() - 20, map()->height() - 20)); // empty ground takes the selection off
        drag(corner, corner + QPoint(400, 320));
        const std::size_t selected = desktop.program.campaign.colSelectedUnits.count();
        EXPECT_GT(selected, 1U);
        EXPECT_TRUE(desktop.entry("mnuDeleteSelected") != nullptr && main().mnuDeleteSelected.enabled);
        picture(desktop.window(), "03 group selected");
        const auto first = desktop.program.campaign.colSelectedUnits->at(1);
        const auto second = desktop.program.campaign.colSelectedUnits->at(2);
        const int distance = first->xcoord - second->xcoord;
        const int was = second->xcoord;
        const QPoint from = view(*second);
        drag(from, from + QPoint(120, 60), Qt::ShiftModifier);
        EXPECT_NE(second->xcoord, was);
        EXPECT_NEAR(first->xcoord - second->xcoord, distance, 2);
        picture(desktop.window(), "04 group moved");
        press(QPoint(30, 30), Qt::RightButton);
        EXPECT_TRUE(desktop.program.campaign.colSelectedUnits.empty());
    }

    void use_the_tray() {
        const auto unit = headquarters();
        desktop.click("cmdUnitTray");
        QWidget* const tray = desktop.control("picUnitTray");
        ASSERT_TRUE(tray->isVisible());
        const QPoint from = view(*unit);
        QTest::mousePress(map(), Qt::LeftButton, Qt::ShiftModifier, from);
        const QPoint to = map()->mapFromGlobal(tray->mapToGlobal(QPoint(60, 80)));
        QTest::mouseMove(map(), to);
        QTest::mouseRelease(map(), Qt::LeftButton, Qt::ShiftModifier, to);
        bool in_tray = false;
        for (int i = 1; i < desktop.program.campaign.gNextUnitIndex; ++i)
            in_tray = in_tray || main().imgUnit(i).container == Container::tray;
        EXPECT_TRUE(in_tray);
        EXPECT_EQ(tray->parentWidget()->childAt(tray->geometry().center()), tray)
            << "before the unit's panel";
        picture(desktop.window(), "05 unit in the tray");
        QTest::mouseClick(desktop.control<QPushButton>("cmdUTClose"), Qt::LeftButton);
        EXPECT_FALSE(tray->isVisible());
    }

    void display_everything() {
        desktop.with_dialog([&] { desktop.entry("mnuSetDisplay")->trigger(); },
                            [&](QWidget* dialog) {
                                EXPECT_EQ(dialog->objectName(), "frmDisplay");
                                QTest::mouseClick(dialog->findChild<QPushButton*>("cmdSelectAll"),
                                                  Qt::LeftButton);
                                picture(dialog, "06 display options");
                                QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
                            });
        EXPECT_TRUE(desktop.program.campaign.gDispUSZAll);
        picture(desktop.window(), "07 everything displayed");
        desktop.program.campaign.gDispUSZFilled = false;
        main().picMap.Refresh();
        desktop.entry("mnuUnitState")->trigger();
        picture(desktop.window(), "08 hatched zones and states");
        static_cast<DisplayOptions&>(desktop.program.campaign) = {};
        desktop.program.campaign.gDispAoo = false;
        main().picMap.Refresh();
    }

    void draw_a_line(const std::vector<QPoint>& points) {
        for (const QPoint& point : points) {
            QTest::mouseMove(map(), point);
            press(point);
        }
    }

    void draw_lines() {
        desktop.control<QScrollBar>("scrlHMap")->setValue(0);
        desktop.control<QScrollBar>("scrlVMap")->setValue(0);
        desktop.click("cmdDrawLines");
        QWidget* const panel = desktop.control("picDrawLines");
        ASSERT_TRUE(panel->isVisible());
        EXPECT_FALSE(main().cmdDrawLines.enabled);
        QTest::mouseClick(panel->findChild<QRadioButton*>("optPolyline"), Qt::LeftButton);
        QTest::mouseClick(panel->findChild<QCheckBox*>("chkBoundry"), Qt::LeftButton);
        auto* const sizes = panel->findChild<QComboBox*>("cboBoundrySize");
        int y = 60;
        for (const char* size : {"Corps", "Division", "Brigade", "Regiment", "Battalion", "Company"}) {
            sizes->setCurrentText(size);
            QTest::mouseClick(panel->findChild<QPushButton*>("cmdStartDrawLines"), Qt::LeftButton);
            EXPECT_TRUE(main().drawing_lines);
            draw_a_line({{100, y}, {300, y}, {480, y + 60}, {640, y}});
            press({640, y}, Qt::RightButton);
            EXPECT_TRUE(main().line_ended);
            y += 70;
        }
        QTest::mouseClick(panel->findChild<QCheckBox*>("chkBoundry"), Qt::LeftButton);
        EXPECT_FALSE(main().drawing_lines) << "a changed setting ends drawing";
        QTest::mouseClick(panel->findChild<QCheckBox*>("chkArrow"), Qt::LeftButton);
        panel->findChild<QScrollBar*>("scrlLineWidth")->setValue(4);
        QTest::mouseClick(panel->findChild<QPushButton*>("cmdStartDrawLines"), Qt::LeftButton);
        draw_a_line({{700, 60}, {760, 200}, {700, 300}});
        QTest::mouseMove(map(), QPoint(820, 360));
        picture(desktop.window(), "09 lines and boundaries");
        press({700, 300}, Qt::RightButton);
        QTest::mouseClick(panel->findChild<QPushButton*>("cmdExitDrawLine"), Qt::LeftButton);
        EXPECT_FALSE(panel->isVisible());
        EXPECT_TRUE(main().cmdDrawLines.enabled);
    }

    void measure() {
        desktop.click("cmdRangecheck");
        press({200, 200});
        QTest::mouseMove(map(), QPoint(350, 200));
        QTest::qWait(5);
        EXPECT_EQ(main().sbarMap.panels[2], "Range: 1.00 km.");
        press({200, 200}, Qt::RightButton);
        EXPECT_FALSE(main().checking_range);
        desktop.entry("mnuRangeCircles")->trigger();
        press({500, 400});
        picture(desktop.window(), "10 range circles");
        desktop.entry("mnuRangeCircles")->trigger();
    }
};

} // namespace

TEST_F(MapTour, UnitsAndLinesInHand) {
    leave_pictures_in(" map");
    end_unexpected_messages();
    load_sample();
    show_a_unit();
    band_and_move();
    use_the_tray();
    display_everything();
    draw_lines();
    measure();
    // The overview takes the map along.
    QWidget* const overview = desktop.control("picOverviewmap");
    QTest::mouseClick(overview, Qt::LeftButton, {}, QPoint(112, 125));
    EXPECT_NEAR(main().scrlHMap.value, 2688 - main().picMapwindow.width / 2, 60);
}
