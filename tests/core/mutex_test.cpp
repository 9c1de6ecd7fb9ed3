#include <cstdlib>
#include <gtest/gtest.h>
#include <new>
#include <ox/core/ox_mutex.h>
#include <thread>
#include <vector>

// A program cannot replace the allocation of a Windows library, nor the one that the sanitizers of
// Clang bring along.
#if defined(__clang__) && !defined(_WIN32)
#if !__has_feature(thread_sanitizer) && !__has_feature(address_sanitizer)
#define CAN_REPLACE_ALLOCATION
#endif
#elif !defined(_WIN32)
#define CAN_REPLACE_ALLOCATION
#endif

namespace {

/// Adds to a plain counter from several threads under `mutex` and returns the sum.
int count_with_threads(ox::ox_mutex& mutex) {
    int counter = 0;
    std::vector<std::thread> team;
    for (int i = 0; i < 4; ++i) {
        team.emplace_back([&] {
            for (int j = 0; j < 10000; ++j) {
                mutex.lock();
                ++counter;
                mutex.unlock();
            }
        });
    }
    for (std::thread& member : team) {
        member.join();
    }
    return counter;
}

} // namespace

#ifdef CAN_REPLACE_ALLOCATION

namespace {
thread_local bool refuse_memory = false;
}

// Replaces the allocation that reports failure by null, for the library too.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    if (refuse_memory) {
        return nullptr;
    }
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

TEST(OxMutex, DestroyingAMutexWhoseLockAllocationFailedDoesNothing) {
    refuse_memory = true;
    {
        ox::ox_mutex mutex;
        refuse_memory = false;
        mutex.lock();
        mutex.lock(); // would wait for ever if there were a lock
        mutex.unlock();
        ox::ox_mutex copy(mutex);
        copy.lock();
        copy.unlock();
    }
    SUCCEED();
}

#endif

TEST(OxMutex, OneThreadAtATimeHoldsTheLock) {
    ox::ox_mutex mutex;
    EXPECT_EQ(count_with_threads(mutex), 40000);
}

TEST(OxMutex, CopyOfALockedMutexIsANewUnlockedLock) {
    ox::ox_mutex mutex;
    mutex.lock();
    ox::ox_mutex copy(mutex);
    EXPECT_EQ(count_with_threads(copy), 40000);
    mutex.unlock();
}

TEST(OxMutex, AssignmentFromALockedMutexLeavesTheLockFree) {
    ox::ox_mutex mutex;
    mutex.lock();
    ox::ox_mutex other;
    other = mutex;
    EXPECT_EQ(count_with_threads(other), 40000);
    mutex.unlock();
}

TEST(OxMutex, AssignmentToALockedMutexKeepsItLocked) {
    ox::ox_mutex mutex;
    mutex.lock();
    mutex = ox::ox_mutex();
    mutex.unlock();
    EXPECT_EQ(count_with_threads(mutex), 40000);
}

TEST(OxMutex, AssignmentToItselfKeepsTheLock) {
    ox::ox_mutex mutex;
    const ox::ox_mutex& same = mutex;
    mutex = same;
    EXPECT_EQ(count_with_threads(mutex), 40000);
}

TEST(OxMutex, HoldsOnePointer) {
    EXPECT_EQ(sizeof(ox::ox_mutex), sizeof(void*));
}
