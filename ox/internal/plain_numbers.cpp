#include <ox/internal/plain_numbers.h>

#include <clocale>

namespace ox::internal {

#if defined(_WIN32)

plain_numbers::plain_numbers()
    : previous_mode(_configthreadlocale(_ENABLE_PER_THREAD_LOCALE)),
      previous_locale(std::setlocale(LC_NUMERIC, nullptr)) {
    std::setlocale(LC_NUMERIC, "C");
}

plain_numbers::~plain_numbers() {
    std::setlocale(LC_NUMERIC, previous_locale.c_str());
    _configthreadlocale(previous_mode);
}

#else

namespace {

/// Made once and kept; null, which leaves the locale as it is, when there is no memory for it.
locale_t plain_locale() {
    static const locale_t made = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    return made;
}

} // namespace

plain_numbers::plain_numbers() : previous_locale(uselocale(plain_locale())) {}

plain_numbers::~plain_numbers() {
    uselocale(previous_locale);
}

#endif

} // namespace ox::internal
