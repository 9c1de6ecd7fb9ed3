#ifndef TESTS_RELIABILITY_MISUSE_VALUES_H
#define TESTS_RELIABILITY_MISUSE_VALUES_H

#include <limits>
#include <new>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <ox/core/ox_list.h>
#include <ox/core/ox_log.h>
#include <ox/geometry/ox_3dvector.h>
#include <tests/support/allocation_meter.h>

/// What nobody should hand to a function, and somebody does.
namespace misuse {

using float_limits = std::numeric_limits<float>;
using int_limits = std::numeric_limits<int>;

inline const float floats[] = {0.0f,
                               -0.0f,
                               1.0f,
                               -2.5f,
                               float_limits::quiet_NaN(),
                               float_limits::infinity(),
                               -float_limits::infinity(),
                               float_limits::denorm_min(),
                               (float_limits::max)(),
                               -(float_limits::max)()};

inline const int ints[] = {0, 1, -1, 3, 17, 256, (int_limits::max)(), (int_limits::min)()};

/// Zero, an axis, and each extreme number in each place.
inline std::vector<ox::ox_3dvector> vectors() {
    std::vector<ox::ox_3dvector> all{ox::ox_3dvector(0.0f, 0.0f, 1.0f)};
    for (const float value : floats) {
        all.emplace_back(value, 0.0f, 1.0f);
        all.emplace_back(1.0f, value, 0.0f);
        all.emplace_back(value, value, value);
    }
    return all;
}

/// Nothing, one point, a square with an extreme number in it, and a list whose count is negative.
inline std::vector<ox::ox_list<ox::ox_3dvector>> contours() {
    std::vector<ox::ox_list<ox::ox_3dvector>> all(1);
    all.push_back(ox::ox_make_list({ox::ox_3dvector(1.0f, 1.0f, 0.0f)}));
    all.emplace_back(-5);
    for (const float value : floats) {
        all.push_back(ox::ox_make_list(
            {ox::ox_3dvector(0.0f, 0.0f, 0.0f), ox::ox_3dvector(2.0f, value, 0.0f),
             ox::ox_3dvector(2.0f, 2.0f, 0.0f), ox::ox_3dvector(0.0f, 2.0f, 0.0f)}));
    }
    return all;
}

inline std::vector<std::string> texts() {
    return {"",       std::string("\0", 1), std::string("a\0b", 3),  "\xff\xfe",
            "%s%n%d", "no-such-folder/x",   std::string(10000, 'x'), "-1e999",
            "#",      "\xed\xa0\x80"};
}

/// `object = object`, which compilers warn of.
template <typename Object>
void assign_to_itself(Object& object) {
    const Object& same = object;
    object = same;
}

/// Calls without the log, and with so little memory that what asks for too much is refused.
class Misuse : public ::testing::Test {
protected:
    Misuse() {
        ox_log_set(false);
        allocation_meter::start(std::size_t{64} << 20);
    }
    ~Misuse() override {
        allocation_meter::stop();
        ox_log_set(true);
    }

    /// Calls what may ask for more memory than there is.
    template <typename Call>
    static void call(const Call& what) {
        try {
            what();
        } catch (const std::bad_alloc&) {
        }
    }
};

} // namespace misuse

#endif
