#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <numeric>
#include <ox/core/ox_list.h>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using ox::ox_list;

template <typename T>
std::vector<T> values_of(const ox_list<T>& list) {
    return std::vector<T>(list.begin(), list.end());
}

ox_list<int> list_of(std::initializer_list<int> values) {
    ox_list<int> list;
    for (int value : values) {
        list.push_right(value);
    }
    return list;
}

using numbers = std::vector<int>;

TEST(OxList, StartsEmptyWithoutAnArray) {
    const ox_list<int> list;
    EXPECT_EQ(list.size(), 0);
    EXPECT_EQ(list.get_capacity(), 0);
    EXPECT_EQ(list.get_data(), nullptr);
    EXPECT_EQ(list.begin(), list.end());
}

TEST(OxList, AppendingGrowsCapacityAs1_2_3_4_6_9_13) {
    ox_list<int> list;
    std::vector<int> capacities;
    for (int i = 0; i < 42; ++i) {
        list.push_right(i);
        if (capacities.empty() || capacities.back() != list.get_capacity()) {
            capacities.push_back(list.get_capacity());
        }
    }
    EXPECT_EQ(capacities, (numbers{1, 2, 3, 4, 6, 9, 13, 19, 28, 42}));
}

TEST(OxList, SizedConstructorAllocatesExactlyThatMany) {
    const ox_list<std::string> list(5);
    EXPECT_EQ(list.size(), 5);
    EXPECT_EQ(list.get_capacity(), 5);
    EXPECT_EQ(values_of(list), std::vector<std::string>(5));
}

TEST(OxList, SizedConstructorKeepsNonPositiveSizesAndAllocatesNothing) {
    const ox_list<unsigned char> zero(0);
    EXPECT_EQ(zero.size(), 0);
    EXPECT_EQ(zero.get_capacity(), 0);
    EXPECT_EQ(zero.get_data(), nullptr);
    const ox_list<unsigned char> negative(-3);
    EXPECT_EQ(negative.size(), -3);
    EXPECT_EQ(negative.get_capacity(), 0);
    EXPECT_EQ(negative.get_data(), nullptr);
    EXPECT_EQ(negative.begin(), negative.end());
}

TEST(OxList, InsertionIntoAListOfNegativeCountTreatsItAsZero) {
    ox_list<int> list(-3);
    list.push_right(7);
    EXPECT_EQ(values_of(list), numbers{7});
    ox_list<int> shrunk = list_of({1, 2});
    shrunk.set_size(-5);
    shrunk.push_left(8);
    EXPECT_EQ(values_of(shrunk), numbers{8});
    EXPECT_EQ(shrunk.get_capacity(), 2);
}

TEST(OxList, InsertPutsTheValueBeforeThePosition) {
    ox_list<int> list = list_of({1, 2, 3});
    list.insert(1, 9);
    EXPECT_EQ(values_of(list), (numbers{1, 9, 2, 3}));
}

TEST(OxList, InsertClampsThePosition) {
    ox_list<int> list = list_of({1, 2});
    list.insert(-7, 0);
    list.insert(100, 3);
    EXPECT_EQ(values_of(list), (numbers{0, 1, 2, 3}));
}

TEST(OxList, InsertingAnOwnElementStoresTheValueItHadBeforeTheShift) {
    ox_list<int> full = list_of({1, 2, 3});
    full.insert(0, full[2]); // grows
    EXPECT_EQ(values_of(full), (numbers{3, 1, 2, 3}));
    ox_list<int> roomy = list_of({1, 2, 3, 4, 5});
    roomy.insert(1, roomy[1]); // shifts
    EXPECT_EQ(values_of(roomy), (numbers{1, 2, 2, 3, 4, 5}));
    ox_list<std::string> texts(1);
    texts[0] = "a text too long to be kept within the string";
    texts.push_right(texts[0]);
    EXPECT_EQ(texts[1], "a text too long to be kept within the string");
}

TEST(OxList, PrependingLeavesDescendingOrder) {
    ox_list<int> list;
    for (int i = 0; i < 100000; ++i) {
        list.push_left(i);
    }
    ASSERT_EQ(list.size(), 100000);
    EXPECT_EQ(list[0], 99999);
    for (int i = 0; i < 100000; ++i) {
        ASSERT_EQ(list[i], 99999 - i);
    }
}

TEST(OxList, AppendingLeavesAscendingOrder) {
    ox_list<int> list;
    for (int i = 0; i < 100000; ++i) {
        list.push_right(i);
    }
    ASSERT_EQ(list.size(), 100000);
    for (int i = 0; i < 100000; ++i) {
        ASSERT_EQ(list[i], i);
    }
}

TEST(OxList, RemovingFromAnEmptyListDoesNothing) {
    ox_list<int> list = list_of({1, 2, 3});
    list.set_size(0);
    list.remove_right();
    list.remove_left();
    EXPECT_EQ(list.size(), 0);
    EXPECT_EQ(list.get_capacity(), 3);
    ox_list<int> negative(-3);
    negative.remove_right();
    negative.remove_left();
    EXPECT_EQ(negative.size(), -3);
}

TEST(OxList, RemovingNeverReducesTheCapacity) {
    ox_list<int> list = list_of({1, 2, 3, 4, 5});
    const int* const data = list.get_data();
    while (list.size() > 0) {
        list.remove_right();
    }
    EXPECT_EQ(list.get_capacity(), 6);
    EXPECT_EQ(list.get_data(), data);
}

TEST(OxList, RemoveShiftsTheElementsAbove) {
    ox_list<int> list = list_of({1, 2, 3, 4});
    list.remove(1);
    EXPECT_EQ(values_of(list), (numbers{1, 3, 4}));
    list.remove_left();
    EXPECT_EQ(values_of(list), (numbers{3, 4}));
    list.remove_right();
    EXPECT_EQ(values_of(list), (numbers{3}));
}

TEST(OxList, RemovingOutOfRangeIsIgnored) {
    ox_list<int> list = list_of({1, 2});
    list.remove(-1);
    list.remove(2);
    EXPECT_EQ(values_of(list), (numbers{1, 2}));
}

TEST(OxList, RemovedElementsStayInTheirSlots) {
    ox_list<std::string> list(2);
    list[1] = "kept";
    list.remove_right();
    list.set_size(2);
    EXPECT_EQ(list[1], "kept");
}

TEST(OxList, SetSizeBeyondTheCapacityAllocatesExactlyThatMany) {
    ox_list<std::string> list(2);
    list[0] = "first";
    list.set_size(8);
    EXPECT_EQ(list.size(), 8);
    EXPECT_EQ(list.get_capacity(), 8);
    EXPECT_EQ(list[0], "first");
    EXPECT_EQ(list[7], "");
}

TEST(OxList, SetSizeWithinTheCapacityOnlySetsTheCount) {
    ox_list<int> list = list_of({1, 2, 3});
    const int* const data = list.get_data();
    list.set_size(1);
    EXPECT_EQ(list.get_capacity(), 3);
    list.set_size(3);
    EXPECT_EQ(list.get_data(), data);
    EXPECT_EQ(values_of(list), (numbers{1, 2, 3}));
}

TEST(OxList, SetSizeKeepsANegativeSizeAsGiven) {
    ox_list<int> list = list_of({1, 2, 3});
    list.set_size(-4);
    EXPECT_EQ(list.size(), -4);
    EXPECT_EQ(list.get_capacity(), 3);
    EXPECT_EQ(list.begin(), list.end());
    list.set_size(5); // no live element to copy
    EXPECT_EQ(list.get_capacity(), 5);
}

TEST(OxList, ClearReleasesTheArray) {
    ox_list<int> list = list_of({1, 2, 3});
    list.clear();
    EXPECT_EQ(list.size(), 0);
    EXPECT_EQ(list.get_capacity(), 0);
    EXPECT_EQ(list.get_data(), nullptr);
    list.clear();
    list.push_right(4);
    EXPECT_EQ(list.get_capacity(), 1);
}

TEST(OxList, CopyIsDeepAndTakesTheSpareSlots) {
    ox_list<std::string> list(3);
    list[2] = "spare";
    list.set_size(1);
    ox_list<std::string> copy(list);
    list[0] = "changed";
    EXPECT_EQ(copy.size(), 1);
    EXPECT_EQ(copy.get_capacity(), 3);
    EXPECT_EQ(copy[0], "");
    copy.set_size(3);
    EXPECT_EQ(copy[2], "spare");
}

TEST(OxList, AssignmentReplacesCountCapacityAndSlots) {
    ox_list<int> list = list_of({1, 2, 3, 4, 5});
    ox_list<int> target = list_of({9});
    target = list;
    list[0] = 100;
    EXPECT_EQ(values_of(target), (numbers{1, 2, 3, 4, 5}));
    EXPECT_EQ(target.get_capacity(), 6);
    target = ox_list<int>(-2);
    EXPECT_EQ(target.size(), -2);
    EXPECT_EQ(target.get_data(), nullptr);
}

TEST(OxList, AssignmentToItselfDoesNothing) {
    ox_list<int> list = list_of({1, 2, 3});
    const int* const data = list.get_data();
    ox_list<int>& same = list;
    list = same;
    EXPECT_EQ(list.get_data(), data);
    list = std::move(same);
    EXPECT_EQ(values_of(list), (numbers{1, 2, 3}));
}

TEST(OxList, CopiesUninitialisedElementsWithoutReadingThem) {
    const ox_list<bool> flags(100);
    const ox_list<bool> copy(flags);
    ox_list<bool> grown(flags);
    grown.set_size(200);
    EXPECT_EQ(copy.size(), 100);
    EXPECT_EQ(grown.size(), 200);
}

TEST(OxList, MovedFromListIsEmpty) {
    ox_list<int> list = list_of({1, 2, 3});
    ox_list<int> taken(std::move(list));
    EXPECT_EQ(values_of(taken), (numbers{1, 2, 3}));
    EXPECT_EQ(list.get_data(), nullptr);
    EXPECT_EQ(list.size(), 0);
    list = std::move(taken);
    EXPECT_EQ(values_of(list), (numbers{1, 2, 3}));
    EXPECT_EQ(taken.get_capacity(), 0);
}

TEST(OxList, IsEmptyWithoutElementsAndWithANegativeCount) {
    EXPECT_TRUE(ox_list<int>().empty());
    EXPECT_TRUE(ox_list<int>(-3).empty());
    EXPECT_FALSE(ox_list<int>(1).empty());
}

TEST(OxList, ReserveMakesRoomForExactlyThatManyAndKeepsTheElements) {
    ox_list<int> list = list_of({1, 2});
    list.reserve(10);
    EXPECT_EQ(list.get_capacity(), 10);
    EXPECT_EQ(values_of(list), (numbers{1, 2}));
    list.reserve(3);
    list.reserve(-1);
    EXPECT_EQ(list.get_capacity(), 10);
}

TEST(OxList, MovedValueIsTakenInsteadOfCopied) {
    ox_list<std::string> list;
    std::string text(100, 'x');
    const char* const characters = text.data();
    list.push_right(std::move(text));
    EXPECT_EQ(list[0].data(), characters);
    list.reserve(2);
    std::string other(100, 'y');
    const char* const others = other.data();
    list.push_right(std::move(other));
    EXPECT_EQ(list[1].data(), others);
}

TEST(OxList, MovedValuesMakeItGrowAsCopiedOnes) {
    ox_list<int> moved;
    ox_list<int> copied;
    for (int i = 0; i < 100; ++i) {
        moved.push_right(int{i});
        copied.push_right(i);
        ASSERT_EQ(moved.get_capacity(), copied.get_capacity());
    }
    EXPECT_EQ(values_of(moved), values_of(copied));
}

TEST(OxList, OwnElementMayBeMovedToItsEnd) {
    ox_list<std::string> list;
    list.push_right(std::string(100, 'x'));
    list.push_right(std::move(list[0])); // the array grows
    EXPECT_EQ(list[1], std::string(100, 'x'));
}

TEST(OxList, SwapExchangesTheContents) {
    ox_list<int> a = list_of({1, 2});
    ox_list<int> b = list_of({3});
    swap(a, b);
    EXPECT_EQ(values_of(a), (numbers{3}));
    EXPECT_EQ(values_of(b), (numbers{1, 2}));
}

TEST(OxList, IsMadeOfGivenElementsWithRoomForThese) {
    const ox_list<int> list = ox::ox_make_list({3, 1, 2});
    EXPECT_EQ(values_of(list), (numbers{3, 1, 2}));
    EXPECT_EQ(list.get_capacity(), 3);
    static_assert(std::is_same_v<ox_list<int>::value_type, int>);
}

TEST(OxList, DestroyingAPointerListLeavesTheObjects) {
    int value = 3;
    {
        ox_list<int*> list;
        list.push_right(&value);
        const ox_list<int*> copy(list);
        EXPECT_EQ(copy[0], &value);
        list.clear();
    }
    EXPECT_EQ(value, 3);
}

TEST(OxList, NestedListsAreCopiedDeeply) {
    ox_list<ox_list<float>> rows(2);
    rows[0].push_right(1.f);
    ox_list<ox_list<float>> copy(rows);
    rows[0][0] = 2.f;
    rows.push_right(rows[0]);
    EXPECT_EQ(copy[0][0], 1.f);
    EXPECT_EQ(rows[2][0], 2.f);
}

struct branch {
    int value = 0;
    ox_list<branch> children;
};

TEST(OxList, CanBeGivenAPartOfItself) {
    ox_list<branch> list(1);
    list[0].children.set_size(1);
    list[0].children[0].value = 5;
    list.push_left(list[0].children[0]);
    EXPECT_EQ(list[0].value, 5);
    list = list[1].children;
    ASSERT_EQ(list.size(), 1);
    EXPECT_EQ(list[0].value, 5);
    list[0].children.set_size(1);
    list[0].children[0].value = 6;
    list = std::move(list[0].children);
    EXPECT_EQ(list[0].value, 6);
}

TEST(OxList, BoolListIsAnArrayOfBool) {
    ox_list<bool> list;
    list.push_right(true);
    list.push_right(false);
    bool* const data = list.get_data();
    data[1] = true;
    EXPECT_TRUE(list[1]);
}

TEST(OxList, WorksWithRangeForAndTheStandardAlgorithms) {
    ox_list<int> list = list_of({3, 1, 2});
    std::sort(list.begin(), list.end());
    EXPECT_EQ(values_of(list), (numbers{1, 2, 3}));
    for (int& value : list) {
        value *= 2;
    }
    const ox_list<int>& read = list;
    EXPECT_EQ(std::accumulate(read.begin(), read.end(), 0), 12);
    EXPECT_EQ(read.at(1), 4);
    EXPECT_EQ(&read[1], read.get_data() + 1);
}

TEST(OxList, LayoutIsVirtualTableCountCapacityData) {
    struct layout {
        void* virtual_table;
        int count;
        int capacity;
        int* data;
    };
    ox_list<int> list = list_of({1, 2, 3, 4, 5});
    static_assert(sizeof(list) == sizeof(layout));
    layout fields;
    std::memcpy(&fields, static_cast<const void*>(&list), sizeof fields);
    EXPECT_EQ(fields.count, 5);
    EXPECT_EQ(fields.capacity, 6);
    EXPECT_EQ(fields.data, list.get_data());
    EXPECT_TRUE(std::has_virtual_destructor_v<ox_list<int>>);
}

} // namespace
