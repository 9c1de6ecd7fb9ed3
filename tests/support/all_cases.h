#ifndef TESTS_SUPPORT_ALL_CASES_H
#define TESTS_SUPPORT_ALL_CASES_H

#include <cstdlib>
#include <string>

namespace support {

/// True where all cases shall run, which takes minutes: `OX_CHECK=1` in the environment.
inline bool runs_all_cases() {
    const char* const check = std::getenv("OX_CHECK");
    return check != nullptr && std::string(check) == "1";
}

/// `all`, or `usual` where not all cases run.
template <typename T>
T all_or(T all, T usual) {
    return runs_all_cases() ? all : usual;
}

} // namespace support

#endif
