#ifndef OX_CORE_OX_MUTEX_H
#define OX_CORE_OX_MUTEX_H

#include <memory>

#include <ox/core/ox_export.h>

namespace ox {

struct ox_mutex_state;

/// A simple lock between threads, whether they come from OpenMP or not.
///
/// Representation: one pointer to an OpenMP lock on the heap. It does not nest: a thread that locks
/// it twice waits for ever. Only the thread that locked it unlocks it.
///
/// A copy is a lock of its own: copying never carries over a locked state, and assignment leaves
/// the lock as it is. When the memory for the lock cannot be had, the object does nothing.
///
///     static ox::ox_mutex mutex;
///     mutex.lock();
///     change_shared_state();
///     mutex.unlock();
class OX_EXPORT ox_mutex {
public:
    /// A new, unlocked lock.
    ox_mutex() noexcept;

    /// A new, unlocked lock, whatever the state of `other`.
    ox_mutex(const ox_mutex& other) noexcept;

    /// Keeps the object's own lock in the state it is in, whatever the state of `other`.
    ox_mutex& operator=(const ox_mutex& other) noexcept;

    /// Releases the lock, which nobody may hold any more.
    ~ox_mutex();

    /// Waits until the lock is free and takes it.
    void lock();

    /// Frees the lock, which the calling thread must hold.
    void unlock();

private:
    std::unique_ptr<ox_mutex_state> state;
};

} // namespace ox

#endif
