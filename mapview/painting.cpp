#include "mapview/painting.h"

#include "core/trap.h"

namespace {

/// Around the view, so that the next steps of scrolling find their figures drawn.
constexpr double margin = 400;

Bounds view_of(const frmMain& main) {
    const double left = -main.picMap.left;
    const double top = -main.picMap.top;
    return {left, top, left + main.picMapwindow.scale_width(), top + main.picMapwindow.scale_height()};
}

/// Runs the layers from these pens on. Answers the failure that ended them, 0 for none. What a layer that
/// was not reached would have cleared stays.
int paint_layers(Program& program, const Pens& pens) {
    Painting& painting = program.painting;
    ++painting.number;
    painting.map.clear();
    painting.map.wanted = view_of(program.main).grown_by(margin);
    painting.set_pens(pens);
    painting.began_with = pens;
    painting.firefan_failure = 0;
    return failure_of([&] {
        for (const PaintLayer& layer : program.paint_order)
            if (layer.gate(program)) layer.paint(program, painting);
    });
}

} // namespace

void picMap_Paint(Program& program) {
    const int number = paint_layers(program, program.painting.pens());
    if (program.painting.firefan_failure != 0)
        show_failure(program, program.painting.firefan_failure, " when drawing firefans.");
    if (number != 0) show_failure(program, number, " when updating the map.");
}

bool paint_if_marked(Program& program) {
    if (!program.main.picMap.marked) return false;
    // Off before, so that what happens while a message is open does not paint and fail again, and off after,
    // since the message marks the map as any dialog does: it would be told for ever.
    program.main.picMap.marked = false;
    picMap_Paint(program);
    program.main.picMap.marked = false;
    return true;
}

void cover_view(Program& program) {
    if (program.painting.map.wanted.holds(view_of(program.main))) return;
    const Pens left_by_refresh = program.painting.pens();
    paint_layers(program, program.painting.began_with);
    program.painting.set_pens(left_by_refresh);
}
