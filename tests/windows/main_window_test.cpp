#include "tests/windows/desktop.h"

#include "core/trap.h"
#include "program/menus.h"
#include "program/toolbar.h"
#include "widgets/fonts_qt.h"

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QToolButton>
#include <QWheelEvent>
#include <QWindow>

#include <set>

namespace {

class MainWindow : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        desktop = new Desktop;
        desktop->start();
    }
    static void TearDownTestSuite() {
        delete desktop;
        desktop = nullptr;
    }
    void SetUp() override {
        bar("scrlHMap")->setValue(0);
        bar("scrlVMap")->setValue(0);
        ASSERT_TRUE(QTest::qWaitForWindowActive(desktop->window()));
    }

    static frmMain& main() { return desktop->program.main; }
    static QScrollBar* bar(const char* name) { return desktop->control<QScrollBar>(name); }

    static Desktop* desktop;
};

Desktop* MainWindow::desktop = nullptr;

} // namespace

TEST_F(MainWindow, EveryTableRowHasItsControlWithCaptionOrTip) {
    for (const MenuRow& row : menu_rows()) EXPECT_EQ(desktop->entry(row.control)->text(), row.caption);
    for (const ToolbarRow& row : toolbar_rows()) {
        const auto* const button = desktop->control<QToolButton>(row.control);
        EXPECT_EQ(button->toolTip(), row.tip);
        EXPECT_FALSE(button->icon().pixmap(24).isNull()) << row.control;
        EXPECT_EQ(button->isEnabled(), row.click != nullptr) << row.control;
    }
}

TEST_F(MainWindow, EveryControlHasAnAccessibleName) {
    for (QWidget* widget : desktop->window()->findChildren<QWidget*>()) {
        const bool interactive = widget->focusPolicy() != Qt::NoFocus && widget->isVisible();
        if (!interactive || widget->objectName().startsWith("qt_")) continue;
        QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(face, nullptr);
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty()) << widget->objectName().toStdString();
    }
}

TEST_F(MainWindow, BarsHaveTheRangesAndStepsOfTheirTwins) {
    EXPECT_EQ(bar("scrlHMap")->maximum(), main().scrlHMap.max);
    EXPECT_EQ(bar("scrlVMap")->pageStep(), main().scrlVMap.large_change);
    EXPECT_EQ(bar("scrlVMap")->singleStep(), main().scrlVMap.small_change);
}

TEST_F(MainWindow, KeysScrollWhateverHasTheFocus) {
    for (const char* focus : {"picMapwindow", "cmdGrid", "cmdLegend"}) {
        SetUp();
        desktop->control(focus)->setFocus();
        desktop->key(Qt::Key_Down);
        EXPECT_EQ(main().scrlVMap.value, 40) << focus;
        EXPECT_EQ(main().scrlHMap.value, 0) << focus;
    }
}

TEST_F(MainWindow, EachScrollingKeyGoesItsWay) {
    struct Row {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        int right;
        int down;
    };
    const Qt::KeyboardModifiers pad = Qt::KeypadModifier;
    const std::vector<Row> rows{
        {Qt::Key_Left, {}, -1, 0}, {Qt::Key_Up, {}, 0, -1}, {Qt::Key_Right, {}, 1, 0},
        {Qt::Key_Down, {}, 0, 1},  {Qt::Key_4, pad, -1, 0}, {Qt::Key_8, pad, 0, -1},
        {Qt::Key_6, pad, 1, 0},    {Qt::Key_2, pad, 0, 1},  {Qt::Key_7, pad, -1, -1},
        {Qt::Key_9, pad, 1, -1},   {Qt::Key_3, pad, 1, 1},  {Qt::Key_1, pad, -1, 1},
        {Qt::Key_5, pad, 0, 0},    {Qt::Key_0, pad, 0, 0},  {Qt::Key_Question, {}, 0, 0},
        {Qt::Key_A, {}, 0, 0}};
    for (const Row& row : rows) {
        bar("scrlHMap")->setValue(400);
        bar("scrlVMap")->setValue(400);
        desktop->key(row.key, row.modifiers);
        EXPECT_EQ(main().scrlHMap.value, 400 + 40 * row.right) << row.key;
        EXPECT_EQ(main().scrlVMap.value, 400 + 40 * row.down) << row.key;
    }
}

TEST_F(MainWindow, StandsInTheUpperLeftCornerOfTheScreen) {
    EXPECT_EQ(desktop->window()->geometry().topLeft(), QPoint(0, 0));
}

TEST_F(MainWindow, KeypadScrollsWithNumLockOnAndOff) {
    desktop->key(Qt::Key_6, Qt::KeypadModifier);
    EXPECT_EQ(main().scrlHMap.value, 40);
    desktop->key(Qt::Key_PageDown, Qt::KeypadModifier);
    EXPECT_EQ(main().scrlHMap.value, 80);
    EXPECT_EQ(main().scrlVMap.value, 40);
    desktop->key(Qt::Key_6);
    desktop->key(Qt::Key_PageDown);
    EXPECT_EQ(main().scrlHMap.value, 80) << "the keys that only look alike";
}

TEST_F(MainWindow, LosingTheWindowCountsAsLettingCtrlGo) {
    main().imgUnit.load(1).visible = true;
    desktop->program.campaign.gNextUnitIndex = 2;
    QTest::keyPress(desktop->window()->windowHandle(), Qt::Key_Control);
    EXPECT_FALSE(main().imgUnit(1).visible);
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_TRUE(main().imgUnit(1).visible);
    other.hide();
    desktop->window()->activateWindow();
    desktop->program.campaign.gNextUnitIndex = 1;
    main().imgUnit.unload_from(1);
}

TEST_F(MainWindow, LettingCtrlGoInAnOpenMenuShowsTheMarkersAgain) {
    main().imgUnit.load(1).visible = true;
    desktop->program.campaign.gNextUnitIndex = 2;
    QTest::keyPress(desktop->window()->windowHandle(), Qt::Key_Control);
    QWidget popup; // a window of its own, as a menu is
    QKeyEvent released(QEvent::KeyRelease, Qt::Key_Control, Qt::NoModifier);
    QApplication::sendEvent(&popup, &released);
    EXPECT_TRUE(main().imgUnit(1).visible);
    desktop->program.campaign.gNextUnitIndex = 1;
    main().imgUnit.unload_from(1);
}

TEST_F(MainWindow, ArrowsWalkThroughTheMenuBarWhileItHasTheKeyboard) {
    auto* const bar = desktop->window()->findChild<QMenuBar*>();
    bar->setActiveAction(bar->actions().at(0));
    desktop->key(Qt::Key_Right);
    EXPECT_EQ(main().scrlHMap.value, 0);
    if (QWidget* const menu = QApplication::activePopupWidget()) menu->close();
    bar->setActiveAction(nullptr);
    desktop->window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(desktop->window()));
    desktop->key(Qt::Key_Right);
    EXPECT_EQ(main().scrlHMap.value, 40);
}

TEST_F(MainWindow, WheelMovesTheBarsBySmallSteps) {
    QWidget* const map = desktop->control("picMapwindow");
    QWheelEvent down({100, 100}, map->mapToGlobal(QPointF(100, 100)), {}, {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(map, &down);
    EXPECT_EQ(main().scrlVMap.value, main().scrlVMap.small_change);
    QWheelEvent sideways({100, 100}, map->mapToGlobal(QPointF(100, 100)), {}, {0, -120}, Qt::NoButton,
                         Qt::ShiftModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(map, &sideways);
    EXPECT_EQ(main().scrlHMap.value, main().scrlHMap.small_change);
}

TEST_F(MainWindow, ToggleButtonShowsItsStateAlsoPressed) {
    desktop->click("cmdEdgescroll");
    EXPECT_TRUE(main().edge_scrolling);
    EXPECT_TRUE(desktop->control<QToolButton>("cmdEdgescroll")->isChecked());
    desktop->click("cmdEdgescroll");
    EXPECT_FALSE(main().edge_scrolling);
    EXPECT_FALSE(desktop->control<QToolButton>("cmdEdgescroll")->isChecked());
}

TEST_F(MainWindow, PointerOverTheMapShowsItsReference) {
    QWidget* const map = desktop->control("picMapwindow");
    QTest::mouseMove(map, QPoint(227, 104));
    QTest::qWait(10);
    EXPECT_EQ(desktop->control<QLabel>("panel1")->text(), "Eastern: 01.50 - Northern: 40.00");
}

TEST_F(MainWindow, PointerOverTheBorderIsNotOverTheMap) {
    QWidget* const map = desktop->control("picMapwindow");
    QTest::mouseMove(map, QPoint(227, 104));
    QTest::mouseMove(map, QPoint(1, 104));
    QTest::qWait(10);
    EXPECT_EQ(desktop->control<QLabel>("panel1")->text(), "Eastern: 01.50 - Northern: 40.00");
}

TEST_F(MainWindow, MapEndsWithItsLastPixel) {
    QWidget* const map = desktop->control("picMapwindow");
    const auto is_map = [&](int x, int y) {
        main().sbarMap.panels[0].clear();
        QTest::mouseMove(map, {x, y});
        QTest::qWait(10);
        return !main().sbarMap.panels[0].empty();
    };
    const int right = map->width() - 3; // the border has two
    const int bottom = map->height() - 3;
    EXPECT_TRUE(is_map(right, 104));
    EXPECT_FALSE(is_map(right + 1, 104));
    EXPECT_TRUE(is_map(104, bottom));
    EXPECT_FALSE(is_map(104, bottom + 1));
    const QSizeF whole(main().picMap.width, main().picMap.height);
    main().picMap.width = main().picMap.height = 300;
    EXPECT_TRUE(is_map(301, 301));
    EXPECT_FALSE(is_map(302, 300)) << "ground beside a small map";
    EXPECT_FALSE(is_map(300, 302));
    main().picMap.width = whole.width();
    main().picMap.height = whole.height();
}

TEST_F(MainWindow, SecondButtonTakesNothingFromTheFirst) {
    QWidget* const map = desktop->control("picMapwindow");
    UnitMarker& marker = main().imgUnit.load(1);
    marker.visible = true;
    marker.left = marker.top = 200;
    marker.width = marker.height = 30;
    const QPointF before(302, 302);
    QMouseEvent right_press(QEvent::MouseButtonPress, before, map->mapToGlobal(before), Qt::RightButton,
                            Qt::RightButton, {});
    QApplication::sendEvent(map, &right_press);
    const QPointF at(212, 212); // over the marker
    QMouseEvent press(QEvent::MouseButtonPress, at, map->mapToGlobal(at), Qt::LeftButton,
                      Qt::LeftButton | Qt::RightButton, {});
    QApplication::sendEvent(map, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, at, map->mapToGlobal(at), Qt::RightButton, Qt::LeftButton,
                        {});
    QApplication::sendEvent(map, &release);
    EXPECT_EQ(main().scrlHMap.value, 90);
    main().imgUnit.unload_from(1);
}

TEST_F(MainWindow, ResizeLaysTheMapOutAnew) {
    const QSize before = desktop->window()->size();
    desktop->window()->showNormal();
    desktop->window()->resize(900, 600);
    QTest::qWait(30);
    EXPECT_EQ(desktop->control("picMapwindow")->width(), 900 - 274);
    EXPECT_EQ(main().scrlHMap.max, main().picMap.width - (900 - 274 - 4));
    desktop->window()->resize(before);
    QTest::qWait(30);
}

TEST_F(MainWindow, RefusedCoordinateShowsItsMessageAndTheDialogStays) {
    desktop->with_dialog(
        [&] { desktop->click("cmdFindCoord"); },
        [&](QWidget* dialog) {
            auto* const east = dialog->findChild<QLineEdit*>("txtLongdata");
            QTest::keyClicks(east, "9999");
            QTimer::singleShot(60, [&] {
                auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
                ASSERT_NE(box, nullptr);
                EXPECT_EQ(box->text(), "Please enter a coordinate within the map boundries.");
                EXPECT_EQ(box->windowTitle(), "Tolvane ][");
                QTest::keyClick(box, Qt::Key_Return);
            });
            QTest::keyClick(east, Qt::Key_Return);
            EXPECT_TRUE(dialog->isVisible());
            EXPECT_EQ(east->text(), "0000");
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
    EXPECT_TRUE(desktop->program.campaign.gCoordCancelled);
}

TEST_F(MainWindow, QuestionsHaveTheirDefaultButtonAndEscapeMeansNo) {
    Answer answer = Answer::ok;
    for (const Answer expected : {Answer::yes, Answer::no}) {
        desktop->with_dialog(
            [&] {
                answer = desktop->platform.message({"Go on?", Icon::question, Buttons::yes_no, expected});
            },
            [&](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Return); });
        EXPECT_EQ(answer, expected);
    }
    desktop->with_dialog(
        [&] {
            answer = desktop->platform.message({"Go on?", Icon::question, Buttons::yes_no});
        },
        [&](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    EXPECT_EQ(answer, Answer::no);
}

TEST_F(MainWindow, CancelledDialogsFailWith32755) {
    const auto number = [&](const std::function<void()>& opens) {
        int failed = 0;
        desktop->with_dialog([&] { failed = failure_of(opens); },
                             [](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        return failed;
    };
    EXPECT_EQ(number([&] { desktop->platform.file_dialog({"t", "/tmp", "tvn|*.tvn"}); }), 32755);
    EXPECT_EQ(number([&] { desktop->platform.colour_dialog(255); }), 32755);
    EXPECT_EQ(number([&] { desktop->platform.font_dialog({}); }), 32755);
    EXPECT_EQ(number([&] { EXPECT_EQ(desktop->platform.input_box({"p", "t", ""}), std::nullopt); }), 0);
}

TEST_F(MainWindow, FileNameWithoutExtensionGetsThatOfTheFilter) {
    std::string chosen;
    desktop->with_dialog(
        [&] {
            chosen = desktop->platform.file_dialog({"t", "/tmp", "tvn|*.tvn", "", true, true});
        },
        [](QWidget* dialog) {
            auto* const edit = dialog->findChild<QLineEdit*>("fileNameEdit");
            edit->setText("/tmp/no such file here");
            QTest::keyClick(edit, Qt::Key_Return);
        });
    EXPECT_EQ(chosen, "/tmp/no such file here.tvn");
}

TEST_F(MainWindow, PresentFileIsAskedAboutUnderTheNameWithItsExtension) {
    const QTemporaryDir directory;
    const QString present = directory.path() + "/present campaign.tvn";
    QFile file(present);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    std::string chosen;
    QString question;
    desktop->with_dialog(
        [&] {
            chosen = desktop->platform.file_dialog(
                {"t", directory.path().toStdString(), "tvn|*.tvn", "", true, true});
        },
        [&](QWidget* dialog) {
            EXPECT_EQ(dialog->windowTitle(), "t");
            auto* const edit = dialog->findChild<QLineEdit*>("fileNameEdit");
            edit->setText(directory.path() + "/present campaign");
            QTimer poll;
            QObject::connect(&poll, &QTimer::timeout, [&] {
                auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
                if (box == nullptr) return;
                poll.stop();
                question = box->text();
                QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
            });
            poll.start(20);
            QTest::keyClick(edit, Qt::Key_Return);
        });
    EXPECT_TRUE(question.contains("present campaign.tvn")) << question.toStdString();
    EXPECT_EQ(chosen, present.toStdString());
}

TEST_F(MainWindow, FontsOfOtherSystemsHaveAStandInWithTheSameWidths) {
    EXPECT_TRUE(font_is_available("Arial"));
    EXPECT_TRUE(font_is_available("DejaVu Sans"));
    EXPECT_FALSE(font_is_available("No Such Font"));
}
