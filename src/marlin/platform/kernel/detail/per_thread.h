// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/detail/process_object.h>

#include <memory>

#include <pthread.h>

namespace PLATFORM::detail {

/// The object of that type that each thread has, made at the first call. It goes after the thread's
/// thread-local objects, and in the thread that ends the process not at all: the destructors of
/// static objects may use it too.
template <class Object>
[[nodiscard]] Object& PerThread() {
    class Key {
    public:
        Key() noexcept { ::pthread_key_create(&m_Key, &Delete); }
        Key(const Key&) = delete;
        Key& operator=(const Key&) = delete;
        ~Key() {
            Delete(::pthread_getspecific(m_Key));
            ::pthread_key_delete(m_Key);
        }

        [[nodiscard]] Object& OfThisThread() const {
            if (void* const known = ::pthread_getspecific(m_Key)) {
                return *static_cast<Object*>(known);
            }
            Object* const made = std::make_unique<Object>().release();
            ::pthread_setspecific(m_Key, made);
            return *made;
        }

    private:
        static void Delete(void* object) {
            const std::unique_ptr<Object> gone(static_cast<Object*>(object));
        }

        pthread_key_t m_Key{};
    };
    return MARLINSUITE::detail::ProcessObject<Key>().OfThisThread();
}

}  // namespace PLATFORM::detail
