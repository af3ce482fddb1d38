#pragma once

#include "core/program.h"
#include "widgets/side_panel.h"

class QGroupBox;

/// `picDrawLines`: the line tool.
class LinePanelView : public SidePanel {
  public:
    LinePanelView(Program& program, double area_top, EventRunner& events, QWidget* parent);

  private:
    QWidget* kind();
    QGroupBox* styles();
    QWidget* width_and_colour();
    QWidget* modes();

    Program& program;
};
