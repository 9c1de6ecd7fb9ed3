// Drives hash tables and maps through the same changes. They hold the same entries all the time.

#include <map>

#include <fuzz/byte_reader.h>
#include <fuzz/require.h>
#include <ox/core/ox_hash.h>

namespace {

using fuzz::byte_reader;
using table = ox::ox_hash<int, int>;
using map = std::map<int, int>;

void require_same(const table& a, const map& b) {
    fuzz::require(a.size() == b.size());
    const ox::ox_list<int> keys = a.get_keys();
    int place = 0;
    for (const auto& [key, value] : b) {
        int found = -1;
        fuzz::require(keys[place] == key && a.get(key, found) && found == value);
        ++place;
    }
}

/// Many keys at once, so that the table is balanced anew on the way.
void add_run(table& a, map& b, int first, int direction) {
    for (int i = 0; i < 150; ++i) {
        const int key = first * 100 + direction * (i * 37 % 150); // no chain, which takes long
        a.set(key, i);
        b[key] = i;
    }
}

void change(byte_reader& bytes, table& a, map& b) {
    const int key = bytes.byte();
    switch (bytes.below(16)) {
    case 0:
        add_run(a, b, key, 1);
        break;
    case 1:
        add_run(a, b, key, -1);
        break;
    case 2:
        a.rebalance();
        break;
    case 3:
        a = table(a);
        break;
    case 4:
    case 5:
    case 6:
    case 7:
        a.remove(key);
        b.erase(key);
        break;
    default: {
        const int value = bytes.byte();
        a.set(key, value);
        b[key] = value;
        break;
    }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_reader bytes(data, size);
    table a;
    map b;
    for (int step = 0; step < 60 && bytes.has_more() && b.size() < 1300; ++step) {
        change(bytes, a, b);
    }
    require_same(a, b);
    const table copy = a;
    a.clear();
    require_same(a, map());
    require_same(copy, b);
    return 0;
}
