#pragma once

#include <string>
#include <string_view>

// The program's texts are single bytes of Windows-1252. Its five unassigned codes stand for the control
// characters of the same number, so that every byte survives the way to Unicode and back.

/// The character that a byte stands for.
char32_t character_of(unsigned char byte);
/// The byte of a character, "?" when the code page has none.
char byte_of(char32_t character);

/// Lower case of a byte, letters with marks included, whatever the locale.
unsigned char lower_case(unsigned char byte);
std::string lower_case(std::string_view text);
