// Whole files to and from the disk. A write never harms what stood there before: it goes to a file
// beside it, is flushed to the disk and takes the old one's place in one step.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "model/result.h"

namespace varnstride {

// All bytes of a file; a failure names the file and the system's reason.
Result<std::vector<std::byte>> ReadWholeFile(const std::string& path);

Result<Done> WriteSafely(const std::string& path, std::span<const std::byte> bytes);

}  // namespace varnstride
