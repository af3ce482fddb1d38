#pragma once

#include <cstdint>

/// Colours are 0x00BBGGRR; with the top bit set they name a colour of the system.
namespace colour {
inline constexpr std::int32_t button_face = static_cast<std::int32_t>(0x8000000F);   // a toggle that is off
inline constexpr std::int32_t button_shadow = static_cast<std::int32_t>(0x80000010); // a toggle that is on
inline constexpr std::int32_t ruler_text = 0xC00000;
} // namespace colour
