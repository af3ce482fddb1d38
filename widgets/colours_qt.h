#pragma once

#include "core/colours.h"

#include <QColor>
#include <QPalette>

#include <cstdint>

/// The screen's colour for 0x00BBGGRR. With the top bit set the value names a colour of the system, which
/// comes from the palette in use.
QColor to_qt_colour(std::int32_t value, const QPalette& palette = {});

std::int32_t from_qt_colour(const QColor& value);
