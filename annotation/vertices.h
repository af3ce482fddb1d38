#pragma once

#include "core/unit_records.h"

#include <cstddef>
#include <cstdint>

/// Whether a vertex is less than 2 pixels from the point on both axes.
bool is_near(const oCoordinates& vertex, double x, double y);

/// The 1-based place of the first vertex near the point, 0 for none.
std::size_t first_near(const CollectionRef<oCoordinates>& vertices, double x, double y);

/// A vertex where a press was made while drawing: rounded. Fails with 6 beyond 32 bits.
std::shared_ptr<oCoordinates> drawn_vertex(double x, double y);

/// A vertex where a picked one is dropped: whole parts.
std::shared_ptr<oCoordinates> dropped_vertex(double x, double y);
