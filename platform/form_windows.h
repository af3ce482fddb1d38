#pragma once

#include "core/form.h"
#include "widgets/event_runner.h"
#include "widgets/form_window.h"

#include <memory>

/// The window that shows a form. Every form the program shows has a row.
std::unique_ptr<FormWindow> make_form_window(Form& form, EventRunner& events, QWidget* parent);
