// The motion engine: one frame of 0.05 time units, contact by contact.
#pragma once

#include "table/ball.h"
#include "table/contact_observer.h"

namespace morvane {

// Finds the next contact, moves every ball to it and answers it, until the frame's time is
// spent; each contact is told to the observer once it has been answered.
void runFrame(BallArray& balls, ContactObserver& observer);
// Advances every moving ball by t, with no regard to contacts.
void moveBalls(BallArray& balls, double t);
// The same for one ball, keeping its spin; used on the break only.
void moveBall(BallType& b, double t);
// No ball has any speed left.
bool isAllStopped(const BallArray& balls);

} // namespace morvane
