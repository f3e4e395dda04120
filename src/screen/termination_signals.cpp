#include "screen/termination_signals.h"

#include <QSocketNotifier>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace morvane {

namespace {

// A signal handler may only write to a descriptor; the event loop reads the other end.
int signalWriteEnd = -1;

void noteSignal(int) {
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(signalWriteEnd, &byte, 1);
}

} // namespace

void endOnTerminationSignals(QObject* owner, std::function<void()> endGame) {
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return;
    signalWriteEnd = ends[1];
    auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, owner);
    QObject::connect(notifier, &QSocketNotifier::activated, owner, [notifier, endGame] {
        char byte = 0;
        [[maybe_unused]] const ssize_t read = ::read(int(notifier->socket()), &byte, 1);
        endGame();
    });

    struct sigaction action = {};
    action.sa_handler = noteSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int signal : {SIGTERM, SIGHUP, SIGINT})
        ::sigaction(signal, &action, nullptr);
}

} // namespace morvane
