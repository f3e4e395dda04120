#include "startup/local_clock.h"

#include <ctime>

namespace morvane {

namespace {
constexpr int kTmYearBase = 1900;
} // namespace

CalendarDate LocalClock::today() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return {local.tm_year + kTmYearBase, local.tm_mon + 1, local.tm_mday};
}

} // namespace morvane
