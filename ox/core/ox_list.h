#ifndef OX_CORE_OX_LIST_H
#define OX_CORE_OX_LIST_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

namespace ox {

/// A growable, contiguous array: the one sequence type of the library.
///
/// Representation: a virtual table, then `count`, `capacity` and `data` in that order. `data` is
/// an array of `capacity` default-constructed elements made with array-new, null when `capacity`
/// is 0. Elements `[0, count)` are live; the spare slots `[count, capacity)` keep whatever they
/// held, removed elements included. Elements travel by copy-assignment in ascending order.
///
/// Invariant: `0 <= count <= capacity`, except that a non-positive size given to the sized
/// constructor or to `set_size` is kept as it is. A negative count reads as an empty list, and the
/// next insertion treats it as 0.
///
/// Degenerate input:
/// - a position outside the list: clamped by `insert`, ignored by `remove`;
/// - an index outside `[0, capacity)` given to `operator[]` or `at`: undefined, there is no check;
/// - an element of the list itself as the value to insert: its value at the call is stored.
///
/// Ownership: the list owns its array, never what pointer elements point to. Copies are deep (each
/// has an array of its own), but pointers are copied as pointers. References and iterators live
/// until the next change of the list.
///
/// Allocation failure leaves the list as it was and reaches the caller as `std::bad_alloc` (or
/// `std::bad_array_new_length`, which is one).
///
/// `T` needs a default constructor, a copy constructor and copy assignment; moving it is used where
/// it can be moved.
///
///     ox::ox_list<int> numbers;
///     numbers.push_right(2);
///     numbers.push_left(1);
///     for (int number : numbers) { ... } // 1, then 2
template <typename T>
class ox_list {
public:
    using value_type = T;            ///< what it holds
    using iterator = T*;             ///< lives until the next change of the list
    using const_iterator = const T*; ///< lives until the next change of the list

    /// An empty list. Allocates nothing.
    ox_list() = default;

    /// A list of `n` default-constructed elements; elements of plain types are uninitialised. For
    /// `n` below 1 it allocates nothing and keeps `n` as its count. O(n).
    explicit ox_list(int n) : count(n), capacity(n < 1 ? 0 : n), data(new_array(capacity)) {}

    /// A copy with the same count and capacity, spare slots included. O(capacity).
    ox_list(const ox_list& other)
        : count(other.count), capacity(other.capacity),
          data(new_array_from(other.data, other.capacity, other.capacity)) {}

    /// Takes the array of `other`, which becomes empty. O(1).
    ox_list(ox_list&& other) noexcept { exchange(other); }

    /// Becomes a copy of `other`, spare slots included; nothing happens when it is the same list.
    /// The old array goes last, so `other` may be a part of this list. O(capacity).
    ox_list& operator=(const ox_list& other) {
        if (this != &other) {
            ox_list copy(other);
            exchange(copy);
        }
        return *this;
    }

    /// Takes the array of `other`, which becomes empty; nothing happens when it is the same list.
    ox_list& operator=(ox_list&& other) noexcept {
        if (this != &other) {
            ox_list taken(std::move(other));
            exchange(taken);
        }
        return *this;
    }

    /// Releases the array; what pointer elements point to is left alone.
    virtual ~ox_list() { delete[] data; }

    // Reading

    /// The number of elements, negative when a negative size was asked for.
    int size() const { return count; }

    /// True if there is no element: the count is 0 or negative. O(1).
    bool empty() const { return count < 1; }

    /// The number of elements the array has room for.
    int get_capacity() const { return capacity; }

    /// The array, null when the capacity is 0. It stays the list's own.
    T* get_data() { return data; }

    /// The array, null when the capacity is 0. It stays the list's own.
    const T* get_data() const { return data; }

    /// Element `index`, which is not checked. O(1).
    T& operator[](int index) { return data[index]; }

    /// Element `index`, which is not checked. O(1).
    const T& operator[](int index) const { return data[index]; }

    /// Element `index`, which is not checked. O(1).
    const T& at(int index) const { return data[index]; }

    /// The first element; equal to `end()` when the count is not positive.
    T* begin() { return data; }

    /// The first element; equal to `end()` when the count is not positive.
    const T* begin() const { return data; }

    /// One past the last element.
    T* end() { return data + live_count(); }

    /// One past the last element.
    const T* end() const { return data + live_count(); }

    // Inserting

    /// Inserts `value` before element `position`, which is clamped to `[0, count]`; a negative
    /// count becomes 0 first. A full array grows by half its capacity, at least by one element:
    /// 1, 2, 3, 4, 6, 9, 13, 19, ... O(count - position), amortised.
    void insert(int position, const T& value) {
        const T kept(value); ///< may be an element that the growth or the shift moves
        const int live = live_count();
        if (live >= capacity) {
            reallocate(grown_capacity(live));
        }
        const int place = std::clamp(position, 0, live);
        std::copy_backward(data + place, data + live, data + live + 1);
        data[place] = kept;
        count = live + 1;
    }

    /// Appends `value`. Amortised O(1).
    void push_right(const T& value) { insert(count, value); }

    /// Appends `value`, which is moved from, growing as `insert` does. Amortised O(1).
    void push_right(T&& value) {
        const int live = live_count();
        if (live >= capacity) {
            const int grown = grown_capacity(live);
            std::unique_ptr<T[]> array(new_array_from(data, live, grown));
            array[static_cast<std::size_t>(live)] = std::move(value); // may be one of the old array
            delete[] data;
            data = array.release();
            capacity = grown;
        } else {
            data[live] = std::move(value);
        }
        count = live + 1;
    }

    /// Prepends `value`. O(count): every element is shifted.
    void push_left(const T& value) { insert(0, value); }

    // Removing

    /// Removes element `position`; nothing happens when there is none. The capacity stays.
    /// O(count - position).
    void remove(int position) {
        if (position < 0 || position >= count) {
            return;
        }
        std::copy(data + position + 1, data + count, data + position);
        --count;
    }

    /// Removes the last element; nothing happens when there is none. O(1).
    void remove_right() { remove(live_count() - 1); }

    /// Removes the first element; nothing happens when there is none. O(count).
    void remove_left() { remove(0); }

    // Resizing

    /// Sets the count to `n`. Beyond the capacity the array is replaced by one of exactly `n`
    /// elements that keeps the live ones; otherwise only the count changes, so slots that come
    /// back into use hold what they held before. A negative `n` is kept as it is. O(n).
    void set_size(int n) {
        reserve(n);
        count = n;
    }

    /// Makes the array one of exactly `n` elements when it has fewer, so that the list can grow to
    /// that count without another. The count and the elements stay. O(n).
    void reserve(int n) {
        if (n > 0 && n > capacity) { // the first test spares compilers a false warning
            reallocate(n);
        }
    }

    /// Exchanges the contents of two lists. O(1).
    void swap(ox_list& other) noexcept { exchange(other); }

    /// Releases the array: count and capacity become 0.
    void clear() {
        ox_list released;
        exchange(released);
    }

private:
    int live_count() const { return count > 0 ? count : 0; }

    static T* new_array(int n) { return n < 1 ? nullptr : new T[static_cast<std::size_t>(n)]; }

    /// A new array of `n` elements, the first `copied` of them taken from `source`, null for none.
    /// Plain values are copied as bytes, since spare slots may never have been given a value.
    static T* new_array_from(const T* source, int copied, int n) {
        std::unique_ptr<T[]> array(new_array(n));
        if (array == nullptr || source == nullptr || copied < 1) {
            return array.release();
        }
        const std::size_t length = static_cast<std::size_t>(copied);
        if constexpr (std::is_trivially_copyable_v<T>) {
            std::memcpy(static_cast<void*>(array.get()), static_cast<const void*>(source),
                        length * sizeof(T));
        } else {
            std::copy(source, source + length, array.get());
        }
        return array.release();
    }

    /// The capacity after growing a full array of `live` elements. Growth by half that no longer
    /// fits an int falls back to one more element, and that to an allocation failure.
    int grown_capacity(int live) const {
        constexpr std::int64_t largest = (std::numeric_limits<int>::max)();
        const std::int64_t needed = std::int64_t{live} + 1;
        const std::int64_t grown = std::int64_t{capacity} + capacity / 2;
        if (needed > largest) {
            throw std::bad_array_new_length();
        }
        return static_cast<int>(grown > needed && grown <= largest ? grown : needed);
    }

    void reallocate(int n) {
        T* array = new_array_from(data, live_count(), n);
        delete[] data;
        data = array;
        capacity = n;
    }

    void exchange(ox_list& other) noexcept {
        std::swap(count, other.count);
        std::swap(capacity, other.capacity);
        std::swap(data, other.data);
    }

    int count = 0;
    int capacity = 0;
    T* data = nullptr;
};

/// Exchanges the contents of two lists. O(1).
template <typename T>
void swap(ox_list<T>& a, ox_list<T>& b) noexcept {
    a.swap(b);
}

/// A list of the given elements, with room for exactly these: `ox_make_list({1, 2, 3})`. O(n).
template <typename T>
ox_list<T> ox_make_list(std::initializer_list<T> elements) {
    ox_list<T> list;
    list.set_size(static_cast<int>(elements.size()));
    std::copy(elements.begin(), elements.end(), list.begin());
    return list;
}

} // namespace ox

using ox::ox_make_list;

#endif
