#include "program/paint_order.h"

#include "mapview/grid.h"

#include <array>

namespace {

bool always(const Program& /*program*/) { return true; }

constexpr std::array<PaintLayer, 3> layers{{
    // no  applies when     paints
    {11, always, reset_pen},
    {12, grid_is_shown, draw_grid},
    {13, always, draw_rulers},
}};

} // namespace

std::span<const PaintLayer> paint_order() { return layers; }
