// An observer that remembers what the motion engine told it.
#pragma once

#include "table/contact_observer.h"

#include <vector>

namespace morvane::testing {

struct Contact {
    float time;
    int ball;
    int partner;
    int pocket;
};

struct RecordingContacts : ContactObserver {
    std::vector<Contact> seen;
    int searches = 0;
    void beforeSearch() override { ++searches; }
    void onContact(float time, int ball, int partner, int pocket) override {
        seen.push_back({time, ball, partner, pocket});
    }
};

} // namespace morvane::testing
