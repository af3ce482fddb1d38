#pragma once

#include "core/colours.h"

#include <QColor>
#include <QPalette>

#include <cstdint>

/// The screen's colour for 0x00BBGGRR; the two system colours come from the palette in use.
inline QColor to_qt_colour(std::int32_t value, const QPalette& palette = {}) {
    if (value == colour::button_face) return palette.color(QPalette::Button);
    if (value == colour::button_shadow) return palette.color(QPalette::Mid);
    return {value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF};
}

inline std::int32_t from_qt_colour(const QColor& value) {
    return value.red() | value.green() << 8 | value.blue() << 16;
}
