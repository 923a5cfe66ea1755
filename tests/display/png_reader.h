// Reads the PNG files that ours are, by the description of the format: 24 bits, no filter, one
// packed block with the fixed codes. For comparing pictures and for the writer's own test.
#pragma once

#include <cstddef>
#include <span>

#include "display/surface.h"
#include "model/result.h"

namespace varnstride {

Result<Surface> DecodePng(std::span<const std::byte> bytes);

}  // namespace varnstride
