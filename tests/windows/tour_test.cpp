// The program from start to exit as a user drives it. Every window that is met leaves a picture.

#include "tests/windows/tour.h"

#include "core/files.h"

#include <QAction>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWindow>

#include <filesystem>

namespace {

/// The bytes that the campaign is saved as.
std::string saved(const std::string& path) { return files::read(path); }

} // namespace

TEST_F(Tour, FromStartToExit) {
    leave_pictures_in("");
    desktop.start();
    ASSERT_NE(desktop.window(), nullptr);
    desktop.splash_picture.save(pictures + "/01 splash.png");
    const frmMain& main = desktop.program.main;
    EXPECT_EQ(desktop.window()->size(), QApplication::primaryScreen()->availableSize());
    EXPECT_GE(desktop.program.campaign.colUnitTypes.count(), 168U);
    picture(desktop.window(), "02 main window");

    // The sample through menu and file dialog
    const std::string sample = std::string(PROGRAM_DIRECTORY) + "/campaigns/polynya.tvn";
    choose_file("mnuLoad", sample, "03 load dialog");
    EXPECT_GE(desktop.program.campaign.colUnits.count(), 300U);
    picture(desktop.window(), "04 campaign loaded");

    // By key, bar and pan
    desktop.key(Qt::Key_Right);
    EXPECT_EQ(main.scrlHMap.value, 40);
    desktop.key(Qt::Key_3, Qt::KeypadModifier);
    EXPECT_EQ(main.scrlHMap.value, 80);
    EXPECT_EQ(main.scrlVMap.value, 40);
    desktop.control<QScrollBar>("scrlHMap")->setValue(1200);
    desktop.control<QScrollBar>("scrlVMap")->setValue(1900);
    EXPECT_EQ(main.picMap.left, -1200);
    QWidget* const map = desktop.control("picMapwindow");
    QTest::mousePress(map, Qt::RightButton, {}, QPoint(400, 300));
    QTest::mouseMove(map, QPoint(300, 200));
    QTest::mouseRelease(map, Qt::RightButton, {}, QPoint(300, 200));
    EXPECT_EQ(main.scrlHMap.value, 1300);
    EXPECT_EQ(main.scrlVMap.value, 2000);
    EXPECT_EQ(main.sbarMap.panels[0].substr(0, 9), "Eastern: ");
    picture(desktop.window(), "05 scrolled");

    // Ctrl hides the markers while it is down
    QTest::keyPress(desktop.window()->windowHandle(), Qt::Key_Control);
    EXPECT_FALSE(main.imgUnit(1).visible);
    picture(desktop.window(), "06 markers hidden");
    QTest::keyRelease(desktop.window()->windowHandle(), Qt::Key_Control);
    EXPECT_TRUE(main.imgUnit(1).visible);

    // The grid and a coordinate
    desktop.click("cmdGrid");
    EXPECT_TRUE(desktop.program.campaign.gShowGrid);
    desktop.with_dialog([&] { desktop.click("cmdFindCoord"); },
                        [&](QWidget* dialog) {
                            EXPECT_EQ(dialog->objectName(), "frmEnterCoord");
                            auto* const east = dialog->findChild<QLineEdit*>("txtLongdata");
                            auto* const north = dialog->findChild<QLineEdit*>("txtLatdata");
                            EXPECT_EQ(east->selectedText(), "0000");
                            QTest::keyClicks(east, "1572");
                            QTest::keyClick(east, Qt::Key_Tab);
                            QTest::keyClicks(north, "2197");
                            picture(dialog, "07 find a location");
                            QTest::keyClick(north, Qt::Key_Return);
                        });
    EXPECT_EQ(desktop.program.campaign.gFindX, 2358);
    EXPECT_EQ(desktop.program.campaign.gFindY, 2806);
    EXPECT_TRUE(main.shpFindgrid.visible);
    picture(desktop.window(), "08 location found");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !main.tmrTimer.enabled; }, 5000)) << "the marker blinks away";
    EXPECT_FALSE(main.shpFindgrid.visible);

    // Every menu, and the fixed windows
    for (QAction* title : desktop.window()->findChild<QMenuBar*>()->actions()) {
        title->menu()->popup(desktop.window()->mapToGlobal(QPoint(10, 24)));
        picture(title->menu(), ("09 menu " + title->text().remove('&')).toLatin1().constData());
        title->menu()->hide();
    }
    desktop.with_dialog([&] { desktop.entry("mnuAboutTolvaneII")->trigger(); },
                        [&](QWidget* dialog) {
                            picture(dialog, "10 about the program");
                            QTest::keyClick(dialog, Qt::Key_Escape);
                        });
    desktop.with_dialog([&] { desktop.entry("mnuAboutMap")->trigger(); },
                        [&](QWidget* dialog) {
                            picture(dialog, "11 about the map");
                            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
                        });
    desktop.click("cmdLegend");
    QWidget* legend = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "frmMapLegend") legend = window;
    ASSERT_NE(legend, nullptr);
    EXPECT_TRUE(legend->isVisible());
    picture(legend, "12 map legend");
    QTest::mouseClick(legend->findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
    EXPECT_FALSE(legend->isVisible());

    // A part of it, then the whole under another name
    const std::string other = (pictures + "/saved.tvn").toStdString();
    desktop.with_dialog(
        [&] {
            desktop.with_dialog([&] { desktop.entry("mnuSaveSelected")->trigger(); },
                                [&](QWidget* dialog) {
                                    EXPECT_EQ(dialog->objectName(), "frmSaveSelect");
                                    picture(dialog, "13 what to save");
                                    QTimer::singleShot(100, [] {
                                        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
                                    });
                                    QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"),
                                                      Qt::LeftButton);
                                });
        },
        [](QWidget*) {});
    EXPECT_FALSE(main.saving_selected);
    choose_file("mnuSave", other, "14 save dialog");
    EXPECT_EQ(saved(other), saved(sample));

    // The same file again into an emptied campaign
    desktop.program.campaign.colUnits.drop();
    desktop.program.campaign.colLabels.drop();
    desktop.program.campaign.colLines.drop();
    desktop.program.campaign.colShapes.drop();
    desktop.program.campaign.colPolygons.drop();
    desktop.program.campaign.colFireMissions.drop();
    desktop.with_dialog([&] { desktop.entry("mnuSave")->trigger(); },
                        [&](QWidget* dialog) {
                            auto* const box = dynamic_cast<QMessageBox*>(dialog);
                            ASSERT_NE(box, nullptr);
                            picture(dialog, "15 nothing to save");
                            QTest::mouseClick(box->button(QMessageBox::No), Qt::LeftButton);
                        });
    choose_file("mnuLoad", other, "16 load again");
    const std::string third = (pictures + "/saved again.tvn").toStdString();
    choose_file("mnuSave", third, "17 save again");
    EXPECT_EQ(saved(third), saved(sample));

    desktop.entry("mnuExit")->trigger();
    EXPECT_FALSE(desktop.window()->isVisible());
    EXPECT_TRUE(desktop.program.campaign.colUnits.empty());
}
