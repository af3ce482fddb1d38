#pragma once

#include "core/controls.h"
#include "widgets/control_binder.h"
#include "widgets/event_runner.h"

#include <QFrame>

class QVBoxLayout;

/// A panel beside the map: shown, placed and raised as its twin says.
class SidePanel : public QFrame {
  public:
    /// `area_top` is what the layout counts above the widget that the panel stands in.
    SidePanel(const char* name, const PictureBox& twin, double area_top, EventRunner& events,
              QWidget* parent);

    virtual void bring_in_step();

  protected:
    /// The layout of a page in small letters that scrolls where the panel is lower than its contents.
    QVBoxLayout* make_page();

    ControlBinder bind;
    bool comes_to_front = true; // when it is shown

  private:
    const PictureBox& twin;
    double area_top;
};
