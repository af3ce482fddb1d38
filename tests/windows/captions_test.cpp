#include "tests/windows/desktop.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>

#include <algorithm>

namespace {

/// What stands on the windows.
class Captions : public testing::Test {
  protected:
    Captions() { desktop.start(); }

    static std::string plain(QString text) { return text.remove('&').toStdString(); }

    /// The captions of all controls of a kind on a window, in the order in which they were made.
    template <class Control> static std::vector<std::string> of(const QWidget& window) {
        std::vector<std::string> all;
        for (const Control* control : window.findChildren<Control*>())
            if (!control->text().isEmpty()) all.push_back(plain(control->text()));
        return all;
    }

    static bool holds(const std::vector<std::string>& all, const std::string& text) {
        return std::find(all.begin(), all.end(), text) != all.end();
    }

    static std::string caption_of(const QWidget& window, const std::string& name) {
        const auto* const button = window.findChild<QAbstractButton*>(QString::fromStdString(name));
        return button == nullptr ? "nothing" : plain(button->text());
    }

    void with(const std::function<void()>& opens, const std::function<void(const QWidget&)>& look) const {
        desktop.with_dialog(opens, [&](QWidget* dialog) {
            look(*dialog);
            dialog->close();
        });
    }

    Desktop desktop;
};

using Texts = std::vector<std::string>;

} // namespace

TEST_F(Captions, OfTheChoiceOfWhatToSave) {
    desktop.program.campaign.colLabels->add(std::make_shared<oLabels>());
    QTimer file_dialog;
    QObject::connect(&file_dialog, &QTimer::timeout, [] {
        if (QWidget* const next = QApplication::activeModalWidget()) QTest::keyClick(next, Qt::Key_Escape);
    });
    with([&] { desktop.entry("mnuSaveSelected")->trigger(); },
         [&](const QWidget& dialog) {
             EXPECT_EQ(of<QAbstractButton>(dialog),
                       (Texts{"Units", "Shapes", "Labels", "Polygons", "Lines", "Firemissions", "OK"}));
             file_dialog.start(50);
         });
}

TEST_F(Captions, OfTheCoordinate) {
    with([&] { desktop.click("cmdFindCoord"); },
         [](const QWidget& dialog) {
             const Texts labels = of<QLabel>(dialog);
             EXPECT_TRUE(holds(labels, "East:") && holds(labels, "North:"));
             EXPECT_EQ(of<QAbstractButton>(dialog), (Texts{"OK", "Cancel"}));
         });
}

TEST_F(Captions, OfTheDisplayOptions) {
    with([&] { desktop.entry("mnuSetDisplay")->trigger(); },
         [](const QWidget& dialog) {
             EXPECT_TRUE(holds(of<QLabel>(dialog), "Set display options"));
             const std::vector<std::pair<std::string, std::string>> captions{
                 {"chkMmUnits", "Units"},
                 {"chkMmLabels", "Labels"},
                 {"chkMmLines", "Lines"},
                 {"chkMmShapes", "Shapes"},
                 {"chkMmPolygons", "Polygons"},
                 {"chkMmFireMissions", "Fire missions"},
                 {"chkShowAOO", "Show Area of Op."},
                 {"optAOO1", "All units"},
                 {"optAOO0", "Selected unit only"},
                 {"chkShowWaypoints", "Show Waypoints"},
                 {"optWaypt1", "All units"},
                 {"optWaypt0", "Selected unit only"},
                 {"chkWayptData", "Waypoint data"},
                 {"chkShowFirefans", "Show Firefans"},
                 {"optFirefans1", "All units"},
                 {"optFirefans0", "Selected unit only"},
                 {"chkMmUnitName", "Unit names"},
                 {"chkMmUnitHQname", "Unit HQ names"},
                 {"chkOmUnits", "Units"},
                 {"chkOmFirefans", "Firefans (all)"},
                 {"chkOmLines", "Lines"},
                 {"chkUnitsecurityzone", "Show unit sec. zones"},
                 {"optUSZ1", "All units"},
                 {"optUSZ0", "Selected unit only"},
                 {"chkUSZfilled", "Use filled circle"}};
             for (const auto& [name, caption] : captions) EXPECT_EQ(caption_of(dialog, name), caption);
         });
}

TEST_F(Captions, OfTheLinePanel) {
    const QWidget& panel = *desktop.control("picDrawLines");
    const std::vector<std::pair<std::string, std::string>> captions{
        {"optSingleLine", "Single line"},
        {"optPolyline", "Polyline"},
        {"chkArrow", "Arrow"},
        {"chkBoundry", "Unit boundry"},
        {"cmdStartDrawLines", "Draw"},
        {"cmdDeleteLine", "Delete line"},
        {"cmdMovePoint", "Move a point"},
        {"cmdDeletePoint", "Delete single point (polylines only)"},
        {"cmdInsertPointLine", "Insert point"},
        {"cmdDeleteAllLines", "Delete all lines"},
        {"cmdExitDrawLine", "Exit"}};
    for (const auto& [name, caption] : captions) {
        std::string shown = caption_of(panel, name);
        std::replace(shown.begin(), shown.end(), '\n', ' ');
        EXPECT_EQ(shown, caption);
    }
    EXPECT_TRUE(holds(of<QLabel>(panel), "Select line style (NB! Only works for line width = 1)"));
}

TEST_F(Captions, OfTrayAndUnitPanel) {
    desktop.click("cmdUnitTray");
    QTest::qWait(20);
    EXPECT_EQ(desktop.program.main.lblUnitTray.caption, "Unit tray");
    QWidget& tray = *desktop.control("picUnitTray");
    const auto dark_pixels = [&] {
        const QImage top = tray.grab(QRect(tray.width() / 4, 3, tray.width() / 2, 14)).toImage();
        int count = 0;
        for (int x = 0; x < top.width(); ++x)
            for (int y = 0; y < top.height(); ++y) count += top.pixelColor(x, y).lightness() < 100 ? 1 : 0;
        return count;
    };
    EXPECT_GT(dark_pixels(), 20) << "it stands at the top, in the middle";
    desktop.program.main.lblUnitTray.caption.clear();
    EXPECT_EQ(dark_pixels(), 0);
    EXPECT_EQ(caption_of(*desktop.window(), "cmdUTClose"), "Hide");
    std::string accumulated = caption_of(*desktop.window(), "chkShowAllFE");
    std::replace(accumulated.begin(), accumulated.end(), '\n', ' ');
    EXPECT_EQ(accumulated, "Show accumulated for all subordinate units");
    EXPECT_EQ(caption_of(*desktop.window(), "cmdHierarchy"), "CoC");
    EXPECT_EQ(caption_of(*desktop.window(), "cmdUnitWaypoints"), "Add waypt.");
    EXPECT_EQ(caption_of(*desktop.window(), "cmdEditWaypt"), "Edit wpt.");
    EXPECT_EQ(caption_of(*desktop.window(), "cmdMoveWaypt"), "Move wpt.");
}

TEST_F(Captions, OfTheFixedWindows) {
    with([&] { desktop.entry("mnuAboutMap")->trigger(); },
         [](const QWidget& dialog) {
             EXPECT_EQ(dialog.objectName(), "frmAboutMap");
             EXPECT_TRUE(holds(of<QLabel>(dialog), "1:50,000 scale, with each grid square 1 km x 1 km"));
         });
    with([&] { desktop.entry("mnuAboutTolvaneII")->trigger(); },
         [](const QWidget& dialog) {
             EXPECT_EQ(dialog.objectName(), "frmAboutTolvaneII");
             EXPECT_EQ(of<QLabel>(dialog), (Texts{"Tolvane II", "Version 1.0", "November 2003"}));
         });
    desktop.click("cmdLegend");
    QTest::qWait(50);
    QWidget* legend = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "frmMapLegend" && window->isVisible()) legend = window;
    ASSERT_NE(legend, nullptr);
    const auto pictures = legend->findChildren<QLabel*>();
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_GT(pictures[0]->pixmap().width(), 300);
    legend->close();
}
