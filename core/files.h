#pragma once

#include "core/platform.h"

#include <memory>
#include <string>
#include <vector>

/// Files on the disk. Paths may hold backslashes and differ from the disk in letter case, as data made on
/// other systems does: each component is matched exactly first, then without regard to case.
namespace files {

/// The path to open: separators turned, letter case as on the disk where the path exists.
std::string disk_path(const std::string& path);

bool exists(const std::string& path);
/// Fails with 53 when the file or its directory is missing, with 75 when it can't be read.
std::string read(const std::string& path);
std::vector<std::string> list(const std::string& directory, const std::string& ending);
/// Fails with 75 when the file can't be written, with 76 when its directory is missing.
std::unique_ptr<OutputFile> open_for_output(const std::string& path);

} // namespace files
