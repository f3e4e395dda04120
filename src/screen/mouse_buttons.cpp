#include "screen/mouse_buttons.h"

namespace morvane {

namespace {
constexpr int kLeft = 1;
constexpr int kRight = 2;
constexpr int kMiddle = 4;
} // namespace

int buttonCode(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return kLeft;
    case Qt::RightButton:
        return kRight;
    case Qt::MiddleButton:
        return kMiddle;
    default:
        return 0;
    }
}

int buttonsCode(Qt::MouseButtons buttons) {
    int code = 0;
    for (Qt::MouseButton b : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (buttons & b)
            code |= buttonCode(b);
    }
    return code;
}

} // namespace morvane
