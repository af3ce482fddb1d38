#pragma once

#include "core/program.h"
#include "mapview/hit_target.h"
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

    /// The view as a picture would show it, for whoever has a painter of its own.
    void paint_view(QPainter& painter, const QRect& exposed) const;
    /// Where else a marker can be dropped; the first that is under the pointer takes it.
    std::vector<std::pair<DropSite, QWidget*>> drop_sites;

    /// Goes on with a drag that began here or in the tray, at a place of the screen; ends it with a drop.
    void drag_to(QPointF global, bool drop);
    /// Repaints only where the find marker stands.
    void update_find_marker();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    QPointF origin() const; // of the map, in pixels of this window

    Program& program;
    const Sprites& sprites;
    EventRunner& events;
    bool is_over_map(QPointF point) const; // not over the border or the ground beside a small map

    struct DropPlace {
        DropSite site;
        QPointF point; // in pixels of the map, the tray or the overview
    };
    DropPlace drop_place(QPointF global) const;

    HitTarget pressed;
    bool captured = false; // the button that is down went down over the map
};
