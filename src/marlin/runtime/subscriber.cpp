// SPDX-License-Identifier: MIT
#include <marlin/runtime/observer.h>
#include <marlin/runtime/subscriber.h>

namespace UTL {

// The observer must be there before the first subscriber is, so that it is destroyed later.
Subscriber::Subscriber() {
    Observer::Get();
}

Subscriber::Subscriber(const Subscriber&) : Subscriber() {}

Subscriber::~Subscriber() {
    Observer::Get().UnSubscribe(this);
}

}  // namespace UTL
