#pragma once

#include "core/program.h"
#include "mapview/map_view_window.h"
#include "widgets/side_panel.h"

class QPushButton;

/// `picUnitTray`: a place to put markers aside.
class UnitTrayView : public SidePanel {
  public:
    /// A drag that begins here goes on over the map.
    UnitTrayView(Program& program, const Sprites& sprites, MapView& map, double area_top, EventRunner& events,
                 QWidget* parent);

    void bring_in_step() override;
    /// Ends a press whose release goes elsewhere, as the map's.
    void end_capture();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    Program& program;
    const Sprites& sprites;
    MapView& map;
    EventRunner& events;
    QPushButton* close;
    HitTarget pressed;
    bool captured = false;
};
