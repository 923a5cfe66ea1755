// The packing of bytes that PNG files use. Made for pictures of repeated tiles: it looks back for
// runs seen before and writes them with the fixed codes of the format.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace varnstride {

// A whole zlib stream with its header and check sum. The same bytes always pack alike.
std::vector<std::byte> PackZlib(std::span<const std::byte> bytes);

}  // namespace varnstride
