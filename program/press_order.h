#pragma once

#include "core/program.h"

/// The order in which a press on the map, and a move over it, is offered to the tools.
ToolOrder tool_order();
