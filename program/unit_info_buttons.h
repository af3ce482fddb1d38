#pragma once

#include "mapview/unit_info_button.h"

#include <span>

/// The buttons of the unit info panel, in order.
std::span<const UnitInfoButton> unit_info_buttons();
