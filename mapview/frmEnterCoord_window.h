#pragma once

#include "mapview/frmEnterCoord.h"
#include "widgets/form_window.h"

class frmEnterCoord_window : public FormWindow {
  public:
    frmEnterCoord_window(frmEnterCoord& form, EventRunner& events, QWidget* parent);
};
