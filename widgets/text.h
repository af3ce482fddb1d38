#pragma once

#include <QString>

#include <string>

// The edge between the program's single-byte texts (Windows-1252) and the window system's. All 256 bytes come
// through unchanged, there and back.

QString to_qt(const std::string& text);
/// A character outside the code page becomes "?".
std::string from_qt(const QString& text);
