// What every painter works from: the colours, figures, uniforms and letters that people write under
// content/art. Read once by the forge.
#pragma once

#include <string>

#include "forge_art/figures.h"
#include "forge_art/lettering.h"
#include "forge_art/palette.h"
#include "model/result.h"

namespace varnstride::art {

struct Studio {
    Palette palette;
    FigureBook figures;
    Wardrobe uniforms;
    Lettering lettering;

    // What painters asked for in vain so far, one line a file of content/art; empty when nothing.
    std::string Missing() const;
};

// Reads the folder content/art; on failure every mistake with its file and line.
Result<Studio> OpenStudio(const std::string& folder);

}  // namespace varnstride::art
