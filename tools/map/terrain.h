#pragma once

#include "tools/map/field.h"

#include <QPointF>

#include <vector>

/// The invented country: its rivers, ravines and heights.
struct Terrain {
    Terrain(int width, int height);

    int width;
    int height;
    std::vector<QPointF> tolva;                // from the north-west to the south-east
    std::vector<QPointF> ozimka;               // from the east to its mouth
    std::vector<std::vector<QPointF>> ravines; // each from its head down
    Field heights;                             // metres
    Field river_distance;                      // pixels
    Field woods;                               // above 0: wooded
    Field marsh;                               // above 0: wet

  private:
    void shape_heights();
    void cut_ravines();
    void grow_woods_and_marsh();
};
