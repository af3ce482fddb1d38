#include "widgets/colours_qt.h"

#include <algorithm>
#include <array>

namespace {

struct SystemColour {
    int number;
    QPalette::ColorRole role;
};

constexpr std::array<SystemColour, 15> system_colours{{{1, QPalette::Window},
                                                       {4, QPalette::Window},
                                                       {5, QPalette::Base},
                                                       {6, QPalette::WindowText},
                                                       {7, QPalette::WindowText},
                                                       {8, QPalette::Text},
                                                       {13, QPalette::Highlight},
                                                       {14, QPalette::HighlightedText},
                                                       {15, QPalette::Button},
                                                       {16, QPalette::Mid},
                                                       {17, QPalette::PlaceholderText},
                                                       {18, QPalette::ButtonText},
                                                       {20, QPalette::Light},
                                                       {23, QPalette::ToolTipText},
                                                       {24, QPalette::ToolTipBase}}};

} // namespace

QColor to_qt_colour(std::int32_t value, const QPalette& palette) {
    if (value < 0) {
        const auto* const found =
            std::find_if(system_colours.begin(), system_colours.end(),
                         [&](const SystemColour& c) { return c.number == (value & 0xFF); });
        if (found != system_colours.end()) return palette.color(found->role);
    }
    return {value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF};
}

std::int32_t from_qt_colour(const QColor& value) {
    return value.red() | value.green() << 8 | value.blue() << 16;
}
