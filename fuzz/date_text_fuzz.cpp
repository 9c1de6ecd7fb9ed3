// Reads the bytes as a date and time. A time that can be written is read back as itself, but for
// the hour that a change from daylight-saving time repeats.

#include <cstddef>
#include <cstdint>
#include <string>

#include <fuzz/require.h>
#include <ox/core/ox_chrono.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr long long longest_repeat = 7200;
    const long long time = ox::ox_chrono::from_xsd_datetime(std::string(data, data + size));
    const std::string written = ox::ox_chrono::to_xsd_datetime(time);
    if (!written.empty()) {
        const long long again = ox::ox_chrono::from_xsd_datetime(written);
        fuzz::require(again - time <= longest_repeat && time - again <= longest_repeat);
    }
    return 0;
}
