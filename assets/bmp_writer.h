// 256-colour pictures: the palette is chosen for the picture and every pixel takes the
// nearest entry, with no dithering, so that flat colours and the black of the sprites stay
// exact.
#pragma once

#include <QImage>
#include <QString>
#include <vector>

namespace morvane::assets {

// The picture reduced to at most 256 colours, as an indexed image. Black, white, the colours
// in `exact` and every colour that covers a large flat area keep their exact values.
QImage toPalettePicture(const QImage& picture, const std::vector<QRgb>& exact);

// Writes an uncompressed 8-bit BMP with its palette. Returns false if the file can't be written.
bool writeBmp8(const QImage& picture, const std::vector<QRgb>& exact, const QString& path);

} // namespace morvane::assets
