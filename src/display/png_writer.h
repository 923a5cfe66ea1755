// Pictures as PNG files, for whoever looks at the map without a window.
#pragma once

#include <cstddef>
#include <vector>

#include "display/surface.h"

namespace varnstride {

// A whole PNG file, 24 bits a pixel. The surface has at least one pixel.
std::vector<std::byte> EncodePng(const Surface& surface);

}  // namespace varnstride
