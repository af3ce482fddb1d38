#pragma once

#include "program/about.h"
#include "widgets/form_window.h"

class frmMapLegend_window : public FormWindow {
  public:
    frmMapLegend_window(frmMapLegend& form, EventRunner& events, QWidget* parent);
};

class frmAboutMap_window : public FormWindow {
  public:
    frmAboutMap_window(frmAboutMap& form, EventRunner& events, QWidget* parent);
};

class frmAboutTolvaneII_window : public FormWindow {
  public:
    frmAboutTolvaneII_window(frmAboutTolvaneII& form, EventRunner& events, QWidget* parent);
};
