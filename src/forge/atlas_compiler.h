// Atlas files turned into the C++ source of the table that the program carries. The build calls it
// through varnstride-forge; the same sources give the same text.
#pragma once

#include <span>
#include <string>

#include "forge/atlas_source.h"

namespace varnstride {

// A C++ source that defines BuiltInAtlases() with the atlases by rising number of the battlefield.
// The sources have been checked.
std::string AtlasesAsCode(std::span<const AtlasSource> atlases);

}  // namespace varnstride
