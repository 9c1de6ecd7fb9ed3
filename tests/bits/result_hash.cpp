// Prints one line per topic: its name and the hash of the bits of all its results.

#include <cinttypes>
#include <cstdio>

#include <ox/core/ox_log.h>
#include <tests/bits/result_digest.h>

namespace {

void print_hash(const bits::topic& topic) {
    bits::result_digest digest;
    topic.run(digest);
    std::printf("%s %016" PRIx64 "\n", topic.name, digest.value());
}

} // namespace

int main() {
    for (const bits::topic& topic : bits::polygon_topics) {
        print_hash(topic);
    }
    for (const bits::topic& topic : bits::solid_topics) {
        print_hash(topic);
    }
    for (const bits::topic& topic : bits::csg_topics) {
        print_hash(topic);
    }
    for (const bits::topic& topic : bits::leaf_topics) {
        print_hash(topic);
    }
    ox_log_set(false); // the meshes' files report every step
    for (const bits::topic& topic : bits::mesh_topics) {
        print_hash(topic);
    }
    return 0;
}
