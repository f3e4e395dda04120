// An observer that remembers what the motion engine told it.
#pragma once

#include "table/contact_observer.h"

#include <gtest/gtest.h>

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
    void onContact(float time, int ball, int partner, int pocket) override {
        seen.push_back({time, ball, partner, pocket});
    }
};

// The frame saw one contact only: a ball taken by this pocket from this cushion.
inline void expectOnlyCapture(const RecordingContacts& contacts, int cushion, int pocket) {
    ASSERT_EQ(contacts.seen.size(), 1u);
    EXPECT_EQ(contacts.seen[0].partner, cushion);
    EXPECT_EQ(contacts.seen[0].pocket, pocket);
}

} // namespace morvane::testing
