#include <cstddef>
#include <gtest/gtest.h>
#include <limits>
#include <new>
#include <ox/core/ox_list.h>
#include <utility>

namespace {

/// An element whose arrays can be refused, as when memory runs out, and are counted.
struct rationed {
    rationed() = default;
    explicit rationed(int n) : value(n) {}

    static void* operator new[](std::size_t size) {
        if (refused) {
            throw std::bad_alloc();
        }
        ++arrays;
        return ::operator new[](size);
    }
    static void operator delete[](void* array) noexcept {
        if (array != nullptr) {
            --arrays;
        }
        ::operator delete[](array);
    }

    int value = 0;
    static inline bool refused = false;
    static inline int arrays = 0;
};

/// An element that refuses to be copied when its turn comes.
struct stubborn {
    stubborn() = default;
    stubborn(const stubborn&) = default;
    stubborn& operator=(const stubborn& other) {
        if (--copies_left < 0) {
            throw std::bad_alloc();
        }
        value = other.value;
        return *this;
    }

    int value = 0;
    static inline int copies_left = 0;
};

/// An element whose arrays exist in name only, to build lists of any size without memory.
struct phantom {
    static void* operator new[](std::size_t) {
        static char nothing[16];
        return nothing;
    }
    static void operator delete[](void*) noexcept {}
    char value;
};

class OxListAllocation : public ::testing::Test {
protected:
    OxListAllocation() {
        for (int i = 0; i < 4; ++i) {
            list.push_right(rationed(10 * i));
        }
        rationed::refused = true;
    }
    ~OxListAllocation() override { rationed::refused = false; }

    void expect_intact() const {
        ASSERT_EQ(list.size(), 4);
        ASSERT_EQ(list.get_capacity(), 4);
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(list[i].value, 10 * i);
        }
    }

    ox::ox_list<rationed> list;
};

TEST_F(OxListAllocation, FailedGrowthLeavesTheListIntact) {
    EXPECT_THROW(list.push_right(rationed(1)), std::bad_alloc);
    expect_intact();
    EXPECT_THROW(list.push_left(rationed(1)), std::bad_alloc);
    expect_intact();
    EXPECT_THROW(list.insert(2, rationed(1)), std::bad_alloc);
    expect_intact();
}

TEST_F(OxListAllocation, FailedResizeLeavesTheListIntact) {
    EXPECT_THROW(list.set_size(5), std::bad_alloc);
    expect_intact();
}

TEST_F(OxListAllocation, FailedAssignmentLeavesTheListIntact) {
    rationed::refused = false;
    const ox::ox_list<rationed> other(7);
    rationed::refused = true;
    EXPECT_THROW(list = other, std::bad_alloc);
    expect_intact();
}

TEST_F(OxListAllocation, FailedCopyLeavesTheSourceIntact) {
    EXPECT_THROW(ox::ox_list<rationed>{list}, std::bad_alloc);
    expect_intact();
}

TEST_F(OxListAllocation, FailedSizedConstructionThrows) {
    EXPECT_THROW(ox::ox_list<rationed>(3), std::bad_alloc);
}

TEST_F(OxListAllocation, EmptyAndNonPositiveListsAllocateNothing) {
    const ox::ox_list<rationed> none;
    const ox::ox_list<rationed> zero(0);
    const ox::ox_list<rationed> negative(-3);
    const ox::ox_list<rationed> copy(negative);
    EXPECT_EQ(copy.get_data(), nullptr);
}

TEST_F(OxListAllocation, MovingAllocatesNothing) {
    ox::ox_list<rationed> taken(std::move(list));
    list = std::move(taken);
    expect_intact();
}

TEST_F(OxListAllocation, MovedValueThatFindsNoRoomStaysWithTheCaller) {
    ox::ox_list<rationed> empty;
    rationed value(7);
    rationed::refused = true;
    EXPECT_THROW(empty.push_right(std::move(value)), std::bad_alloc);
    rationed::refused = false;
    EXPECT_EQ(empty.size(), 0);
    EXPECT_EQ(value.value, 7);
}

TEST(OxListOwnership, EveryArrayIsReleasedOnce) {
    const int before = rationed::arrays;
    {
        ox::ox_list<rationed> list(3);
        EXPECT_EQ(rationed::arrays, before + 1);
        list.push_right(rationed(1));
        EXPECT_EQ(rationed::arrays, before + 1);
        ox::ox_list<rationed> copy(list);
        copy = list;
        EXPECT_EQ(rationed::arrays, before + 2);
        copy.clear();
        EXPECT_EQ(rationed::arrays, before + 1);
        copy = std::move(list);
    }
    EXPECT_EQ(rationed::arrays, before);
}

TEST(OxListAllocationOfElements, ElementThatCannotBeCopiedLeavesTheListIntact) {
    ox::ox_list<stubborn> list(3);
    list[1].value = 7;
    stubborn::copies_left = 2;
    EXPECT_THROW(list.push_right(stubborn()), std::bad_alloc);
    stubborn::copies_left = 2;
    EXPECT_THROW(list.set_size(9), std::bad_alloc);
    ox::ox_list<stubborn> other(1);
    stubborn::copies_left = 2;
    EXPECT_THROW(other = list, std::bad_alloc);
    EXPECT_EQ(other.size(), 1);
    EXPECT_EQ(list.size(), 3);
    EXPECT_EQ(list.get_capacity(), 3);
    EXPECT_EQ(list[1].value, 7);
}

TEST(OxListHugeSizes, GrowthBeyondTheLargestIntFailsAsAnAllocationAndLeavesTheListIntact) {
    constexpr int largest = (std::numeric_limits<int>::max)();
    ox::ox_list<phantom> list(largest);
    EXPECT_THROW(list.push_right(phantom()), std::bad_alloc);
    EXPECT_THROW(list.push_left(phantom()), std::bad_alloc);
    EXPECT_EQ(list.size(), largest);
    EXPECT_EQ(list.get_capacity(), largest);
}

TEST(OxListHugeSizes, SmallestSizesReadAsEmpty) {
    constexpr int smallest = (std::numeric_limits<int>::min)();
    ox::ox_list<int> list(smallest);
    EXPECT_EQ(list.size(), smallest);
    list.remove_right();
    list.remove_left();
    list.remove(smallest);
    EXPECT_EQ(list.begin(), list.end());
    list.insert(smallest, 5);
    EXPECT_EQ(list.size(), 1);
    EXPECT_EQ(list[0], 5);
}

} // namespace
