// The picture of the start screen: a morning of June 1815, the armies on a ridge, and the name of
// the game.
#pragma once

#include <QImage>

#include "forge_art/studio.h"

namespace varnstride::art {

QImage PaintTitle(const Studio& studio);

}  // namespace varnstride::art
