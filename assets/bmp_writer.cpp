#include "bmp_writer.h"

#include "byte_writer.h"

#include <QFile>
#include <algorithm>
#include <unordered_map>
#include <vector>

namespace morvane::assets {

namespace {

constexpr int kPaletteSize = 256;
constexpr int kFlatAreaPixels = 48; // a colour this common is kept exactly
constexpr int kMaxExactColours = 128;
constexpr uint32_t kFileHeaderSize = 14;
constexpr uint32_t kInfoHeaderSize = 40;

struct ColourCount {
    QRgb colour;
    int count;
};

int channel(QRgb c, int axis) {
    return axis == 0 ? qRed(c) : axis == 1 ? qGreen(c) : qBlue(c);
}

// Median cut: the box with the widest spread of pixels is split at its median until there
// are as many boxes as free palette places; each box gives its weighted mean colour.
std::vector<QRgb> medianCut(std::vector<ColourCount> colours, int boxes) {
    struct Box {
        size_t begin, end;
    };
    auto spread = [&colours](const Box& b, int axis) {
        int lo = 255, hi = 0;
        for (size_t i = b.begin; i < b.end; ++i) {
            lo = std::min(lo, channel(colours[i].colour, axis));
            hi = std::max(hi, channel(colours[i].colour, axis));
        }
        return hi - lo;
    };
    std::vector<Box> list;
    if (!colours.empty())
        list.push_back({0, colours.size()});
    while (static_cast<int>(list.size()) < boxes) {
        int best = -1, bestAxis = 0, bestSpread = 0;
        for (size_t i = 0; i < list.size(); ++i) {
            if (list[i].end - list[i].begin < 2)
                continue;
            for (int axis = 0; axis < 3; ++axis) {
                const int s = spread(list[i], axis);
                if (s > bestSpread) {
                    bestSpread = s;
                    best = static_cast<int>(i);
                    bestAxis = axis;
                }
            }
        }
        if (best < 0)
            break;
        Box box = list[static_cast<size_t>(best)];
        auto first = colours.begin() + static_cast<long>(box.begin);
        auto last = colours.begin() + static_cast<long>(box.end);
        std::sort(first, last, [bestAxis](const ColourCount& a, const ColourCount& b) {
            return channel(a.colour, bestAxis) < channel(b.colour, bestAxis);
        });
        const size_t middle = box.begin + (box.end - box.begin) / 2;
        list[static_cast<size_t>(best)] = {box.begin, middle};
        list.push_back({middle, box.end});
    }
    std::vector<QRgb> palette;
    for (const Box& b : list) {
        double r = 0, g = 0, bl = 0, n = 0;
        for (size_t i = b.begin; i < b.end; ++i) {
            r += qRed(colours[i].colour) * colours[i].count;
            g += qGreen(colours[i].colour) * colours[i].count;
            bl += qBlue(colours[i].colour) * colours[i].count;
            n += colours[i].count;
        }
        palette.push_back(qRgb(int(r / n + 0.5), int(g / n + 0.5), int(bl / n + 0.5)));
    }
    return palette;
}

int nearest(const std::vector<QRgb>& palette, QRgb c) {
    int best = 0, bestDistance = INT32_MAX;
    for (size_t i = 0; i < palette.size(); ++i) {
        const int dr = qRed(c) - qRed(palette[i]);
        const int dg = qGreen(c) - qGreen(palette[i]);
        const int db = qBlue(c) - qBlue(palette[i]);
        const int d = 2 * dr * dr + 4 * dg * dg + db * db;
        if (d < bestDistance) {
            bestDistance = d;
            best = static_cast<int>(i);
        }
    }
    return best;
}

std::vector<QRgb> choosePalette(const QImage& rgb, const std::vector<QRgb>& exact) {
    std::unordered_map<QRgb, int> histogram;
    for (int y = 0; y < rgb.height(); ++y)
        for (int x = 0; x < rgb.width(); ++x)
            ++histogram[rgb.pixel(x, y) | 0xff000000u];
    std::vector<ColourCount> colours;
    for (const auto& [c, n] : histogram)
        colours.push_back({c, n});
    if (colours.size() <= kPaletteSize) {
        std::vector<QRgb> palette;
        for (const ColourCount& c : colours)
            palette.push_back(c.colour);
        return palette;
    }
    std::sort(colours.begin(), colours.end(),
              [](const ColourCount& a, const ColourCount& b) { return a.count > b.count; });
    std::vector<QRgb> palette = {qRgb(0, 0, 0), qRgb(255, 255, 255)};
    for (QRgb c : exact)
        if (histogram.count(c | 0xff000000u))
            palette.push_back(c | 0xff000000u);
    std::vector<ColourCount> rest;
    for (const ColourCount& c : colours) {
        const bool listed = std::find(palette.begin(), palette.end(), c.colour) != palette.end();
        if (listed)
            continue;
        if (c.count >= kFlatAreaPixels && static_cast<int>(palette.size()) < kMaxExactColours)
            palette.push_back(c.colour);
        else
            rest.push_back(c);
    }
    for (QRgb c : medianCut(rest, kPaletteSize - static_cast<int>(palette.size())))
        palette.push_back(c);
    return palette;
}

} // namespace

QImage toPalettePicture(const QImage& picture, const std::vector<QRgb>& exact) {
    const QImage rgb = picture.convertToFormat(QImage::Format_RGB32);
    const std::vector<QRgb> palette = choosePalette(rgb, exact);
    QImage indexed(rgb.size(), QImage::Format_Indexed8);
    indexed.setColorTable(QList<QRgb>(palette.begin(), palette.end()));
    std::unordered_map<QRgb, int> lookup;
    for (int y = 0; y < rgb.height(); ++y) {
        uchar* line = indexed.scanLine(y);
        for (int x = 0; x < rgb.width(); ++x) {
            const QRgb c = rgb.pixel(x, y) | 0xff000000u;
            auto found = lookup.find(c);
            if (found == lookup.end())
                found = lookup.emplace(c, nearest(palette, c)).first;
            line[x] = static_cast<uchar>(found->second);
        }
    }
    return indexed;
}

bool writeBmp8(const QImage& picture, const std::vector<QRgb>& exact, const QString& path) {
    const QImage indexed = toPalettePicture(picture, exact);
    const QList<QRgb> palette = indexed.colorTable();
    const uint32_t rowBytes = (static_cast<uint32_t>(indexed.width()) + 3u) & ~3u;
    const uint32_t pixelOffset =
        kFileHeaderSize + kInfoHeaderSize + 4u * static_cast<uint32_t>(palette.size());
    const uint32_t imageBytes = rowBytes * static_cast<uint32_t>(indexed.height());
    ByteWriter out;
    out.text("BM");
    out.le32(pixelOffset + imageBytes);
    out.le32(0);
    out.le32(pixelOffset);
    out.le32(kInfoHeaderSize);
    out.le32(static_cast<uint32_t>(indexed.width()));
    out.le32(static_cast<uint32_t>(indexed.height())); // positive: rows run bottom-up
    out.le16(1);                                       // planes
    out.le16(8);                                       // bits a pixel
    out.le32(0);                                       // no compression
    out.le32(imageBytes);
    out.le32(2835); // 72 dots an inch
    out.le32(2835);
    out.le32(static_cast<uint32_t>(palette.size()));
    out.le32(0);
    for (QRgb c : palette) {
        out.byte(static_cast<uint8_t>(qBlue(c)));
        out.byte(static_cast<uint8_t>(qGreen(c)));
        out.byte(static_cast<uint8_t>(qRed(c)));
        out.byte(0);
    }
    for (int y = indexed.height() - 1; y >= 0; --y) {
        const uchar* line = indexed.constScanLine(y);
        for (uint32_t x = 0; x < rowBytes; ++x)
            out.byte(x < static_cast<uint32_t>(indexed.width()) ? line[x] : 0);
    }
    return out.save(path.toStdString());
}

} // namespace morvane::assets
