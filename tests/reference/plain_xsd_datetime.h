#ifndef TESTS_REFERENCE_PLAIN_XSD_DATETIME_H
#define TESTS_REFERENCE_PLAIN_XSD_DATETIME_H

#include <cstdio>
#include <ctime>
#include <string>

namespace reference {

/// Reads a date-time text with the C library. Defined as long as every number fits an int.
inline long long plain_from_xsd_datetime(const std::string& text) {
    std::tm fields{};
    const int found =
        std::sscanf(text.c_str(), "%4d-%2d-%2dT%d:%d:%d", &fields.tm_year, &fields.tm_mon,
                    &fields.tm_mday, &fields.tm_hour, &fields.tm_min, &fields.tm_sec);
    if (found < 6) {
        return 0;
    }
    fields.tm_year -= 1900;
    fields.tm_mon -= 1;
    const long long time = static_cast<long long>(std::mktime(&fields));
    return fields.tm_isdst > 0 ? time - 3600 : time;
}

} // namespace reference

#endif
