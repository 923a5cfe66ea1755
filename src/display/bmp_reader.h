// Reads pictures from BMP files: 1, 4, 8, 24 or 32 bits a pixel, without compression, either way
// up. The loading of sheets and canvases calls it once for each picture.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "display/surface.h"
#include "model/result.h"

namespace varnstride {

constexpr int kWidestPicture = 16384;  // pixels, either way
constexpr int kMostPixels = 1 << 25;

// The picture in the bytes of a file; a failure starts with the name.
Result<Surface> DecodeBmp(std::span<const std::byte> bytes, const std::string& name);

// The picture in a file; a failure starts with the path.
Result<Surface> ReadBmp(const std::string& path);

}  // namespace varnstride
