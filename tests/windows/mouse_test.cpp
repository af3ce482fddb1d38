#include "tests/windows/mouse.h"

#include "core/identity.h"
#include "mapview/map_accessible_window.h"
#include "mapview/unit_info.h"
#include "tools/support/paint_watch.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QWindow>

#include <array>
#include <set>
#include <utility>

TEST_F(Mouse, MessageDuringAPressEndsTheDragThatItBegan) {
    first->children->add(std::make_shared<oChildren>(oChildren{"{gone}", ""}), "{gone}");
    desktop.with_dialog(
        [&] {
            send(QEvent::MouseButtonPress, over(*first), Qt::LeftButton, Qt::LeftButton, Qt::ShiftModifier);
        },
        [](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Return); });
    EXPECT_FALSE(main().dragging);
    send(QEvent::MouseButtonRelease, QPointF(700, 400), Qt::LeftButton, Qt::NoButton);
    send(QEvent::MouseMove, QPointF(600, 400), Qt::NoButton, Qt::NoButton);
    QTest::mouseClick(map, Qt::LeftButton, {}, QPoint(650, 450));
    EXPECT_EQ(first->xcoord, 300) << "nothing was dragged";
    EXPECT_FALSE(main().shpRubberband.visible);
}

TEST_F(Mouse, MenuOpenedDuringADragEndsIt) {
    send(QEvent::MouseButtonPress, over(*first), Qt::LeftButton, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_TRUE(main().dragging);
    send(QEvent::MouseButtonPress, over(*first), Qt::RightButton, Qt::LeftButton | Qt::RightButton);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_FALSE(main().dragging);
    QApplication::activePopupWidget()->close();
    QTest::mouseClick(map, Qt::LeftButton, {}, QPoint(650, 450));
    EXPECT_EQ(first->xcoord, 300);
}

TEST_F(Mouse, OnlyTheLeftReleaseDropsAndAMoveWithoutItEndsTheDrag) {
    send(QEvent::MouseButtonPress, over(*first), Qt::LeftButton, Qt::LeftButton, Qt::ShiftModifier);
    send(QEvent::MouseButtonRelease, QPointF(650, 450), Qt::MiddleButton, Qt::LeftButton);
    EXPECT_TRUE(main().dragging);
    EXPECT_EQ(first->xcoord, 300);
    send(QEvent::MouseMove, QPointF(650, 450), Qt::NoButton, Qt::NoButton);
    EXPECT_FALSE(main().dragging);
    send(QEvent::MouseButtonRelease, QPointF(650, 450), Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(first->xcoord, 300);
}

TEST_F(Mouse, ButtonsBesideTheThreeAreNotTheRules) {
    QTest::mouseClick(map, Qt::LeftButton, {}, over(*first));
    ASSERT_TRUE(main().picUnitInfo.visible);
    QTest::mouseClick(map, Qt::BackButton, {}, QPoint(650, 450));
    EXPECT_TRUE(main().picUnitInfo.visible);
}

TEST_F(Mouse, PressWithAnotherOfTheOtherButtonsDownGoesToWhatIsUnderThePointer) {
    QTest::mouseClick(map, Qt::LeftButton, {}, over(*first));
    const QPointF ground(650, 450);
    send(QEvent::MouseButtonPress, ground, Qt::LeftButton, Qt::LeftButton | Qt::BackButton);
    EXPECT_FALSE(main().picUnitInfo.visible);
    EXPECT_TRUE(main().shpRubberband.visible);
    send(QEvent::MouseButtonRelease, ground, Qt::LeftButton, Qt::BackButton);
    QWidget* const tray = open_tray();
    send_to(tray, QEvent::MouseButtonPress, QPointF(60, 62), Qt::LeftButton, Qt::LeftButton | Qt::BackButton);
    EXPECT_TRUE(main().picUnitInfo.visible) << "of the marker in the tray";
}

TEST_F(Mouse, KeysScrollWhileThePointerRestsOnTheMenuBar) {
    auto* const window = dynamic_cast<QMainWindow*>(desktop.window());
    QMenuBar* const bar = window->menuBar();
    const QPointF title = bar->actionGeometry(bar->actions().at(1)).center();
    QMouseEvent hover(QEvent::MouseMove, title, bar->mapToGlobal(title), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(bar, &hover);
    ASSERT_NE(bar->activeAction(), nullptr);
    desktop.key(Qt::Key_Down);
    EXPECT_EQ(main().scrlVMap.value, 40);
}

TEST_F(Mouse, DropOnAPanelThatLiesOverTheTrayIsNone) {
    desktop.click("cmdUnitTray");
    QWidget* const tray = desktop.control("picUnitTray");
    ASSERT_TRUE(tray->isVisible());
    desktop.click("cmdDrawLines");
    ASSERT_TRUE(tray->isVisible());
    send(QEvent::MouseButtonPress, over(*first), Qt::LeftButton, Qt::LeftButton, Qt::ShiftModifier);
    const QPoint in_tray = map->mapFromGlobal(tray->mapToGlobal(QPoint(100, 100)));
    send(QEvent::MouseButtonRelease, in_tray, Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(main().imgUnit(1).container, Container::map);
    EXPECT_EQ(first->xcoord, 300);
}

TEST_F(Mouse, MoveOverAMarkerInTheTrayShowsItsCoordinates) {
    send_to(open_tray(), QEvent::MouseMove, QPointF(60, 62), Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(main().unit_grab_x, 10);
    EXPECT_EQ(main().unit_grab_y, 12);
    EXPECT_NE(main().sbarMap.panels[0], "");
}

TEST_F(Mouse, ScratchLinesAreDrawnAnewWhenThePointerMovesOverAMarkerInTheTray) {
    QWidget* const tray = open_tray();
    main().linTempLine = {100, 100, 200, 200, true};
    QApplication::processEvents();
    PaintWatch watch(map);
    send_to(tray, QEvent::MouseMove, QPointF(60, 62), Qt::NoButton, Qt::NoButton);
    QApplication::processEvents();
    EXPECT_TRUE(watch.was_painted());
    EXPECT_EQ(main().linTempLine.x2, 60);
}

TEST_F(Mouse, SecondButtonTakesUpNoPressInTheTrayThatAMessageHasEnded) {
    QWidget* const tray = open_tray();
    first->children->add(std::make_shared<oChildren>(oChildren{"{gone}", ""}), "{gone}");
    desktop.with_dialog(
        [&] { send_to(tray, QEvent::MouseButtonPress, QPointF(60, 62), Qt::LeftButton, Qt::LeftButton); },
        [](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Return); });
    first->children.drop();
    send_to(tray, QEvent::MouseButtonPress, QPointF(150, 150), Qt::RightButton,
            Qt::LeftButton | Qt::RightButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_FALSE(main().picUnitInfo.visible);
}

TEST_F(Mouse, ListThatGetsTheKeyboardChoosesNoRow) {
    const auto element = add_element();
    QTest::mouseClick(map, Qt::LeftButton, {}, over(*first));
    auto* const list = desktop.control<QListView>("lstUIfe");
    QFocusEvent by_tab(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(list, &by_tab);
    EXPECT_FALSE(list->currentIndex().isValid());
    EXPECT_EQ(main().lstUIfe.selected, -1);
    EXPECT_EQ(campaign().curUFE, nullptr);
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(campaign().curUFE, element) << "an arrow key does";
}

TEST_F(Mouse, AnotherPressOnAnElementRunsItsClickAgain) {
    const auto element = add_element();
    QTest::mouseClick(map, Qt::LeftButton, {}, over(*first));
    auto* const list = desktop.control<QListView>("lstUIfe");
    const QPoint row = list->visualRect(list->model()->index(0, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row);
    ASSERT_EQ(campaign().curUFE, element);
    campaign().curUFE = nullptr;
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(campaign().curUFE, element);
}

TEST_F(Mouse, RowInHandStaysHighlightedWithCtrlAndOtherButtonsChooseNone) {
    const auto element = add_element();
    QTest::mouseClick(map, Qt::LeftButton, {}, over(*first));
    auto* const list = desktop.control<QListView>("lstUIfe");
    const QPoint row = list->visualRect(list->model()->index(0, 0)).center();
    for (const auto button : {Qt::RightButton, Qt::BackButton}) {
        QTest::mouseClick(list->viewport(), button, {}, row);
        send_to(list->viewport(), QEvent::MouseButtonDblClick, row, button, button);
        EXPECT_EQ(campaign().curUFE, nullptr);
    }
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, row);
    EXPECT_EQ(campaign().curUFE, element);
    EXPECT_TRUE(list->selectionModel()->isRowSelected(0, {}));
}

TEST_F(Mouse, RowIsHighlightedNoMoreWhenTheUnitIsShownAnew) {
    add_element();
    QTest::mouseClick(map, Qt::LeftButton, {}, over(*first));
    auto* const list = desktop.control<QListView>("lstUIfe");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualRect(list->model()->index(0, 0)).center());
    ASSERT_TRUE(list->selectionModel()->isRowSelected(0, {}));
    QTest::mouseClick(map, Qt::LeftButton, {}, over(*first));
    EXPECT_EQ(main().lstUIfe.selected, -1);
    EXPECT_FALSE(list->selectionModel()->hasSelection());
}

TEST_F(Mouse, ArrowKeysGoOnFromTheBoundarySizeThatIsShown) {
    desktop.click("cmdDrawLines");
    desktop.click("chkBoundry");
    auto* const box = desktop.control<QComboBox>("cboBoundrySize");
    EXPECT_EQ(box->currentIndex(), 4);
    QTest::keyClick(box, Qt::Key_Down);
    EXPECT_EQ(main().cboBoundrySize.text, "Company");
    box->setEditText("");
    QTest::keyClicks(box->lineEdit(), "Division");
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(main().cboBoundrySize.text, "Corps");
}

TEST_F(Mouse, BoundarySizeStaysAsItIsTyped) {
    desktop.click("cmdDrawLines");
    desktop.click("chkBoundry");
    auto* const box = desktop.control<QComboBox>("cboBoundrySize");
    box->setEditText("");
    QTest::keyClicks(box->lineEdit(), "corps");
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(main().cboBoundrySize.text, "corps");
    EXPECT_EQ(box->count(), 6);
}

TEST_F(Mouse, OptionThatIsOnChangesNothing) {
    desktop.click("cmdDrawLines");
    desktop.click("cmdStartDrawLines");
    ASSERT_TRUE(main().drawing_lines);
    const bool single = main().optSingleLine.value;
    desktop.click(single ? "optSingleLine" : "optPolyline");
    EXPECT_TRUE(main().drawing_lines);
    EXPECT_TRUE(desktop.control<QRadioButton>(single ? "optSingleLine" : "optPolyline")->isChecked());
    desktop.click(single ? "optPolyline" : "optSingleLine");
    EXPECT_FALSE(main().drawing_lines) << "another one ends the drawing";
}

TEST_F(Mouse, OverviewShowsPictureAndDots) {
    QWidget* const overview = desktop.control("picOverviewmap");
    const auto at = [&](int x, int y) { return overview->grab().toImage().pixel(x, y); };
    main().shpUnit(1).visible = main().shpUnit(2).visible = false;
    const QRgb plain = at(101, 201);
    EXPECT_NE(plain, overview->palette().window().color().rgb()) << "the map in small";
    OverviewDot& dot = main().shpUnit(1);
    dot.visible = true;
    dot.left = 100;
    dot.top = 200;
    dot.colour = 0x00FF00;
    EXPECT_EQ(at(101, 201), qRgb(0, 255, 0));
    dot.visible = false;
    EXPECT_EQ(at(101, 201), plain);
}

TEST_F(Mouse, TrayHasItsButtonInPlace) {
    desktop.click("cmdUnitTray");
    const QWidget* const tray = desktop.control("picUnitTray");
    const QWidget* const hide = desktop.control("cmdUTClose");
    EXPECT_EQ(hide->geometry().right(), tray->width() - 1 - 4);
    EXPECT_EQ(hide->geometry().bottom(), tray->height() - 1 - 4);
    EXPECT_EQ(main().picUnitTray.left, main().picUnitInfo.left);
    EXPECT_EQ(main().picUnitTray.top, main().picUnitInfo.top);
    EXPECT_EQ(main().picUnitTray.height, main().picUnitInfo.height);
}

TEST_F(Mouse, MessageDuringAPressOnBareMapLeavesNoBand) {
    // Without its catalogue entry the gun's fan fails at every refresh.
    auto gun = std::make_shared<oUnitForceElements>();
    gun->ID = "{G}";
    gun->Index = 7777;
    first->force_elements->add(gun, gun->ID);
    desktop.with_dialog(
        [&] { send(QEvent::MouseButtonPress, QPointF(700, 100), Qt::LeftButton, Qt::LeftButton); },
        [](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Return); });
    EXPECT_FALSE(main().shpRubberband.visible);
}

TEST_F(Mouse, ChanceOfTheRealPlatformDiffersEachTime) {
    std::array<std::uint8_t, 16> bytes{};
    std::set<std::array<std::uint8_t, 16>> seen;
    for (int i = 0; i < 100; ++i) {
        ASSERT_TRUE(desktop.platform.random_bits(bytes));
        EXPECT_TRUE(seen.insert(bytes).second);
    }
}

TEST_F(Mouse, KeysReachTheControlThatHasThemAsWell) {
    desktop.click("cmdDrawLines");
    desktop.click("chkBoundry");
    auto* const box = desktop.control<QComboBox>("cboBoundrySize");
    box->setEditText("");
    box->setFocus();
    QTest::keyClick(desktop.window()->windowHandle(), Qt::Key_6, Qt::KeypadModifier);
    QTest::qWait(10);
    EXPECT_EQ(box->currentText(), "6");
    EXPECT_EQ(main().scrlHMap.value, 40) << "the keypad scrolls all the same";
}

TEST_F(Mouse, CtrlHeldDownKeepsTheMarkersHiddenWhileItRepeats) {
    auto* const handle = desktop.window()->windowHandle();
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier);
    QApplication::sendEvent(handle, &down);
    EXPECT_FALSE(main().imgUnit(1).visible);
    QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier, "", true);
    QApplication::sendEvent(handle, &repeated);
    EXPECT_FALSE(main().imgUnit(1).visible);
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_Control, Qt::NoModifier);
    QApplication::sendEvent(handle, &up);
    EXPECT_TRUE(main().imgUnit(1).visible);
}

TEST_F(Mouse, StateBarsComeAndGoInTheWindow) {
    first->state = 3;
    const QRect corner(first->xcoord, first->ycoord, 20, 20);
    const auto red_pixels = [&] {
        QTest::qWait(20);
        const QImage seen = map->grab(corner).toImage();
        int count = 0;
        for (int x = 0; x < seen.width(); ++x)
            for (int y = 0; y < seen.height(); ++y)
                count += seen.pixelColor(x, y) == QColor(255, 0, 0) ? 1 : 0;
        return count;
    };
    EXPECT_EQ(red_pixels(), 0);
    desktop.entry("mnuUnitState")->trigger();
    EXPECT_GT(red_pixels(), 20);
    desktop.entry("mnuUnitState")->trigger();
    EXPECT_EQ(red_pixels(), 0);
}

TEST_F(Mouse, VerticesArePickedWithinTwoPixelsWhereverTheMapIsScrolled) {
    auto line = std::make_shared<oLines>();
    for (const int x : {1300, 1400})
        line->colCoords->add(std::make_shared<oCoordinates>(oCoordinates{x, 1200}));
    campaign().colLines->add(line);
    desktop.control<QScrollBar>("scrlHMap")->setValue(1003);
    desktop.control<QScrollBar>("scrlVMap")->setValue(905);
    desktop.click("cmdDrawLines");
    desktop.click("cmdMovePoint");
    const QPoint vertex(1300 - 1003 + 2, 1200 - 905 + 2);
    QTest::mouseClick(map, Qt::LeftButton, {}, vertex + QPoint(2, 0));
    EXPECT_EQ(main().selected_point, 0);
    QTest::mouseClick(map, Qt::LeftButton, {}, vertex + QPoint(1, -1));
    EXPECT_EQ(main().selected_point, 1);
}

TEST_F(Mouse, MarkersAreChildrenOfTheMapForThoseWhoDoNotSeeIt) {
    first->nationality = "Soviet";
    first->name = "1/1461";
    first->unittype = "Rifle Company";
    QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(map);
    ASSERT_NE(face, nullptr);
    EXPECT_EQ(face->role(), QAccessible::Graphic);
    EXPECT_EQ(face->text(QAccessible::Name), "Map");
    ASSERT_EQ(face->childCount(), 2);
    QAccessibleInterface* const marker = face->child(0);
    EXPECT_EQ(marker->text(QAccessible::Name), "Soviet 1/1461 Rifle Company");
    EXPECT_EQ(marker->parent(), face);
    EXPECT_EQ(face->indexOfChild(marker), 0);
    EXPECT_EQ(face->child(0), marker) << "the same each time";
    EXPECT_EQ(face->child(2), nullptr);
    const QPoint centre = map->mapToGlobal(over(*first));
    EXPECT_TRUE(marker->rect().contains(centre));
    EXPECT_EQ(face->childAt(centre.x(), centre.y()), marker);
    EXPECT_FALSE(marker->state().selected);
    QTest::mouseClick(map, Qt::LeftButton, {}, over(*first));
    EXPECT_TRUE(marker->state().selected);
    EXPECT_FALSE(marker->state().offscreen);
    desktop.control<QScrollBar>("scrlHMap")->setValue(2000);
    EXPECT_TRUE(marker->state().offscreen);
    main().imgUnit(1).visible = false;
    EXPECT_EQ(face->childCount(), 1);
    campaign().colUnits->remove("{1}");
    EXPECT_FALSE(marker->isValid());
    EXPECT_EQ(marker->text(QAccessible::Name), "");
}

TEST_F(Mouse, ListenersHearWhichMarkersComeAndGoAndAreSelected) {
    auto* const face = dynamic_cast<MapAccessible*>(QAccessible::queryAccessibleInterface(map));
    ASSERT_NE(face, nullptr);
    using Told = std::multiset<std::pair<QString, QAccessible::Event>>;
    Told told;
    first->name = "first";
    second->name = "second";
    const auto way_out = std::exchange(face->send, [&](QAccessibleEvent* event) {
        told.emplace(event->accessibleInterface()->text(QAccessible::Name).trimmed(), event->type());
    });
    const auto heard = [&] {
        face->tell_changes();
        return std::exchange(told, {});
    };
    EXPECT_EQ(heard(), Told{}) << "who begins to listen asks for all";
    QTest::mouseClick(map, Qt::LeftButton, {}, over(*first));
    EXPECT_EQ(heard(), (Told{{"first", QAccessible::SelectionAdd}, {"first", QAccessible::StateChanged}}));
    QTest::mouseClick(map, Qt::LeftButton, {}, over(*second));
    EXPECT_EQ(heard(), (Told{{"second", QAccessible::SelectionAdd},
                             {"second", QAccessible::StateChanged},
                             {"first", QAccessible::SelectionRemove},
                             {"first", QAccessible::StateChanged}}));
    EXPECT_EQ(heard(), Told{});
    add_unit("{3}", 700)->name = "third";
    EXPECT_EQ(heard(), (Told{{"third", QAccessible::ObjectCreated}}));
    main().imgUnit(1).tag = deleted_tag;
    main().imgUnit.unload_from(3);
    EXPECT_EQ(heard(), (Told{{"", QAccessible::ObjectDestroyed}, {"", QAccessible::ObjectDestroyed}}));
    for (std::int16_t i = 10; i < 31; ++i) add_unit(std::to_string(i), 700);
    EXPECT_EQ(heard(), Told{}) << "many at once";
    face->send = way_out;
}

TEST_F(Mouse, ListenersHearOfCoordinatesAFewTimesASecond) {
    const QLabel* const panel = desktop.control<QLabel>("panel1");
    const QString before = panel->accessibleName();
    EXPECT_EQ(before, "Status") << "a label without a name tells of each text";
    for (int x = 100; x < 160; ++x) {
        send(QEvent::MouseMove, QPointF(x, 200), Qt::NoButton, Qt::NoButton);
        EXPECT_EQ(panel->accessibleName(), before) << "each change is told";
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel->accessibleName() != before; }, 3000));
    EXPECT_EQ(panel->accessibleName(), panel->text());

    const QString stood_at = panel->accessibleName();
    int x = 200;
    const auto told_meanwhile = [&] {
        send(QEvent::MouseMove, QPointF(++x % 600, 300), Qt::NoButton, Qt::NoButton);
        return panel->accessibleName() != stood_at;
    };
    EXPECT_TRUE(QTest::qWaitFor(told_meanwhile, 5000)) << "also while the mouse goes on";
}

TEST_F(Mouse, PopupsOpenByTheKeyboardWhereTheFocusIs) {
    const auto popup_after_key = [&](QWidget* focus) -> QMenu* {
        focus->setFocus();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, focus->mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(focus, &event);
        return dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    };
    EXPECT_EQ(popup_after_key(map), nullptr) << "no unit is selected";
    QTest::mouseClick(map, Qt::LeftButton, {}, over(*second));
    QMenu* const units = popup_after_key(map);
    ASSERT_NE(units, nullptr);
    EXPECT_EQ(units->title(), "Unit menu");
    EXPECT_EQ(main().drag_index, second->img_index);
    EXPECT_TRUE(units->geometry().adjusted(-2, -2, 2, 2).contains(map->mapToGlobal(over(*second))));
    units->close();
    QMenu* const overview = popup_after_key(desktop.control("picOverviewmap"));
    ASSERT_NE(overview, nullptr);
    EXPECT_EQ(overview->title(), "Overview Popup");
    overview->close();
}

TEST_F(Mouse, MinimisedWindowComesBackAsItWas) {
    const QSize size = desktop.window()->size();
    const auto range = main().scrlHMap.max;
    desktop.control<QScrollBar>("scrlHMap")->setValue(300);
    desktop.window()->showMinimized();
    QTest::qWait(30);
    const double map_width = main().picMapwindow.width;
    // Some window systems make a minimised window tiny.
    QWidget* const area = map->parentWidget();
    QResizeEvent tiny(QSize(1, 1), area->size());
    QApplication::sendEvent(area, &tiny);
    EXPECT_EQ(main().picMapwindow.width, map_width) << "nothing is laid out for it";
    desktop.window()->showNormal();
    desktop.window()->resize(size);
    QTest::qWait(30);
    EXPECT_EQ(main().scrlHMap.max, range);
    EXPECT_EQ(main().scrlHMap.value, 300);
    EXPECT_EQ(main().picMap.left, -300);
}

TEST_F(Mouse, CloseBoxEndsTheEventLoopAndLeavesTheProgram) {
    campaign().colLabels->add(std::make_shared<oLabels>());
    bool timed_out = false;
    QTimer::singleShot(0, [&] {
        QCloseEvent clicked; // as the window system sends it
        QApplication::sendEvent(desktop.window()->windowHandle(), &clicked);
    });
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, [&] {
        timed_out = true;
        QApplication::exit(1);
    });
    limit.start(5000);
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(timed_out);
    EXPECT_FALSE(desktop.window()->isVisible());
    EXPECT_TRUE(campaign().colUnits.empty() && campaign().colLabels.empty());
}
