#include "mapview/painting.h"

#include "core/trap.h"

#include <utility>

namespace {

/// Empty surfaces whose pens stand as they were left.
Painting next_painting(const Painting& last) {
    Painting next;
    next.map.pen = last.map.pen;
    next.hcoord.pen = last.hcoord.pen;
    next.vcoord.pen = last.vcoord.pen;
    next.overview.pen = last.overview.pen;
    return next;
}

} // namespace

void picMap_Paint(Program& program) {
    Painting painting = next_painting(program.painting);
    const int number = failure_of([&] {
        for (const PaintLayer& layer : program.paint_order)
            if (layer.gate(program)) layer.paint(program, painting);
    });
    program.painting = std::move(painting);
    if (program.painting.firefan_failure != 0)
        show_failure(program, program.painting.firefan_failure, " when drawing firefans.");
    if (number != 0) show_failure(program, number, " when updating the map.");
}

bool paint_if_marked(Program& program) {
    if (!program.main.picMap.marked) return false;
    picMap_Paint(program);
    // Also when the paint's own message has marked the map again: it would be told for ever.
    program.main.picMap.marked = false;
    return true;
}
