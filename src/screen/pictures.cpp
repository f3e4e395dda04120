#include "screen/pictures.h"

namespace morvane {

namespace {
QImage resourcePicture(const char* path) {
    return QImage(QString::fromUtf8(path));
}
} // namespace

QImage tablePicture() {
    return resourcePicture(":/pictures/picTable.png");
}
QImage cueBallPicture() {
    return resourcePicture(":/pictures/picSetPoint.png");
}
QImage okPicture() {
    return resourcePicture(":/pictures/picOK.png");
}

} // namespace morvane
