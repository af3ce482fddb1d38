#pragma once

#include "persistence/frmSaveSelect.h"
#include "widgets/form_window.h"

class frmSaveSelect_window : public FormWindow {
  public:
    frmSaveSelect_window(frmSaveSelect& form, EventRunner& events, QWidget* parent);
};
