// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

namespace UTL {

/// The base of everyone who wants to hear of contexts of an `Observer`; `observer.h` shows the use.
/// When destroyed it leaves every context of the process-wide observer; it must leave copies of
/// that observer itself. Subscriptions are not copied with it. The process-wide observer lives at
/// least as long as every subscriber, static ones included.
class MARLIN_API Subscriber {
public:
    Subscriber();
    Subscriber(const Subscriber& other);
    Subscriber& operator=(const Subscriber& other) noexcept = default;
    virtual ~Subscriber();

    /// Called once for each notification of a context that the subscriber belongs to. It may
    /// subscribe and unsubscribe anyone, clear and rename contexts, notify, and destroy
    /// subscribers, this one included.
    virtual void OnNotify(int message) = 0;
};

}  // namespace UTL
