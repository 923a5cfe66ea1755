// The sheet that the top bar and the reports copy from: flags, words, digits and signs of the three
// armies that have them, each at its place.
#pragma once

#include <QImage>

#include "forge_art/studio.h"

namespace varnstride::art {

QImage PaintTopBarSheet(const Studio& studio);

// The glyphs of place names on their plates, for three blocks of two styles.
QImage PaintLabelSheet(const Studio& studio);

}  // namespace varnstride::art
