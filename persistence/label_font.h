#pragma once

#include "core/program.h"

#include <string>

/// The font that stands in for those that this computer lacks: asked for once a load, and used for every
/// later label that needs one.
struct LabelFontChoice {
    bool font_asked = false;
    std::string font_name;
    std::int16_t font_size = 0;
};

/// Sees to it that the label's font can be shown. Where it can't the user is asked, and the choice replaces
/// the record's font and size.
void give_working_font(Program& program, oLabels& label, LabelFontChoice& choice);
