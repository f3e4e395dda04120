#include "screen/termination_signals.h"

#include "screen_fixture.h"

#include <QCoreApplication>
#include <csignal>

namespace morvane {
namespace {

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
        for (int pass = 0; pass < 1000 && ends != expected; ++pass)
            QCoreApplication::processEvents();
        EXPECT_EQ(ends, expected) << "signal " << signal << " never ended the game";
        QCoreApplication::processEvents();
        EXPECT_EQ(ends, expected) << "signal " << signal << " ended the game twice";
    }
}

} // namespace
} // namespace morvane
