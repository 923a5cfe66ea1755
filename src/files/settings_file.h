// The player's settings on the disk.
#pragma once

#include <string>

#include "model/file_blocks.h"
#include "model/result.h"

namespace varnstride {

// What a player starts with who has no settings yet.
Settings DefaultSettings();

// The settings of a file; the defaults when it is missing or short.
Settings ReadSettings(const std::string& path);

Result<Done> WriteSettings(const std::string& path, const Settings& settings);

}  // namespace varnstride
