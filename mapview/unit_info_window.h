#pragma once

#include "core/program.h"
#include "mapview/unit_info_button.h"
#include "widgets/side_panel.h"
#include "widgets/sprites.h"

#include <span>
#include <string>

/// `picUnitInfo`: everything about the one selected unit.
class UnitInfoView : public SidePanel {
  public:
    UnitInfoView(Program& program, const Sprites& sprites, std::span<const UnitInfoButton> buttons,
                 double area_top, EventRunner& events, QWidget* parent);

  private:
    QWidget* identity();
    QWidget* figures();
    QWidget* button_rows(std::span<const UnitInfoButton> buttons, const std::string& group);

    Program& program;
    const Sprites& sprites;
};
