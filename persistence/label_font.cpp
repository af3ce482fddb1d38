#include "persistence/label_font.h"

#include "core/numbers.h"
#include "core/trap.h"

namespace {

constexpr std::int16_t default_size = 10;

bool can_be_shown(Program& program, const std::string& font_name, int font_size) {
    return font_size >= 1 && program.platform.has_font(font_name);
}

void ask_for_font(Program& program, const oLabels& label, LabelFontChoice& choice) {
    program.platform.message({"A label being loaded is refering to a font which doesn't exist on\n"
                              "this computer, and/or the program is unable to set the fontsize.\n"
                              "Please select a font and a fontsize.",
                              Icon::warning});
    choice.font_asked = true;
    choice.font_name = program.campaign.gDefaultFont;
    choice.font_size = default_size;
    // Cancel leaves the default font, so that every label ends with a font that works.
    const int number = failure_of([&] {
        FontDialog dialog;
        dialog.font.name = program.campaign.gDefaultFont;
        dialog.font.size = label.font_size >= 1 ? label.font_size : default_size;
        const Font font = program.platform.font_dialog(dialog);
        const std::int16_t size = to_int16(font.size);
        choice.font_name = font.name;
        choice.font_size = size;
    });
    if (number != 0 && number != failure::cancelled) throw Failure{number};
}

} // namespace

void give_working_font(Program& program, oLabels& label, LabelFontChoice& choice) {
    if (can_be_shown(program, label.font_name, label.font_size)) return;
    if (!choice.font_asked) ask_for_font(program, label, choice);
    label.font_name = choice.font_name;
    label.font_size = choice.font_size;
}
