#pragma once
// The pictures of the fractal window's overlay buttons: 0 axes, 1 fixed points, 2 grid.
#include <QIcon>

namespace quillane {

QIcon OverlayIcon(int which);

}  // namespace quillane
