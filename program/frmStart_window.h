#pragma once

#include "program/frmStart.h"
#include "widgets/form_window.h"

#include <QTimer>

class frmStart_window : public FormWindow {
  public:
    frmStart_window(frmStart& form, EventRunner& events, QWidget* parent);

  private:
    QTimer timer;
};
