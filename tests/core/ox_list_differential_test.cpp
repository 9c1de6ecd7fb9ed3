#include <cstddef>
#include <gtest/gtest.h>
#include <ox/core/ox_list.h>
#include <random>
#include <string>
#include <tests/reference/plain_list.h>

namespace {

/// A number that starts at 0, so that every slot of a list of them can be compared.
struct number {
    number() = default;
    explicit number(int n) : value(n) {}
    friend bool operator==(const number& a, const number& b) { return a.value == b.value; }
    int value = 0;
};

template <typename T>
T make_value(int n);

template <>
number make_value<number>(int n) {
    return number(n);
}

template <>
std::string make_value<std::string>(int n) {
    return "a text too long to be kept within the string, number " + std::to_string(n);
}

/// A list and its plain version, given the same operations.
template <typename T>
struct pair_of_lists {
    ox::ox_list<T> tested;
    reference::plain_list<T> plain;

    void expect_equal() const {
        ASSERT_EQ(tested.size(), plain.count);
        ASSERT_EQ(tested.get_capacity(), plain.capacity());
        for (int i = 0; i < plain.capacity(); ++i) {
            ASSERT_EQ(tested.at(i), plain.slots[static_cast<std::size_t>(i)]) << "slot " << i;
        }
    }

    void insert(int position, const T& value) {
        tested.insert(position, value);
        plain.insert(position, value);
    }

    void insert_own_element(int position, int index) {
        if (index < plain.count) {
            const T value = plain.slots[static_cast<std::size_t>(index)];
            tested.insert(position, tested[index]);
            plain.insert(position, value);
        }
    }

    void push(bool right, const T& value) {
        right ? tested.push_right(value) : tested.push_left(value);
        plain.insert(right ? plain.count : 0, value);
    }

    void remove(int position) {
        tested.remove(position);
        plain.remove(position);
    }

    void remove_end(bool right) {
        right ? tested.remove_right() : tested.remove_left();
        plain.remove(right ? plain.count - 1 : 0);
    }

    void set_size(int n) {
        tested.set_size(n);
        plain.set_size(n);
    }

    void clear() {
        tested.clear();
        plain = {};
    }
};

template <typename T>
class random_operations {
public:
    void apply_one(pair_of_lists<T>& lists) {
        const T value = make_value<T>(draw(0, 999999));
        const int position = draw(-3, lists.plain.count + 3);
        switch (draw(0, 11)) {
        case 0:
        case 1:
            return lists.insert(position, value);
        case 2:
        case 3:
            return lists.insert_own_element(position, draw(0, 20));
        case 4:
        case 5:
        case 6:
            return lists.push(draw(0, 1) == 1, value);
        case 7:
            return lists.remove(position);
        case 8:
            return lists.remove_end(draw(0, 1) == 1);
        case 9:
            return lists.set_size(draw(-2, 30));
        case 10:
            lists = pair_of_lists<T>(lists); // copied, then taken
            return;
        default:
            return draw(0, 9) == 0 ? lists.clear() : lists.remove_end(true);
        }
    }

private:
    int draw(int first, int last) { return std::uniform_int_distribution<>(first, last)(engine); }

    std::mt19937 engine{20240607};
};

template <typename T>
void expect_equal_slots_after_random_operations() {
    random_operations<T> operations;
    pair_of_lists<T> lists;
    pair_of_lists<T> earlier;
    for (int step = 0; step < 20000; ++step) {
        operations.apply_one(lists);
        ASSERT_NO_FATAL_FAILURE(lists.expect_equal()) << "step " << step;
        if (step % 50 == 0) {
            ASSERT_NO_FATAL_FAILURE(earlier.expect_equal()) << "copy before step " << step;
            earlier = lists;
        }
    }
}

TEST(OxListAgainstPlainList, RandomOperationsOnPlainElementsLeaveTheSameSlots) {
    expect_equal_slots_after_random_operations<number>();
}

TEST(OxListAgainstPlainList, RandomOperationsOnTextsLeaveTheSameSlots) {
    expect_equal_slots_after_random_operations<std::string>();
}

} // namespace
