#include "screen/pictures.h"

#include "picture_names.h"

namespace morvane {

QImage tablePicture() {
    return QImage(pictures::kTable);
}
QImage cueBallPicture() {
    return QImage(pictures::kSetPoint);
}
QImage okPicture() {
    return QImage(pictures::kOk);
}
QImage windowIcon() {
    return QImage(pictures::kIcon);
}

} // namespace morvane
