#pragma once

#include "tools/map/places.h"
#include "tools/map/terrain.h"

#include <QPointF>

#include <vector>

enum class RoadClass { highway, improved, country, track };

struct Road {
    RoadClass kind;
    std::vector<QPointF> line;
};

/// Roads from place to place, each the cheapest way over slope and water; the more people at both ends, the
/// better the road.
std::vector<Road> build_roads(const Terrain& terrain, const std::vector<Place>& places);

/// The middle of a place, or where its roads meet when that is in the river: a town on both banks has its
/// crossroads and its church on one of them.
QPointF on_dry_ground(const Terrain& terrain, QPointF point);

/// The railway from the western edge through the town and the stations to the east.
std::vector<QPointF> railway(int map_height);
