#include <tests/reliability/misuse/values.h>

#include <stdexcept>

#include <ox/core/ox_chrono.h>
#include <ox/core/ox_mutex.h>
#include <ox/core/ox_random.h>
#include <ox/ox_functions.h>

namespace misuse {

namespace {

using ox::ox_list;

TEST_F(Misuse, OfTexts) {
    for (const std::string& text : texts()) {
        ox_to_utf8(text);
        ox_to_lower(ox_to_upper(text));
        ox_hex_ansi_to_ansi(text);
        EXPECT_NO_THROW(ox::ox_chrono::from_xsd_datetime(text));
        for (const auto convert : {ox_to_ansi, ox_hex_ansi_to_utf8}) {
            try {
                convert(text);
            } catch (const std::range_error&) {
            }
        }
    }
    EXPECT_EQ(ox_uuid().size(), 24u);
}

TEST_F(Misuse, OfBytes) {
    const unsigned char one = 1;
    for (const int n : {0, -1, (int_limits::min)()}) {
        EXPECT_EQ(ox_from_char_ptr(nullptr, n).size(), n);
        EXPECT_EQ(ox_from_uchar_ptr(&one, n).size(), n);
        const ox_list<unsigned char> negative(n);
        EXPECT_EQ(ox_to_b64(negative).size() + ox_from_b64(negative).size(), 0);
        EXPECT_EQ(ox_to_hexa(negative), "");
    }
    EXPECT_EQ(ox_from_char_ptr(nullptr, (int_limits::max)()).size(), 0);
    EXPECT_EQ(ox_from_uchar_ptr(nullptr, 5).size(), 0);
    for (const std::string& text : texts()) {
        ox_from_b64(ox_to_b64(ox_from_stdstring(text)));
    }
}

TEST_F(Misuse, OfTheLog) {
    ox_set_log_file("no-such-folder/log.txt");
    ox_log_set(true);
    EXPECT_TRUE(ox_log_get());
    ox_log(nullptr);
    ox_log_thread_safe(nullptr);
    for (const std::string& text : texts()) {
        ox_set_log_file(text.c_str());
        ox_log("kept nowhere");
    }
    ox_set_log_file(nullptr);
    ox_log_set(false);
    ox_log_std_output(true);
    ox_log("%s%n%d");
    ox_log_std_output(false);
}

TEST_F(Misuse, OfChronoMutexAndRandom) {
    ox::ox_chrono chrono;
    assign_to_itself(chrono);
    chrono.swap(chrono);
    chrono.pause();
    chrono.start();
    chrono.start();
    chrono.reset();
    EXPECT_EQ(chrono.elapsed(), 0.0);
    EXPECT_GT(ox::ox_chrono::now(), 0);
    EXPECT_GT(ox::ox_chrono::now_ms(), 0);
    for (const long long time : {(std::numeric_limits<long long>::max)(),
                                 (std::numeric_limits<long long>::min)(), 0LL, -1LL}) {
        ox::ox_chrono::to_xsd_datetime(time);
    }
    ox::ox_mutex mutex;
    assign_to_itself(mutex);
    mutex.lock();
    const ox::ox_mutex copy(mutex);
    mutex.unlock();
    for (const int a : ints) {
        ox::ox_random random(a);
        for (const int b : ints) {
            random.dice(a, b);
        }
        assign_to_itself(random);
        random.swap(random);
        random.dice_0_1();
        random.dice_vector();
    }
}

TEST_F(Misuse, OfNumbers) {
    for (const float value : floats) {
        const double wide = static_cast<double>(value) * 1e300;
        int d = 0;
        int m = 0;
        double s = 0.0;
        double x = wide;
        double y = wide;
        ox_acos(value);
        ox_asin(wide);
        ox_convert_angle(wide, d, m, s);
        ox_lambert93_to_longitude_latitude(wide, wide, x, y);
        ox_longitude_latitude_to_lambert93(wide, wide, x, y);
        ox_longitude_latitude_to_meters(x, x, x, x);
        ox_meters_to_longitude_latitude(ox::ox_3dvector(value, value, value), x, y);
        const ox_list<float> one = ox::ox_make_list({value});
        const ox_list<float> four = ox::ox_make_list({value, 1.0f, value, value});
        ox_solve_system(one, one);
        ox_solve_system(four, one);
        ox_reverse_matrix(four);
        ox_reverse_matrix(ox_list<float>(-3));
    }
}

/// These take nothing that could be wrong.
TEST_F(Misuse, IsNotPossibleWithoutArguments) {
    ox_get_new_date();
    EXPECT_GT(ox_get_date(), 0u);
    EXPECT_GE(ox_get_peak_memory_occupation(), 0);
    EXPECT_GE(ox_get_memory_occupation(), 0);
    EXPECT_GE(ox_get_memory_occupation_mb(), 0.0);
    EXPECT_TRUE(ox_hash_unitary_test());
    EXPECT_TRUE(oxut_solve_system());
    EXPECT_TRUE(oxut_reverse_matrix());
}

} // namespace

} // namespace misuse
