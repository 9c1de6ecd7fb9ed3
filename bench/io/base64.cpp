#include <numeric>

#include <bench/peers/openssl.h>
#include <ox/ox_functions.h>

#include "workloads.h"

namespace bench {
namespace {

using ox::ox_list;
using bytes_type = ox_list<unsigned char>;

constexpr long mebibyte = 1024 * 1024;

bytes_type changing_bytes(long count) {
    bytes_type bytes(static_cast<int>(count));
    unsigned int state = 1;
    for (unsigned char& byte : bytes) {
        state = state * 1664525u + 1013904223u;
        byte = static_cast<unsigned char>(state >> 24);
    }
    return bytes;
}

std::shared_ptr<const peers::byte_list> to_peer(const bytes_type& bytes) {
    return std::make_shared<const peers::byte_list>(bytes.begin(), bytes.end());
}

std::vector<fact> facts_of(const bytes_type& made) {
    return {{"size", static_cast<double>(made.size()), 0.0},
            {"sum", static_cast<double>(std::accumulate(made.begin(), made.end(), 0ll)), 0.0}};
}

using coding = bytes_type (*)(const bytes_type&);

contest code(const bytes_type& input, coding ours, const contestant& peer) {
    const auto kept = std::make_shared<const bytes_type>(input);
    contest rules;
    rules.ours = make_contestant(
        "ox_utilities", [] { return bytes_type(); }, [=](bytes_type& made) { made = ours(*kept); },
        facts_of);
    rules.peers = {peer};
    rules.goal = 0.8;
    return rules;
}

contest encode(long mebibytes) {
    const bytes_type bytes = changing_bytes(mebibytes * mebibyte);
    return code(bytes, ox::ox_to_b64, peers::openssl_encode(to_peer(bytes)));
}

contest decode(long mebibytes) {
    const bytes_type text = ox::ox_to_b64(changing_bytes(mebibytes * mebibyte));
    return code(text, ox::ox_from_b64, peers::openssl_decode(to_peer(text)));
}

} // namespace

std::vector<workload> base64_workloads() {
    return {workload{"Base64 encoded", "MiB", {1, 8, 64}, {1, 4, 16}, encode}.judged_from(64),
            workload{"Base64 decoded", "MiB", {1, 8, 64}, {1, 4, 16}, decode}.judged_from(64)};
}

} // namespace bench
