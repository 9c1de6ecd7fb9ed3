#include <ox/ox_functions.h>

#include <algorithm>
#include <array>
#include <cstddef>

#include <ox/core/ox_chrono.h>
#include <ox/core/ox_mutex.h>
#include <ox/core/ox_random.h>

namespace ox {

namespace {

constexpr int random_seed = 54873;
constexpr std::size_t time_byte_count = 8;
constexpr std::size_t random_byte_count = 4;

using identifier_bytes = std::array<unsigned char, time_byte_count + random_byte_count>;

/// Gives out the bytes of identifiers, one caller at a time.
class identifier_source {
public:
    identifier_bytes next() {
        identifier_bytes bytes{};
        mutex.lock();
        last_time = std::max(ox_chrono::now(), last_time + 1);
        for (std::size_t i = 0; i < time_byte_count; ++i) {
            bytes[i] = static_cast<unsigned char>((last_time >> (8 * i)) & 255);
        }
        for (std::size_t i = time_byte_count; i < bytes.size(); ++i) {
            bytes[i] = static_cast<unsigned char>(random.dice(0, 255));
        }
        mutex.unlock();
        return bytes;
    }

private:
    ox_random random{random_seed};
    ox_mutex mutex;
    long long last_time = 0; // seconds
};

} // namespace

std::string ox_uuid() {
    // Never destroyed: threads may ask for identifiers until the process ends.
    static identifier_source* const source = new identifier_source;
    const identifier_bytes bytes = source->next();
    return ox_to_hexa(ox_from_uchar_ptr(bytes.data(), static_cast<int>(bytes.size())));
}

} // namespace ox
