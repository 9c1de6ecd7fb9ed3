#include <ox/ox_functions.h>

#include <atomic>

namespace ox {

namespace {
std::atomic<unsigned int> last_date{0};
}

unsigned int ox_get_date() {
    return last_date;
}

unsigned int ox_get_new_date() {
    return ++last_date;
}

} // namespace ox
