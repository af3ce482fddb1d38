#include "mapview/selection.h"
#include "tests/windows/mouse.h"

#include <QCheckBox>
#include <QListView>
#include <QMenu>
#include <QRadioButton>

#include <memory>
#include <utility>

// What the mouse does in tray, overview, unit info panel and display options.

namespace {

class Panels : public Mouse {
  protected:
    static void drag(QWidget* in, QPointF from, QPointF to, Qt::KeyboardModifiers keys = {}) {
        send_to(in, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton, keys);
        send_to(in, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, keys);
        send_to(in, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton, keys);
    }
};

} // namespace

TEST_F(Panels, BandInTheTraySelectsItsMarker) {
    QWidget* const tray = open_tray();
    send_to(tray, QEvent::MouseButtonPress, {40, 40}, Qt::LeftButton, Qt::LeftButton);
    send_to(tray, QEvent::MouseMove, {90, 100}, Qt::NoButton, Qt::LeftButton);
    EXPECT_TRUE(main().shpTrayRubberband.visible);
    EXPECT_EQ(main().shpTrayRubberband.width, 50);
    send_to(tray, QEvent::MouseButtonRelease, {90, 100}, Qt::LeftButton, Qt::NoButton);
    EXPECT_FALSE(main().shpTrayRubberband.visible);
    EXPECT_EQ(campaign().colSelectedUnits.count(), 1U);
    EXPECT_EQ(main().imgUnit(1).border_style, 1);
}

TEST_F(Panels, MarkerIsDraggedOutOfTheTray) {
    QWidget* const tray = open_tray();
    drag(tray, {60, 62}, tray->mapFromGlobal(map->mapToGlobal(QPointF(402, 352))), Qt::ShiftModifier);
    EXPECT_EQ(main().imgUnit(1).container, Container::map);
    EXPECT_EQ(std::pair(main().imgUnit(1).left, main().imgUnit(1).top), std::pair(390.0, 338.0));
}

TEST_F(Panels, TrayHiddenDuringAPressTakesNoMoreOfIt) {
    QWidget* const tray = open_tray();
    send_to(tray, QEvent::MouseButtonPress, {140, 40}, Qt::LeftButton, Qt::LeftButton);
    QTest::keyClick(desktop.control("cmdUTClose"), Qt::Key_Space);
    ASSERT_FALSE(tray->isVisible());
    for (const auto& unit : {first, second}) select_unit(desktop.program, unit);
    desktop.click("cmdUnitTray");
    send_to(tray, QEvent::MouseButtonPress, {140, 40}, Qt::RightButton, Qt::LeftButton | Qt::RightButton);
    EXPECT_EQ(campaign().colSelectedUnits.count(), 2U);
}

TEST_F(Panels, TrayHiddenDuringADragEndsIt) {
    QWidget* const tray = open_tray();
    send_to(tray, QEvent::MouseButtonPress, {60, 62}, Qt::LeftButton, Qt::LeftButton, Qt::ShiftModifier);
    ASSERT_TRUE(main().dragging);
    QTest::keyClick(desktop.control("cmdUTClose"), Qt::Key_Space);
    EXPECT_FALSE(main().dragging);
    send(QEvent::MouseButtonPress, {400, 400}, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, {400, 400}, Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(main().imgUnit(1).container, Container::tray);
    EXPECT_FALSE(main().shpRubberband.visible);
}

TEST_F(Panels, OverviewHasItsPopupItsReferenceAndTakesTheMapAlong) {
    QWidget* const overview = desktop.control("picOverviewmap");
    send_to(overview, QEvent::MouseMove, {100, 100}, Qt::NoButton, Qt::NoButton);
    EXPECT_NE(main().sbarMap.panels[0], "");
    EXPECT_EQ(main().scrlHMap.value, 0);
    send_to(overview, QEvent::MouseMove, {100, 100}, Qt::NoButton, Qt::LeftButton);
    EXPECT_GT(main().scrlHMap.value, 0);
    send_to(overview, QEvent::MouseButtonPress, {100, 100}, Qt::RightButton, Qt::RightButton);
    QWidget* const popup = QApplication::activePopupWidget();
    ASSERT_NE(popup, nullptr);
    EXPECT_TRUE(popup->actions().contains(desktop.entry("mnuOVPU_showlines")));
    popup->close();
}

TEST_F(Panels, SubordinateAndHqAreSelectedFromTheUnitPanel) {
    first->children->add(std::make_shared<oChildren>(oChildren{"{2}", ""}), "{2}");
    second->parent_ID = "{1}";
    second->name = "the second";
    first->name = "the first";
    QTest::mouseClick(map, Qt::LeftButton, {}, over(*first));
    auto* const list = desktop.control<QListView>("lstUIchildunits");
    const QPoint row = list->visualRect(list->model()->index(0, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(campaign().curUnit, first);
    send_to(list->viewport(), QEvent::MouseButtonDblClick, row, Qt::LeftButton, Qt::LeftButton);
    EXPECT_EQ(campaign().curUnit, second);
    desktop.click("cmdSelectHQ");
    EXPECT_EQ(campaign().curUnit, first);
    const std::size_t rows = main().lstUIfe.rows.size();
    auto element = std::make_shared<oUnitForceElements>();
    element->Index = 999;
    second->force_elements->add(element, "{F}");
    desktop.click("chkShowAllFE");
    EXPECT_EQ(main().lstUIfe.rows.size(), rows + 1);
}

TEST_F(Panels, ChecksOfTheDisplayOptionsEnableTheirChoices) {
    desktop.with_dialog(
        [&] { desktop.entry("mnuSetDisplay")->trigger(); },
        [](QWidget* dialog) {
            const std::pair<const char*, const char*> groups[]{{"chkShowAOO", "optAOO"},
                                                               {"chkShowWaypoints", "optWaypt"},
                                                               {"chkShowFirefans", "optFirefans"},
                                                               {"chkUnitsecurityzone", "optUSZ"}};
            for (const auto& [check, option] : groups) {
                auto* const box = dialog->findChild<QCheckBox*>(check);
                auto* const all = dialog->findChild<QRadioButton*>(QString(option) + "1");
                auto* const selected = dialog->findChild<QRadioButton*>(QString(option) + "0");
                QTest::mouseClick(box, Qt::LeftButton);
                EXPECT_EQ(all->isEnabled(), box->isChecked()) << check;
                if (!box->isChecked()) QTest::mouseClick(box, Qt::LeftButton);
                EXPECT_TRUE(all->isEnabled() && selected->isEnabled()) << check;
                QTest::mouseClick(selected, Qt::LeftButton);
                EXPECT_TRUE(selected->isChecked() && !all->isChecked()) << check;
            }
            QTest::mouseClick(dialog->findChild<QWidget*>("cmdOK"), Qt::LeftButton);
        });
    EXPECT_TRUE(campaign().gDispAooSelected && campaign().gDispWayptSelected &&
                campaign().gDispFirefansSelected && campaign().gDispUSZSelected);
}
