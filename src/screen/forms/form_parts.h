// What the small forms share: sizes given in twips, a black ground with green text, picture
// buttons such as OK and Cancel, and the two ways a form is placed.
#pragma once

#include <QDialog>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QRect>
#include <QSet>

namespace morvane {

// The plain colour of the forms' text, and the winner's.
inline const QColor kFormGreen{0, 255, 0};
inline const QColor kFormMagenta{255, 0, 255};

// The OK and Cancel pictures, 990 by 510 twips.
constexpr int kPictureButtonWidthTwips = 990;
constexpr int kPictureButtonHeightTwips = 510;

// A rectangle given in twips, in pixels.
QRect twipsRect(int left, int top, int width, int height);
QSize twipsSize(int width, int height);

// A picture that acts as a button: a left press on it, released over it, runs clicked; a release
// whose press it never saw (one that closed the form before this one) does nothing. It takes the
// size of OK and Cancel unless told otherwise.
class PictureButton : public QLabel {
    Q_OBJECT
  public:
    PictureButton(const QImage& picture, QWidget* parent, QSize size = QSize());
    // Puts the picture's top left corner at a point in twips.
    void placeAt(int leftTwips, int topTwips);

  signals:
    void clicked();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    bool pressed_ = false;
};

// While a form is up: a key that was already held down when it opened, such as the Escape that
// closed the form before it, repeats on its own, and those repeats don't reach the form. Let go
// and pressed again, the key works as ever, its repeats too.
class HeldKeyGuard : public QObject {
  public:
    explicit HeldKeyGuard(QWidget& form);
    ~HeldKeyGuard() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget& form_;
    QSet<int> pressedHere_;
    QHash<int, quint64> heldReleasedAt_; // keys held from before, by the time of their last release
};

// A fixed form on black with its caption and its inner size in twips.
void setUpForm(QDialog& form, const QString& caption, QSize innerSizeTwips);
// A label at its place in twips, in the given font and colour.
QLabel* addLabel(QWidget* form, const QString& text, QRect placeTwips, const QFont& font,
                 const QColor& colour = kFormGreen);
void setTextColour(QWidget* widget, const QColor& colour);

// Centred on the main window, or on the screen when there is none.
void centreOver(QWidget& form, const QWidget* mainWindow);
// The whole screen the forms stand on.
QRect screenArea();
// Centred on the screen.
void centreOnScreen(QWidget& form);

} // namespace morvane
