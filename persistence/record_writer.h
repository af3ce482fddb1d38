#pragma once

#include "core/map_records.h"
#include "core/record_syntax.h"
#include "core/unit_records.h"

// One procedure a record, each with its sub-lists and their counts.

void write_label(FieldWriter& out, const oLabels& label);
void write_line(FieldWriter& out, const oLines& line);
void write_unit(FieldWriter& out, const oUnits& unit);
void write_shape(FieldWriter& out, const oShapes& shape);
void write_polygon(FieldWriter& out, const oPolygons& polygon);
void write_fire_mission(FieldWriter& out, const oFireMission& mission);

/// The line in front of every list.
void write_count(FieldWriter& out, std::size_t count);
