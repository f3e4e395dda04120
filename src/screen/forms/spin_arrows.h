// A vertical scroll bar no taller than its two arrows, which works as a spin button: the upper
// arrow adds a step and the lower takes one off, within the limits. A change, by code or by a
// click, tells valueChanged; a value that stays tells nothing.
#pragma once

#include <QToolButton>
#include <QWidget>

namespace morvane {

class SpinArrows : public QWidget {
    Q_OBJECT
  public:
    SpinArrows(int lowest, int highest, int step, QWidget* parent);

    int value() const { return value_; }
    void setValue(int value);
    QToolButton* upArrow() const { return up_; }
    QToolButton* downArrow() const { return down_; }

  signals:
    void valueChanged(int value);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    int lowest_;
    int highest_;
    int step_;
    int value_;
    QToolButton* up_;
    QToolButton* down_;
};

} // namespace morvane
