#include "tests/windows/desktop.h"

#include "mapview/frmDisplay.h"
#include "mapview/frmEnterCoord.h"
#include "mapview/unit_marker.h"
#include "persistence/frmSaveSelect.h"
#include "program/about.h"
#include "program/menus.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QToolButton>

#include <algorithm>
#include <map>
#include <set>

namespace {

/// All windows in a large font, for users who need one.
class Layout : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        before = QApplication::font();
        QFont large = before;
        large.setPointSize(14);
        QApplication::setFont(large);
    }
    static void TearDownTestSuite() { QApplication::setFont(before); }

    /// The texts of the window that have less room than they need.
    static std::vector<std::string> clipped(const QWidget& window) {
        std::vector<std::string> texts;
        const auto note = [&](const QWidget& widget, const QString& text) {
            if (!widget.isVisible() || text.isEmpty()) return;
            // Styles make short buttons wider than their text needs.
            constexpr int margins = 12;
            QSize needed = widget.minimumSizeHint();
            if (dynamic_cast<const QPushButton*>(&widget) != nullptr)
                needed.setWidth(
                    std::min(needed.width(), widget.fontMetrics().horizontalAdvance(text) + margins));
            if (widget.width() < needed.width() || widget.height() < needed.height())
                texts.push_back(widget.objectName().toStdString() + ": " + text.toStdString());
        };
        for (const auto* label : window.findChildren<QLabel*>()) note(*label, label->text());
        for (const auto* button : window.findChildren<QAbstractButton*>()) note(*button, button->text());
        return texts;
    }

    /// Letters that two controls of the window claim for themselves.
    static std::vector<std::string> shared_letters(const QStringList& captions) {
        std::map<QChar, QString> owners;
        std::vector<std::string> shared;
        for (QString caption : captions) {
            caption.replace("&&", "");
            const qsizetype at = caption.indexOf('&');
            if (at < 0 || at + 1 >= caption.size()) continue;
            const QChar letter = caption.at(at + 1).toLower();
            if (owners.contains(letter)) shared.push_back((owners[letter] + " / " + caption).toStdString());
            owners[letter] = caption;
        }
        return shared;
    }

    static QStringList captions(const QWidget& window) {
        QStringList all;
        for (const auto* label : window.findChildren<QLabel*>())
            if (label->buddy() != nullptr) all << label->text();
        for (const auto* button : window.findChildren<QAbstractButton*>()) all << button->text();
        return all;
    }

    static void expect_names(const QWidget& window) {
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible()) continue;
            if (widget->objectName().startsWith("qt_")) continue;
            QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(widget);
            ASSERT_NE(face, nullptr);
            EXPECT_FALSE(face->text(QAccessible::Name).isEmpty())
                << widget->metaObject()->className() << " " << widget->objectName().toStdString();
        }
    }

    void expect_well_laid_out(const QWidget& window) {
        EXPECT_EQ(clipped(window), std::vector<std::string>{});
        EXPECT_EQ(shared_letters(captions(window)), std::vector<std::string>{});
        expect_names(window);
    }

    /// Puts a unit on the map and presses it.
    void open_unit_panel() {
        auto unit = std::make_shared<oUnits>();
        unit->ID = "{1}";
        unit->name = "1461st";
        unit->symbol = "\\data\\forces\\allied forces\\Rifle Company.gif";
        unit->xcoord = unit->ycoord = 300;
        desktop.program.campaign.colUnits->add(unit, unit->ID);
        unit->img_index = 1;
        make_unit_marker(desktop.program, *unit);
        QTest::mouseClick(desktop.control("picMapwindow"), Qt::LeftButton, {}, QPoint(302, 302));
        QTest::qWait(20);
        ASSERT_TRUE(desktop.control("picUnitInfo")->isVisible());
    }

    static QFont before;
    Desktop desktop;
};

QFont Layout::before;

} // namespace

TEST_F(Layout, DialogsHaveRoomForALargeFontUniqueLettersAndNames) {
    desktop.start();
    for (const char* entry : {"mnuSetDisplay", "mnuAboutTolvaneII", "mnuAboutMap"})
        desktop.with_dialog([&] { desktop.entry(entry)->trigger(); },
                            [&](QWidget* dialog) {
                                QTest::qWait(20);
                                expect_well_laid_out(*dialog);
                                dialog->close();
                            });
    desktop.with_dialog([&] { desktop.click("cmdFindCoord"); },
                        [&](QWidget* dialog) {
                            QTest::qWait(20);
                            expect_well_laid_out(*dialog);
                            QTest::keyClick(dialog, Qt::Key_Escape);
                        });
}

TEST_F(Layout, ChoiceOfWhatToSaveHasRoomForALargeFontUniqueLettersAndNames) {
    desktop.start();
    QTimer next_question; // whether to save an empty campaign
    desktop.with_dialog([&] { desktop.entry("mnuSaveSelected")->trigger(); },
                        [&](QWidget* dialog) {
                            QTest::qWait(20);
                            expect_well_laid_out(*dialog);
                            const QPointer<QWidget> choice(dialog);
                            QObject::connect(&next_question, &QTimer::timeout, [&next_question, choice] {
                                QWidget* const next = QApplication::activeModalWidget();
                                if (next == nullptr || next == choice) return;
                                next_question.stop();
                                QTest::keyClick(next, Qt::Key_Escape);
                            });
                            next_question.start(20);
                            dialog->close();
                        });
}

TEST_F(Layout, PanelsHaveRoomForALargeFontUniqueLettersAndNames) {
    desktop.start();
    open_unit_panel();
    expect_well_laid_out(*desktop.control("picUnitInfo"));
    desktop.click("cmdDrawLines");
    QTest::qWait(20);
    ASSERT_TRUE(desktop.control("picDrawLines")->isVisible());
    expect_well_laid_out(*desktop.control("picDrawLines"));
    desktop.click("cmdExitDrawLine");
    desktop.click("cmdUnitTray");
    QTest::qWait(20);
    ASSERT_TRUE(desktop.control("picUnitTray")->isVisible());
    expect_well_laid_out(*desktop.control("picUnitTray"));
}

TEST_F(Layout, LettersOfTheMenusAreUnique) {
    desktop.start();
    const auto* const window = dynamic_cast<QMainWindow*>(desktop.window());
    QStringList titles;
    for (const QAction* action : window->menuBar()->actions()) {
        titles << action->text();
        QStringList entries;
        for (const QAction* entry : action->menu()->actions()) entries << entry->text();
        EXPECT_EQ(shared_letters(entries), std::vector<std::string>{});
    }
    EXPECT_EQ(shared_letters(titles), std::vector<std::string>{});
    EXPECT_EQ(titles.size(), 6);
}

TEST_F(Layout, TabWalksThroughTheUnitPanelInReadingOrder) {
    desktop.start();
    open_unit_panel();
    const QWidget* const panel = desktop.control("picUnitInfo");
    std::vector<QPoint> places;
    const QWidget* widget = panel;
    do {
        widget = widget->nextInFocusChain();
        const bool takes_tab = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisibleTo(panel);
        if (panel->isAncestorOf(widget) && takes_tab && !widget->objectName().startsWith("qt_"))
            places.push_back(widget->mapTo(panel, QPoint(0, 0)));
    } while (widget != panel);
    ASSERT_GT(places.size(), 5U);
    for (std::size_t i = 1; i < places.size(); ++i) {
        const QPoint a = places[i - 1];
        const QPoint b = places[i];
        constexpr int same_row = 12;
        EXPECT_TRUE(b.y() > a.y() - same_row && (b.y() > a.y() + same_row || b.x() > a.x()))
            << a.x() << "," << a.y() << " then " << b.x() << "," << b.y();
    }
}

TEST_F(Layout, DarkThemeLeavesRulersTogglesAndListsReadable) {
    const QPalette light = QApplication::palette();
    QPalette dark(QColor(0x20, 0x22, 0x26));
    dark.setColor(QPalette::Base, QColor(0x18, 0x1A, 0x1D));
    QApplication::setPalette(dark);
    desktop.start();
    open_unit_panel();
    const QImage ruler = desktop.control("picHcoordContainer")->grab().toImage();
    int light_pixels = 0;
    int dark_blue_pixels = 0;
    for (int x = 0; x < ruler.width(); ++x)
        for (int y = 0; y < ruler.height(); ++y) {
            const QColor colour = ruler.pixelColor(x, y);
            light_pixels += colour.lightness() > 220 ? 1 : 0;
            dark_blue_pixels += colour.blue() > 120 && colour.red() < 60 ? 1 : 0;
        }
    EXPECT_GT(light_pixels, ruler.width() * ruler.height() / 2);
    EXPECT_GT(dark_blue_pixels, 50) << "the numbers";
    QWidget* const grid = desktop.control("cmdGrid");
    const QImage off = grid->grab().toImage();
    desktop.click("cmdGrid");
    QTest::qWait(20);
    EXPECT_NE(grid->grab().toImage(), off) << "one sees that it is on";
    const QPalette list = desktop.control("lstUIfe")->palette();
    EXPECT_GT(list.color(QPalette::Text).lightness() - list.color(QPalette::Base).lightness(), 120);
    QApplication::setPalette(light);
}
