#pragma once

#include "core/frmMain.h"
#include "core/unit_records.h"

/// The unit's own marker, or nothing: a unit that was loaded without one holds an index that may by now be
/// another one's.
inline const UnitMarker* marker_of(const frmMain& main, const oUnits& unit) {
    if (unit.img_index <= 0 || !main.imgUnit.has(unit.img_index)) return nullptr;
    const UnitMarker& marker = main.imgUnit(unit.img_index);
    return marker.tag == unit.ID ? &marker : nullptr;
}

inline UnitMarker* marker_of(frmMain& main, const oUnits& unit) {
    return const_cast<UnitMarker*>(marker_of(static_cast<const frmMain&>(main), unit));
}
