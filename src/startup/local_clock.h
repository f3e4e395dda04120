// The calendar of the machine: today's local date, for the dates of the records.
#pragma once

#include "game/ports.h"

namespace morvane {

class LocalClock : public ClockPort {
  public:
    CalendarDate today() override;
};

} // namespace morvane
