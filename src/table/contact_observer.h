// What the motion engine tells while it runs a frame.
#pragma once

namespace morvane {

// Hears of every contact that the motion engine answers: a ball with a ball or a cushion, or a
// ball taken by a pocket. The time is counted from the start of the frame; pocket is 0 when the
// contact is not a capture. It hears too when the engine is about to look for the next contact,
// where the window lets paint events through. The headless tool lists the events of a shot
// through it; the game plays its sounds, draws and notes the shot's first hit and pockets.
class ContactObserver {
  public:
    virtual ~ContactObserver() = default;
    virtual void beforeSearch() {}
    virtual void onContact(float timeInFrame, int ball, int partner, int pocket) = 0;
};

} // namespace morvane
