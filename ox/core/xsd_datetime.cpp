#include <ox/core/ox_chrono.h>

#include <cstddef>
#include <ctime>
#include <limits>
#include <string>

// Date-time texts of the form YYYY-MM-DDThh:mm:ssZ, with the fields in local time.

namespace ox {

namespace {

constexpr int seconds_per_hour = 3600;

/// Fills `fields` with the local time of `time`; false when the calendar has no such time.
bool to_local_time(std::time_t time, std::tm& fields) {
#if defined(_WIN32)
    return localtime_s(&fields, &time) == 0;
#else
    tzset(); // localtime_r need not notice a change of the time zone
    return localtime_r(&time, &fields) != nullptr;
#endif
}

bool is_space(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

/// Reads numbers and separators off the front of a text, which a NUL ends at the latest. It
/// accepts what the formatted input of the C library accepts, but defines what it leaves
/// undefined: a number that does not fit an int.
class datetime_scanner {
public:
    explicit datetime_scanner(const std::string& text) : next(text.c_str()) {}

    /// Skips white space, then reads an optional sign and digits, together at most `width`
    /// characters. False when there is no digit.
    bool read_number(std::size_t width, int& number) {
        while (is_space(*next)) {
            ++next;
        }
        const bool negative = *next == '-';
        if (negative || *next == '+') {
            ++next;
            --width;
        }
        if (width == 0 || !is_digit(*next)) {
            return false;
        }
        const long long limit = negative ? largest + 1 : largest;
        long long magnitude = 0;
        for (; width > 0 && is_digit(*next); ++next, --width) {
            const long long grown = magnitude * 10 + (*next - '0');
            magnitude = grown < limit ? grown : limit;
        }
        number = static_cast<int>(negative ? -magnitude : magnitude);
        return true;
    }

    /// Reads exactly the character `separator`.
    bool read(char separator) {
        if (*next != separator) {
            return false;
        }
        ++next;
        return true;
    }

private:
    static constexpr long long largest = (std::numeric_limits<int>::max)();

    const char* next;
};

/// Reads the six fields; false when one is missing.
bool scan_datetime(const std::string& text, std::tm& fields) {
    constexpr std::size_t any_width = (std::numeric_limits<std::size_t>::max)();
    datetime_scanner scanner(text);
    int year = 0;
    int month = 0;
    const bool complete = scanner.read_number(4, year) && scanner.read('-') &&
                          scanner.read_number(2, month) && scanner.read('-') &&
                          scanner.read_number(2, fields.tm_mday) && scanner.read('T') &&
                          scanner.read_number(any_width, fields.tm_hour) && scanner.read(':') &&
                          scanner.read_number(any_width, fields.tm_min) && scanner.read(':') &&
                          scanner.read_number(any_width, fields.tm_sec);
    fields.tm_year = year - 1900;
    fields.tm_mon = month - 1;
    return complete;
}

} // namespace

std::string ox_chrono::to_xsd_datetime(long long t) {
    std::tm fields{};
    if (!to_local_time(static_cast<std::time_t>(t), fields)) {
        return std::string();
    }
    char text[21]; // YYYY-MM-DDThh:mm:ssZ and the final NUL: longer years do not fit
    return std::string(text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &fields));
}

long long ox_chrono::from_xsd_datetime(const std::string& s) {
    std::tm fields{};
    if (!scan_datetime(s, fields)) {
        return 0;
    }
    long long time = static_cast<long long>(std::mktime(&fields));
    if (fields.tm_isdst > 0) {
        time -= seconds_per_hour;
    }
    return time;
}

} // namespace ox
