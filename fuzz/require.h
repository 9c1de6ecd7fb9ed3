#ifndef OX_FUZZ_REQUIRE_H
#define OX_FUZZ_REQUIRE_H

#include <cstdlib>

namespace fuzz {

/// Ends the process where what every input has to keep is not so: that is a finding.
inline void require(bool is_true) {
    if (!is_true) {
        std::abort();
    }
}

} // namespace fuzz

#endif
