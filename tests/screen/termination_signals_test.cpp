#include "screen/termination_signals.h"

#include "screen_fixture.h"

#include <QCoreApplication>
#include <csignal>

namespace morvane {
namespace {

// Runs the event loop's pending work until `done` or a bounded number of passes.
template <typename Done> bool processEventsUntil(Done done) {
    for (int pass = 0; pass < 1000 && !done(); ++pass)
        QCoreApplication::processEvents();
    return done();
}

TEST(TerminationSignals, EachSignalEndsTheGameOnceFromTheEventLoopNotTheHandler) {
    testing::application();
    QObject owner;
    int ends = 0;
    endOnTerminationSignals(&owner, [&ends] { ++ends; });

    int expected = 0;
    for (int signal : {SIGTERM, SIGHUP, SIGINT}) {
        std::raise(signal);
        EXPECT_EQ(ends, expected) << "signal " << signal << " ran the way out inside its handler";
        ++expected;
        EXPECT_TRUE(processEventsUntil([&] { return ends == expected; })) << "signal " << signal;
        QCoreApplication::processEvents();
        EXPECT_EQ(ends, expected) << "signal " << signal << " ended the game twice";
    }
}

} // namespace
} // namespace morvane
