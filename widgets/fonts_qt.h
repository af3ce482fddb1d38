#pragma once

#include "core/controls.h"
#include "core/platform.h"

#include <QFont>

#include <string>

/// A font of the program as the screen has it: sizes are points at 96 dots to the inch, whatever the screen
/// says of itself, since text stands on the map in map pixels.
QFont to_qt_font(const Font& font);

/// Whether texts in this font can be shown: it is installed, or one with the same widths stands in for it.
bool font_is_available(const std::string& name);

/// Size of a text of one or more lines, in pixels.
TextSize measure_text(const std::string& text, const Font& font);
