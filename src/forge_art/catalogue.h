// Every picture that the forge paints: its file, the family that is painted together, and the
// recipe. The build asks family by family, so that a changed recipe repaints its own sheets alone.
#pragma once

#include <QImage>
#include <functional>
#include <string>
#include <vector>

#include "forge_art/studio.h"

namespace varnstride::art {

struct Picture {
    std::string file;    // under the data folder, "Graphics/Road6.bmp"
    std::string family;  // "roads"
    std::function<QImage(const Studio&)> paint;
};

const std::vector<Picture>& Catalogue();

}  // namespace varnstride::art
