#include <ox/core/ox_mutex.h>

#include <new>

#include <omp.h>

// The thread sanitizer does not see OpenMP locks, so it has to be told what they order.
#if defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define OX_THREAD_SANITIZER
#endif
#elif defined(__SANITIZE_THREAD__)
#define OX_THREAD_SANITIZER
#endif

#ifdef OX_THREAD_SANITIZER
#include <sanitizer/tsan_interface.h>
#endif

namespace ox {

struct ox_mutex_state {
    ox_mutex_state() noexcept { omp_init_lock(&lock); }
    ~ox_mutex_state() { omp_destroy_lock(&lock); }
    ox_mutex_state(const ox_mutex_state&) = delete;
    ox_mutex_state& operator=(const ox_mutex_state&) = delete;

    void set() {
        omp_set_lock(&lock);
#ifdef OX_THREAD_SANITIZER
        __tsan_acquire(&lock);
#endif
    }

    void unset() {
#ifdef OX_THREAD_SANITIZER
        __tsan_release(&lock);
#endif
        omp_unset_lock(&lock);
    }

    omp_lock_t lock;
};

ox_mutex::ox_mutex() noexcept : state(new (std::nothrow) ox_mutex_state) {}

ox_mutex::ox_mutex(const ox_mutex&) noexcept : ox_mutex() {}

ox_mutex& ox_mutex::operator=(const ox_mutex&) noexcept {
    return *this;
}

ox_mutex::~ox_mutex() = default;

void ox_mutex::lock() {
    if (state) {
        state->set();
    }
}

void ox_mutex::unlock() {
    if (state) {
        state->unset();
    }
}

} // namespace ox
