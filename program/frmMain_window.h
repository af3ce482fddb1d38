#pragma once

#include "core/program.h"
#include "mapview/map_view_window.h"
#include "widgets/event_runner.h"

#include <QMainWindow>
#include <QTimer>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

class OverviewView;
class QAction;
class QMenu;
class QScrollBar;
class QToolBar;
class RulerView;
class UnitTrayView;

/// The main window: menu bar and toolbar from their tables, the map with its rulers and scroll bars, the
/// overview, the status bar.
class frmMain_window : public QMainWindow {
  public:
    frmMain_window(Program& program, const Sprites& sprites, EventRunner& events);

    /// Shows what the twins hold; the map, its rulers and the overview only where they can have changed.
    void bring_in_step(bool map_changed);
    /// Opens a popup menu at the pointer, or where the keyboard wants it.
    void open_popup(const std::string& title);
    /// A dialog or a menu opens: the release of a button that is down goes there.
    void end_capture();
    /// Takes the window away; its close box is not asked.
    void unload();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void make_menus();
    void make_toolbar();
    void make_map_area();
    void make_side_panels();
    void make_status_bar();
    bool takes_keys(const QObject* watched) const;
    void fit_to_client();
    void place_map_area();
    void repaint_map_area();
    QMenu* menu(const std::string& title);
    QScrollBar* scroll_bar(const char* name, ScrollBar frmMain::*twin, Qt::Orientation orientation,
                           void (*change)(Program&));

    Program& program;
    const Sprites& sprites;
    EventRunner& events;
    std::map<std::string, QMenu*> menus;
    std::vector<std::function<void()>> steps;
    QToolBar* toolbar = nullptr;
    QWidget* area = nullptr;
    MapView* map_view = nullptr;
    UnitTrayView* tray = nullptr;
    RulerView* horizontal_ruler = nullptr;
    RulerView* vertical_ruler = nullptr;
    OverviewView* overview = nullptr;
    QTimer blink;
    bool unloading = false;
    bool control_down = false;
    std::optional<QPoint> popup_place; // on the screen, while a popup is opened by the keyboard
    QPointF shown_at;                  // where the map stood at its last repaint
};
