// Shaded pool balls, drawn pixel by pixel as lit spheres so that they stay round and
// clean at every size, from the 10 pixel record balls to the big ball of the splash.
#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>

namespace morvane::assets {

inline constexpr int kBallCount = 10;

// How one ball looks: its body colour, and whether it is the white ball with a band.
struct BallLook {
    QColor body;
    QColor band;
    bool striped = false;
};

BallLook ballLook(int number);

// Where the light comes from, in picture coordinates (y runs downward, z toward the viewer).
struct Light {
    double x = -0.45;
    double y = -0.6;
    double z = 0.66;
};

struct BallStyle {
    bool numberDisc = false; // a white disc facing the viewer, for the number
    Light light;
    double squash = 1.0; // height over width of the outline, for balls seen in perspective
};

// Blends a ball of radius `size`, centred on `where`, over what the image holds. Both are in the
// units a painter on the image works in; the ball is shaded in every pixel the image holds.
void paintBall(QImage& image, QPointF where, double size, const BallLook& look,
               const BallStyle& style);

// A ball at rest as seen from above, its number on a white disc (none on the cue ball).
void paintNumberedBall(QImage& image, QPointF centre, double radius, int number);

// True when the pixel (x, y) of a square cell of `size` pixels lies inside the ball's disc: the
// one rule shared by the mask, the shadow and the sprites, so that they always line up.
bool insideCellDisc(int x, int y, int size);

// A cell of `size` by `size` on black holding ball `number`, with its number printed when
// `numbered` is set; every pixel outside the cell's disc is black. At a scale above 1 the cell
// holds `scale` pixels a side for each of its size.
QImage ballCell(int number, int size, bool numbered, int scale);

// A cell with a plain disc of `inside` on `outside`, following insideCellDisc.
QImage discCell(int size, QColor inside, QColor outside, int scale);

} // namespace morvane::assets
