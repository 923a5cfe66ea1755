// The atlases that the program carries: content/atlas/, checked and compiled in the build.
#pragma once

#include "model/atlas.h"

namespace varnstride {

const AtlasCatalogue& BuiltInAtlases();

}  // namespace varnstride
