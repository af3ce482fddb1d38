#include "annotation/arrowhead.h"

#include "annotation/segment_heading.h"
#include "core/numbers.h"
#include "core/trap.h"

void find_arrowhead(oLines& line) {
    const std::size_t count = line.colCoords.count();
    const oCoordinates& tip = *line.colCoords->at(count);
    const oCoordinates& before = *line.colCoords->at(count - 1);
    const int heading = segment_heading(before.x_cor, before.y_cor, tip.x_cor, tip.y_cor).degrees;
    const int size = line.linewidth + 10;
    line.arrow1_x = to_long(tip.x_cor - size * coarse_sin(heading + 60));
    line.arrow1_y = to_long(tip.y_cor - size * coarse_cos(heading + 60));
    line.arrow2_x = to_long(tip.x_cor - size * coarse_cos(-(heading + 30)));
    line.arrow2_y = to_long(tip.y_cor - size * coarse_sin(-(heading + 30)));
}

void find_arrowhead(Program& program) {
    trap(program, "when calculating position of an arrowhead.", [&] {
        if (!program.campaign.curLine) throw Failure{failure::no_object};
        find_arrowhead(*program.campaign.curLine);
    });
}
