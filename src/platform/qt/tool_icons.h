// The pictures of the toolbar, drawn as plain signs in the colour of the text.
#pragma once

#include <QIcon>
#include <QPalette>

namespace varnstride {

// Picture 0 to 12 in the order of the toolbar.
QIcon ToolIcon(int picture, const QPalette& palette);

}  // namespace varnstride
