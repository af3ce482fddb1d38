#pragma once

#include "core/map_records.h"
#include "core/record_syntax.h"
#include "core/unit_records.h"

#include <memory>
#include <string>
#include <string_view>

// One procedure a record, each reading what its version has. All fail as `FieldReader` does.

std::shared_ptr<oLabels> read_label(FieldReader& in);
std::shared_ptr<oLines> read_line(FieldReader& in);
std::shared_ptr<oShapes> read_shape(FieldReader& in);
std::shared_ptr<oPolygons> read_polygon(FieldReader& in);
std::shared_ptr<oFireMission> read_fire_mission(FieldReader& in, std::string_view tag);

/// Reads a unit with all it owns. Of two records under one key in a list of its own the later is dropped,
/// which `duplicate_key` tells; it is never set back.
std::shared_ptr<oUnits> read_unit(FieldReader& in, std::string_view tag, bool& duplicate_key);

/// The unit class that an old or empty value stands for.
std::string order_id_of(const std::string& stored, std::string_view echelon);
