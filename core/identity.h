#pragma once

#include "core/program.h"

#include <optional>
#include <string>
#include <string_view>

/// A new identifier: a GUID in braces, upper case, 38 characters; empty when there is no source of chance.
std::string new_guid(Platform& platform);

/// "larger", "smaller" or "equal", as the first echelon word ranks above, below or with the second; nothing
/// when either is no echelon word. A battery ranks lowest of all.
std::optional<std::string> compare_echelon(std::string_view first, std::string_view second);
