#pragma once

#include "core/program.h"

inline constexpr std::int16_t free_text_index = 999;

/// The catalogue's entry of an element that is no free text. Fails with 5 when the catalogue lacks it.
const oForceElements& catalogue_entry(const Program& program, const oUnitForceElements& element);

/// The catalogue's entry of an artillery piece, or nothing. Fails with 5 when the catalogue lacks the
/// element.
const oForceElements* artillery_piece(const Program& program, const oUnitForceElements& element);

/// Whether the element has an arc of fire that can be turned: an artillery piece of the catalogue with a fan.
/// Fails as `artillery_piece` does.
bool has_firefan(const Program& program, const oUnitForceElements& element);
