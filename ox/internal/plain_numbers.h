#ifndef OX_INTERNAL_PLAIN_NUMBERS_H
#define OX_INTERNAL_PLAIN_NUMBERS_H

#if defined(_WIN32)
#include <string>
#else
#include <locale.h>
#endif

namespace ox::internal {

/// While it lives, the C library writes and reads the numbers of this thread with a decimal point,
/// whatever locale the process has chosen.
class plain_numbers {
public:
    plain_numbers();
    ~plain_numbers();
    plain_numbers(const plain_numbers&) = delete;
    plain_numbers& operator=(const plain_numbers&) = delete;

private:
#if defined(_WIN32)
    int previous_mode;
    std::string previous_locale;
#else
    locale_t previous_locale;
#endif
};

} // namespace ox::internal

#endif
