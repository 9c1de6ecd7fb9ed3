#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <limits>
#include <ox/core/ox_chrono.h>
#include <random>
#include <string>
#include <tests/reference/plain_xsd_datetime.h>

namespace {

using ox::ox_chrono;

/// Sets the time zone of the process while it lives.
class time_zone {
public:
    explicit time_zone(const char* name) {
        if (const char* const current = std::getenv("TZ")) {
            former = current;
            was_set = true;
        }
        set(name);
    }
    ~time_zone() { set(was_set ? former.c_str() : nullptr); }
    time_zone(const time_zone&) = delete;
    time_zone& operator=(const time_zone&) = delete;

private:
    static void set(const char* name) {
#ifdef _WIN32
        _putenv_s("TZ", name != nullptr ? name : "");
        _tzset();
#else
        name != nullptr ? setenv("TZ", name, 1) : unsetenv("TZ");
        tzset();
#endif
    }

    std::string former;
    bool was_set = false;
};

const char* const utc = "UTC0";
#ifndef _WIN32
const char* const central_europe = "CET-1CEST,M3.5.0,M10.5.0/3";
#endif

TEST(XsdDatetime, IsWrittenWithAFinalZ) {
    const time_zone zone(utc);
    EXPECT_EQ(ox_chrono::to_xsd_datetime(0), "1970-01-01T00:00:00Z");
    EXPECT_EQ(ox_chrono::to_xsd_datetime(1717763696), "2024-06-07T12:34:56Z");
}

TEST(XsdDatetime, TimeTheCalendarCannotHoldIsWrittenAsAnEmptyText) {
    EXPECT_EQ(ox_chrono::to_xsd_datetime((std::numeric_limits<long long>::max)()), "");
    EXPECT_EQ(ox_chrono::to_xsd_datetime((std::numeric_limits<long long>::min)()), "");
}

TEST(XsdDatetime, YearOfFiveDigitsIsWrittenAsAnEmptyText) {
    const time_zone zone(utc);
#ifndef _WIN32
    EXPECT_EQ(ox_chrono::to_xsd_datetime(253402300799), "9999-12-31T23:59:59Z");
#endif
    EXPECT_EQ(ox_chrono::to_xsd_datetime(253402300800), "");
}

TEST(XsdDatetime, IsReadBack) {
    const time_zone zone(utc);
    EXPECT_EQ(ox_chrono::from_xsd_datetime("2024-06-07T12:34:56Z"), 1717763696);
}

TEST(XsdDatetime, WhateverFollowsTheSecondsIsIgnored) {
    const time_zone zone(utc);
    EXPECT_EQ(ox_chrono::from_xsd_datetime("2024-06-07T12:34:56"), 1717763696);
    EXPECT_EQ(ox_chrono::from_xsd_datetime("2024-06-07T12:34:56.789+02:00"), 1717763696);
    EXPECT_EQ(ox_chrono::from_xsd_datetime("2024-06-07T12:34:56 and more"), 1717763696);
}

TEST(XsdDatetime, TextWithFewerThanSixNumbersIsReadAsZero) {
    const char* const texts[] = {"",
                                 "2024",
                                 "2024-06",
                                 "2024-06-07",
                                 "2024-06-07T12",
                                 "2024-06-07T12:34",
                                 "2024-06-07T12:34:",
                                 "2024-06-07T12:34:Z",
                                 "2024-06-07 12:34:56",
                                 "20240-06-07T12:34:56",
                                 "2024 -06-07T12:34:56",
                                 "two thousand"};
    for (const char* text : texts) {
        EXPECT_EQ(ox_chrono::from_xsd_datetime(text), 0) << text;
    }
}

TEST(XsdDatetime, NulEndsTheText) {
    EXPECT_EQ(ox_chrono::from_xsd_datetime(std::string("2024-06-07T12:34:\00056", 19)), 0);
}

TEST(XsdDatetime, SpacesAndSignsBeforeNumbersAreAccepted) {
    const time_zone zone(utc);
    EXPECT_EQ(ox_chrono::from_xsd_datetime(" 2024- 6-\t7T 12:+34: 56"), 1717763696);
    EXPECT_EQ(ox_chrono::from_xsd_datetime("2024-06-07T13:-26:56"), 1717763696);
}

TEST(XsdDatetime, FieldsOutsideTheirRangeCarryOver) {
    const time_zone zone(utc);
    EXPECT_EQ(ox_chrono::from_xsd_datetime("2023-18-07T12:34:56Z"), 1717763696);
    EXPECT_EQ(ox_chrono::from_xsd_datetime("2024-06-06T36:33:116Z"), 1717763696);
}

#ifndef _WIN32

TEST(XsdDatetime, FieldsAreLocalTime) {
    const time_zone zone(central_europe);
    EXPECT_EQ(ox_chrono::to_xsd_datetime(1717763696), "2024-06-07T14:34:56Z");
    EXPECT_EQ(ox_chrono::from_xsd_datetime("2024-06-07T14:34:56Z"), 1717763696);
    EXPECT_EQ(ox_chrono::to_xsd_datetime(0), "1970-01-01T01:00:00Z");
}

TEST(XsdDatetime, RoundTripReturnsTheTimeOutsideTheRepeatedHour) {
    std::mt19937_64 engine(20240607);
    std::uniform_int_distribution<long long> times(-2000000000, 4000000000);
    for (const char* name : {utc, central_europe, "EST5EDT,M3.2.0,M11.1.0", "XXX-5:45"}) {
        const time_zone zone(name);
        for (int i = 0; i < 5000; ++i) {
            const long long time = times(engine);
            const std::string text = ox_chrono::to_xsd_datetime(time);
            const bool repeated = text == ox_chrono::to_xsd_datetime(time - 3600) ||
                                  text == ox_chrono::to_xsd_datetime(time + 3600);
            if (!repeated) {
                ASSERT_EQ(ox_chrono::from_xsd_datetime(text), time) << text << " in " << name;
            }
        }
    }
}

TEST(XsdDatetime, NumberThatDoesNotFitAnIntCountsAsTheNearestThatDoes) {
    const time_zone zone(utc);
    EXPECT_EQ(ox_chrono::from_xsd_datetime("1970-01-01T00:00:99999999999999999999999999"),
              2147483647);
    EXPECT_EQ(ox_chrono::from_xsd_datetime("1970-01-01T00:00:-99999999999999999999999999"),
              -2147483648LL);
    EXPECT_EQ(ox_chrono::from_xsd_datetime("1970-01-01T00:00:-2147483648"), -2147483648LL);
    EXPECT_EQ(ox_chrono::from_xsd_datetime("1970-01-01T00:00:2147483648"), 2147483647);
    const std::string digits(100000, '9');
    EXPECT_EQ(ox_chrono::from_xsd_datetime("1970-01-01T" + digits + ":-" + digits + ":0"),
              2147483647LL * 3600 - 2147483648LL * 60);
}

TEST(XsdDatetime, RandomTextsAreReadAsTheCLibraryReadsThem) {
    const time_zone zone(central_europe);
    const std::string characters = "0123456789-:T +\tZx";
    std::mt19937 engine(20240607);
    std::uniform_int_distribution<std::size_t> positions(0, 24);
    std::uniform_int_distribution<std::size_t> choices(0, characters.size() - 1);
    std::uniform_int_distribution<int> edits(0, 3);
    for (int i = 0; i < 50000; ++i) {
        std::string text = "2024-10-27T02:34:56.5Z";
        for (int edit = edits(engine); edit > 0; --edit) {
            const std::size_t position = positions(engine) % text.size();
            text.replace(position, positions(engine) % 2, 1, characters[choices(engine)]);
        }
        ASSERT_EQ(ox_chrono::from_xsd_datetime(text), reference::plain_from_xsd_datetime(text))
            << '"' << text << '"';
    }
}

#endif

} // namespace
