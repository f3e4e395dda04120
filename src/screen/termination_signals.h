// The session asks a program to end with a signal: SIGTERM at logout or shutdown, SIGHUP when
// its terminal goes, SIGINT for Ctrl+C. The game answers each as it answers Exit, from its event
// loop, so the music is closed and the process ends with status 0.
#pragma once

#include <QObject>
#include <functional>

namespace morvane {

// Calls `endGame` from the event loop of `owner`'s thread when one of the signals arrives.
void endOnTerminationSignals(QObject* owner, std::function<void()> endGame);

} // namespace morvane
