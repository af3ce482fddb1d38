#pragma once

#include "mapview/frmDisplay.h"
#include "widgets/control_binder.h"
#include "widgets/form_window.h"

class QGroupBox;

class frmDisplay_window : public FormWindow {
  public:
    frmDisplay_window(frmDisplay& form, EventRunner& events, QWidget* parent);

  private:
    QGroupBox* main_map(frmDisplay& form);
    QGroupBox* overview(frmDisplay& form);
    /// A check box with the two options it enables.
    QGroupBox* choice(frmDisplay& form, const char* name, const char* caption, CheckBox& box,
                      void (frmDisplay::*click)(), const char* option, std::array<OptionButton, 2>& options);

    ControlBinder bind;
};
