// Fonts of the game in points, as pixels on a display of 96 dots an inch, and text printed at
// a point as the picture boxes print it: the point is the top left corner of the line.
#pragma once

#include <QFont>
#include <QPainter>
#include <QString>

namespace morvane {

QFont gameFont(const QString& family, double points, bool bold);
void printAt(QPainter& painter, QPoint topLeft, const QString& text);

} // namespace morvane
