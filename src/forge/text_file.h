// Whole text files read and written by the forge. What is written appears complete or not at all.
#pragma once

#include <string>
#include <string_view>

#include "model/result.h"

namespace varnstride {

Result<std::string> ReadTextFile(const std::string& path);

// Writes beside the file and renames over it; on failure the file that stood there stays.
Result<Done> WriteTextFile(const std::string& path, std::string_view text);

}  // namespace varnstride
