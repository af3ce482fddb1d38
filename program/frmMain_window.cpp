#include "program/frmMain_window.h"

#include "annotation/line_panel_window.h"
#include "mapview/find_coordinate.h"
#include "mapview/keys.h"
#include "mapview/layout.h"
#include "mapview/map_accessible_window.h"
#include "mapview/map_frame_window.h"
#include "mapview/map_mouse.h"
#include "mapview/overview.h"
#include "mapview/scrolling.h"
#include "mapview/selection.h"
#include "mapview/unit_info_window.h"
#include "mapview/unit_tray_window.h"
#include "program/exit.h"
#include "program/key_codes_window.h"
#include "program/menus.h"
#include "program/toolbar.h"
#include "program/unit_info_buttons.h"
#include "widgets/colours_qt.h"
#include "widgets/status_panel.h"
#include "widgets/text.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QResizeEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

#include <algorithm>

namespace {

// The layout counts from the upper edge of a toolbar row of 22 pixels and 1 pixel of gap; here the toolbar is
// as high as the style wants and the map area begins below it.
constexpr int area_top = 23;
// A frame and caption as the layout expects them, so that it does not depend on the window manager.
constexpr QSize smallest_area(420, 240);
constexpr int frame_width = 8;
constexpr int frame_height = 46;

QRect rectangle(const PictureBox& box) {
    return QRectF(box.left, box.top - area_top, box.width, box.height).toRect();
}

QRect rectangle(const ScrollBar& bar) {
    return QRectF(bar.left, bar.top - area_top, bar.width, bar.height).toRect();
}

} // namespace

frmMain_window::frmMain_window(Program& program, const Sprites& sprites, EventRunner& events)
    : program(program), sprites(sprites), events(events) {
    setObjectName("frmMain");
    setWindowTitle(to_qt(program_title));
    make_menus();
    make_toolbar();
    make_map_area();
    make_status_bar();
    connect(&blink, &QTimer::timeout, this, [this] {
        this->events.run_small([this] { tmrTimer_Timer(this->program); });
        map_view->update_find_marker();
    });
    qApp->installEventFilter(this);
    setGeometry(0, 0, static_cast<int>(program.main.width), static_cast<int>(program.main.height));
    bring_in_step(true);
}

QMenu* frmMain_window::menu(const std::string& title) {
    const auto known = menus.find(title);
    if (known != menus.end()) return known->second;
    const bool popup = title == mnuUnitPopup || title == mnuOverviewPopup;
    auto* const made = popup ? new QMenu(to_qt(title), this) : menuBar()->addMenu(to_qt(title));
    menus[title] = made;
    return made;
}

void frmMain_window::make_menus() {
    for (const MenuRow& row : menu_rows()) {
        QMenu* const parent = menu(row.parent);
        QAction* action = nullptr;
        if (opens_submenu(row)) {
            QMenu* const submenu = parent->addMenu(row.caption);
            menus[row.control] = submenu;
            action = submenu->menuAction();
        } else {
            action = parent->addAction(row.caption);
            connect(action, &QAction::triggered, this,
                    [this, &row] { events.run([&] { row.click(program); }); });
        }
        action->setObjectName(row.control);
        steps.emplace_back([this, action, &row] {
            const MenuEntry& entry = program.main.*row.entry;
            action->setEnabled(entry.enabled && (row.click != nullptr || opens_submenu(row)));
            const QSignalBlocker quiet(action);
            action->setCheckable(entry.checked);
            action->setChecked(entry.checked);
        });
    }
}

void frmMain_window::make_toolbar() {
    toolbar = addToolBar("Tools");
    toolbar->setObjectName("toolbar");
    toolbar->setMovable(false);
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const ToolbarRow& row : toolbar_rows()) {
        auto* const button = new QToolButton;
        button->setObjectName(row.control);
        button->setIcon(QIcon(QString(":/toolbar/") + row.control + ".svg"));
        button->setToolTip(row.tip);
        button->setAccessibleName(row.tip);
        button->setFocusPolicy(Qt::TabFocus);
        toolbar->addWidget(button);
        connect(button, &QToolButton::clicked, this,
                [this, &row] { events.run([&] { row.click(program); }); });
        steps.emplace_back([this, button, &row] {
            const Button& twin = program.main.*row.button;
            button->setEnabled(twin.enabled && row.click != nullptr);
            button->setCheckable(twin.on());
            button->setChecked(twin.on());
        });
    }
}

QScrollBar* frmMain_window::scroll_bar(const char* name, ScrollBar frmMain::*twin,
                                       Qt::Orientation orientation, void (*change)(Program&)) {
    auto* const bar = new QScrollBar(orientation, area);
    bar->setObjectName(name);
    bar->setAccessibleName(orientation == Qt::Horizontal ? "Scroll the map east and west"
                                                         : "Scroll the map north and south");
    connect(bar, &QScrollBar::valueChanged, this, [this, twin, change](int value) {
        events.run([&] {
            (program.main.*twin).value = static_cast<std::int16_t>(value);
            change(program);
        });
    });
    steps.emplace_back([this, bar, twin] {
        const QSignalBlocker quiet(bar);
        const ScrollBar& held = program.main.*twin;
        bar->setRange(held.min, std::max(held.min, held.max));
        bar->setPageStep(held.large_change);
        bar->setSingleStep(held.small_change);
        bar->setValue(held.value);
        if (bar->geometry() != rectangle(held)) bar->setGeometry(rectangle(held));
    });
    return bar;
}

void frmMain_window::make_map_area() {
    area = new QWidget(this);
    area->setMinimumSize(smallest_area);
    area->installEventFilter(this); // it also changes when a bar of the window gets another height
    setCentralWidget(area);
    map_view = new MapView(program, sprites, events, area);
    horizontal_ruler =
        new RulerView(program, "picHcoordContainer", &frmMain::picHcoord, &Painting::hcoord, area);
    vertical_ruler =
        new RulerView(program, "picVcoordContainer", &frmMain::picVcoord, &Painting::vcoord, area);
    overview = new OverviewView(program, events, area);
    scroll_bar("scrlHMap", &frmMain::scrlHMap, Qt::Horizontal, scrlHMap_Scroll);
    scroll_bar("scrlVMap", &frmMain::scrlVMap, Qt::Vertical, scrlVMap_Scroll);
    steps.emplace_back([this] { place_map_area(); });
    make_side_panels();
    map_view->setFocus();
}

void frmMain_window::make_side_panels() {
    tray = new UnitTrayView(program, sprites, *map_view, area_top, events, area);
    for (SidePanel* const panel :
         {static_cast<SidePanel*>(
              new UnitInfoView(program, sprites, unit_info_buttons(), area_top, events, area)),
          static_cast<SidePanel*>(new LinePanelView(program, area_top, events, area)),
          static_cast<SidePanel*>(tray)})
        steps.emplace_back([panel] { panel->bring_in_step(); });
    map_view->drop_sites = {{DropSite::tray, tray}, {DropSite::overview, overview}};
}

void frmMain_window::place_map_area() {
    const frmMain& main = program.main;
    map_view->setGeometry(rectangle(main.picMapwindow));
    horizontal_ruler->setGeometry(rectangle(main.picHcoordContainer));
    vertical_ruler->setGeometry(rectangle(main.picVcoordContainer));
    overview->setGeometry(rectangle(main.picOverviewmap));
    if (main.tmrTimer.enabled && !blink.isActive()) blink.start(main.tmrTimer.interval);
    if (!main.tmrTimer.enabled) blink.stop();
}

void frmMain_window::repaint_map_area() {
    map_view->update();
    horizontal_ruler->update();
    vertical_ruler->update();
    overview->update();
}

void frmMain_window::make_status_bar() {
    statusBar()->setObjectName("sbarMap");
    for (std::size_t i = 0; i < program.main.sbarMap.panels.size(); ++i) {
        auto* const panel = new StatusPanel;
        panel->setObjectName("panel" + QString::number(i + 1));
        statusBar()->addWidget(panel, 1);
        steps.emplace_back([this, panel, i] { panel->show_text(to_qt(program.main.sbarMap.panels[i])); });
    }
}

void frmMain_window::bring_in_step(bool map_changed) {
    for (const auto& step : steps) step();
    const QPointF stands_at(program.main.picMap.left, program.main.picMap.top);
    if (map_changed || stands_at != shown_at) repaint_map_area();
    if (map_changed) tell_marker_changes(*map_view);
    shown_at = stands_at;
}

void frmMain_window::open_popup(const std::string& title) {
    end_capture();
    menu(title)->popup(popup_place.value_or(QCursor::pos()));
}

/// The key for popups is a right press on the selected unit, or on the overview while that has the keyboard.
/// What the mouse asks for comes by its own presses.
void frmMain_window::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() != QContextMenuEvent::Keyboard) return;
    if (overview->hasFocus()) {
        popup_place = overview->mapToGlobal(overview->rect().center());
        events.run([this] { picOverviewmap_MouseDown(program, {right_button}); });
    } else if (const int index = selected_marker(program); index != 0 && map_view->hasFocus()) {
        const UnitMarker& marker = program.main.imgUnit(index);
        const QPointF centre(marker.left + marker.width / 2, marker.top + marker.height / 2);
        popup_place = map_view->mapToGlobal((centre + map_view->origin()).toPoint());
        events.run([&] {
            mouse_down(program, {TargetKind::unit, index}, {right_button, 0, centre.x(), centre.y()});
        });
    }
    popup_place.reset();
}

void frmMain_window::end_capture() {
    map_view->end_capture();
    tray->end_capture();
}

void frmMain_window::unload() {
    unloading = true;
    close();
}

void frmMain_window::fit_to_client() {
    const int status_height = static_cast<int>(program.main.sbarMap.height);
    const double width = area->width() + frame_width;
    const double height = area->height() + area_top + status_height + frame_height;
    events.run([&] { Form_Resize(program, width, height, isMinimized() ? 0 : area->width()); });
}

void frmMain_window::closeEvent(QCloseEvent* event) {
    const UnloadMode mode = unloading ? UnloadMode::by_program : UnloadMode::close_box;
    if (mode == UnloadMode::close_box) event->ignore();
    events.run([&] { Form_QueryUnload(program, mode); });
}

void frmMain_window::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || isActiveWindow() || !control_down) return;
    // The key will be let go in another window: without this the markers would stay hidden.
    control_down = false;
    events.run([this] { Form_KeyUp(program, key::ctrl); });
}

bool frmMain_window::takes_keys(const QObject* watched) const {
    // While a menu or the menu bar has the keyboard, arrows walk through it.
    const bool in_menu = menuBar()->hasFocus() || QApplication::activePopupWidget() != nullptr;
    return watched == windowHandle() && isActiveWindow() && !in_menu;
}

bool frmMain_window::eventFilter(QObject* watched, QEvent* event) {
    if (watched == area && event->type() == QEvent::Resize) fit_to_client();
    const bool down = event->type() == QEvent::KeyPress;
    if (!down && event->type() != QEvent::KeyRelease) return QMainWindow::eventFilter(watched, event);
    const auto& pressed = static_cast<const QKeyEvent&>(*event);
    const int code = key_code(pressed);
    // A key that repeats is let go once, at its end. Ctrl may be let go in an open menu.
    const bool lets_ctrl_go = !down && code == key::ctrl && control_down;
    if ((!takes_keys(watched) && !lets_ctrl_go) || (!down && pressed.isAutoRepeat())) return false;
    if (code == key::ctrl) control_down = down;
    events.run([&] {
        if (down)
            Form_KeyDown(program, code);
        else
            Form_KeyUp(program, code);
    });
    return false; // the focused control gets the key as well
}
