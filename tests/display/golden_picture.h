// Pictures that are kept beside the tests and compared with what is drawn now.
#pragma once

#include <string>

#include "display/surface.h"

namespace varnstride {

// Compares with golden/NAME.png. What differs is told in words, and shown by the files
// NAME.drawn.png and NAME.differs.png in the folder of the running test: grey where the two agree,
// red where they do not. With VARNSTRIDE_UPDATE=1 writes the picture afresh instead.
void ExpectGolden(const Surface& drawn, const std::string& name);

}  // namespace varnstride
