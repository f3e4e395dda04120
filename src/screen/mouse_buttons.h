// Mouse buttons as the handlers take them: 1 left, 2 right, 4 middle, added up for a move.
#pragma once

#include <QMouseEvent>

namespace morvane {

int buttonCode(Qt::MouseButton button);
int buttonsCode(Qt::MouseButtons buttons);

} // namespace morvane
