// SPDX-License-Identifier: MIT
#include <marlin/runtime/observer.h>
#include <marlin/runtime/subscriber.h>

namespace UTL {

// Made before the first subscriber, the observer is destroyed after the last static one.
Subscriber::Subscriber() {
    Observer::Get();
}

Subscriber::Subscriber(const Subscriber&) : Subscriber() {}

Subscriber::~Subscriber() {
    Observer::Get().UnSubscribe(this);
}

}  // namespace UTL
