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

    for (int signal : {SIGTERM, SIGHUP, SIGINT}) {
        const int before = ends;
        std::raise(signal);
        EXPECT_EQ(ends, before) << "signal " << signal << " ran the way out inside its handler";
        for (int pass = 0; pass < 1000 && ends == before; ++pass)
            QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        EXPECT_EQ(ends, before + 1) << "signal " << signal << " ended the game never or twice";
    }
}

} // namespace
} // namespace morvane
