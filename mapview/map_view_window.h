#pragma once

#include "core/program.h"
#include "mapview/hit_target.h"
#include "mapview/map_layers_window.h"
#include "mapview/map_mouse.h"
#include "widgets/event_runner.h"
#include "widgets/sprites.h"

#include <QWidget>

#include <utility>
#include <vector>

/// `picMapwindow`: the part of the map that is in view, with all that stands over it.
class MapView : public QWidget {
  public:
    MapView(Program& program, const Sprites& sprites, EventRunner& events, QWidget* parent);

    /// Where else a marker can be dropped; the first that is under the pointer takes it.
    std::vector<std::pair<DropSite, QWidget*>> drop_sites;

    /// Goes on with a drag that began here or in the tray, at a place of the screen; ends it with a drop.
    void drag_to(QPointF global, bool drop);
    /// Whether a drag is on and its button still down.
    bool drag_goes_on(const QMouseEvent& event);
    /// Ends a press and a drag whose release goes elsewhere: a dialog or a menu has opened meanwhile.
    void end_capture();
    /// Repaints only where the find marker stands.
    void update_find_marker();
    /// Repaints when lines are shown that follow the pointer.
    void update_scratch_lines();

    const Program& shown_program() const { return program; }
    QPointF origin() const;                // of the map, in pixels of this window
    bool is_over_map(QPointF point) const; // not over the border or the ground beside a small map

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    QRect inside() const; // the border
    void paint_view(QPainter& painter, const QRect& exposed);

    Program& program;
    const Sprites& sprites;
    EventRunner& events;
    MapLayers layers;
    struct DropPlace {
        DropSite site;
        QPointF point; // in pixels of the map, the tray or the overview
    };
    DropPlace drop_place(QPointF global) const;

    HitTarget pressed;
    bool captured = false; // the button that is down went down over the map
};
