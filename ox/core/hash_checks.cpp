// The self-checks of the ordered map: a few entries in and out, and the times of many.

#include <ox/ox_functions.h>

#include <ox/core/ox_chrono.h>
#include <ox/core/ox_hash.h>
#include <ox/core/ox_list.h>
#include <ox/core/ox_log.h>
#include <ox/internal/log_line.h>

namespace ox {

using namespace internal;

namespace {

constexpr int entries = 100000;

using int_list = ox_list<int>;
using int_hash = ox_hash<int, int>;

void log_time(const char* phase, const ox_chrono& chrono, int count) {
    log_line("%s %d : %f (%d)", phase, entries, chrono.elapsed(), count);
}

/// Logs how long `work` takes, and how many entries the container has afterwards.
template <typename container, typename operation>
void time(const char* phase, container& measured, const operation& work) {
    ox_chrono chrono;
    chrono.reset();
    chrono.start();
    work(measured);
    log_time(phase, chrono, static_cast<int>(measured.size()));
}

void set_each_and_count(int_hash& hash) {
    for (int i = 0; i < entries; ++i) {
        hash.set(i, i);
        if (hash.size() != static_cast<unsigned int>(i + 1)) {
            ox_log_thread_safe("erreur");
        }
    }
}

void log_number_of_keys(const int_hash& hash) {
    log_line("ox_hash size %d", hash.get_keys().size());
}

/// Does `work(key)` for every key of [first, last], down where the last one is smaller.
template <typename operation>
void for_each_key(int first, int last, const operation& work) {
    const int step = first <= last ? 1 : -1;
    for (int key = first; key != last + step; key += step) {
        work(key);
    }
}

template <typename operation>
void for_ascending(const operation& work) {
    for_each_key(0, entries - 1, work);
}

template <typename operation>
void for_descending(const operation& work) {
    for_each_key(entries - 1, 0, work);
}

void time_right_ends() {
    int_list list;
    time("ox_list push right", list,
         [](int_list& l) { for_ascending([&l](int i) { l.push_right(i); }); });
    time("ox_list remove right", list,
         [](int_list& l) { for_ascending([&l](int) { l.remove_right(); }); });

    int_hash hash;
    time("ox_hash push right", hash, set_each_and_count);
    log_number_of_keys(hash);
    time("ox_hash remove right", hash,
         [](int_hash& h) { for_descending([&h](int i) { h.remove(i); }); });
}

void time_left_ends() {
    int_list list;
    time("ox_list push left", list,
         [](int_list& l) { for_ascending([&l](int i) { l.push_left(i); }); });
    time("ox_list remove left", list,
         [](int_list& l) { for_ascending([&l](int) { l.remove_left(); }); });

    int_hash hash;
    time("ox_hash push left", hash,
         [](int_hash& h) { for_descending([&h](int i) { h.set(i, i); }); });
    time("ox_hash remove left", hash,
         [](int_hash& h) { for_ascending([&h](int i) { h.remove(i); }); });
}

/// Sets every key of [first, last] to itself, and tells whether all are then found.
bool set_each(int_hash& hash, int first, int last) {
    bool found = true;
    for_each_key(first, last, [&](int key) {
        hash.set(key, key);
        int value = 0;
        found = found && hash.get(key, value) && value == key;
    });
    return found;
}

void remove_each(int_hash& hash, int first, int last) {
    for_each_key(first, last, [&hash](int key) { hash.remove(key); });
}

} // namespace

bool ox_hash_unitary_test() {
    int_hash hash;
    const auto grows_to = [&hash](int first, int last, unsigned int size) {
        return set_each(hash, first, last) && hash.size() == size;
    };
    if (!grows_to(150, 159, 10) || !grows_to(140, 131, 20) || !grows_to(140, 131, 20)) {
        return false;
    }
    hash.rebalance();
    remove_each(hash, 150, 159);
    if (hash.size() != 10) {
        return false;
    }
    remove_each(hash, 140, 131);
    return hash.size() == 0;
}

void ox_hash_performance_test() {
    time_right_ends();
    time_left_ends();
}

} // namespace ox
