#pragma once

#include "core/platform.h"

#include <memory>
#include <string>
#include <vector>

/// Files on the disk. Names that the program's data holds are found by `reference_path`; a path that the user
/// chose is taken as it stands.
namespace files {

/// The place on the disk of a path below the program's directory. Backslashes separate, and each component is
/// matched exactly first, then without regard to case, as data made on other systems needs it. Names on the
/// disk are UTF-8, the program's texts Windows-1252.
std::string reference_path(const std::string& path);

/// A text of the program as the disk spells it, and back; what has no place in Windows-1252 becomes "?".
std::string to_disk_name(const std::string& text);
std::string from_disk_name(const std::string& name);

bool exists(const std::string& path);
/// Fails with 53 when the file or its directory is missing, with 75 when it can't be read or is no file.
std::string read(const std::string& path);
/// The names of the directory's files with this ending in any letter case, in order of name without case. A
/// missing directory is an empty one; one that can't be read fails with 75.
std::vector<std::string> list(const std::string& directory, const std::string& ending);
/// Opens and empties the file. Fails with 75 when it can't be written, 76 when its directory is missing, 61
/// when the disk is full. Writing and closing fail with 61, else with 57.
std::unique_ptr<OutputFile> open_for_output(const std::string& path);

} // namespace files
