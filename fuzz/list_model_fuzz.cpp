// Drives lists and vectors through the same changes. They hold the same elements all the time.

#include <algorithm>
#include <string>
#include <vector>

#include <fuzz/byte_reader.h>
#include <fuzz/require.h>
#include <ox/core/ox_list.h>

namespace {

using fuzz::byte_reader;
using ox::ox_list;

template <typename T>
struct twins {
    ox_list<T> list;
    std::vector<T> vector;

    void insert(int position, const T& value) {
        list.insert(position, value);
        const int clamped = std::max(0, std::min(position, static_cast<int>(vector.size())));
        vector.insert(vector.begin() + clamped, value);
    }

    void remove(int position) {
        list.remove(position);
        if (position >= 0 && position < static_cast<int>(vector.size())) {
            vector.erase(vector.begin() + position);
        }
    }

    void insert_own(int position) {
        if (!vector.empty()) {
            const int own = position % list.size();
            vector.push_back(vector[static_cast<std::size_t>(own)]);
            list.push_right(list[own]);
        }
    }
};

template <typename T>
void change(byte_reader& bytes, twins<T>& both, const T& value) {
    const int position = static_cast<int>(bytes.byte()) - 2;
    switch (bytes.below(6)) {
    case 0:
        both.remove(position);
        break;
    case 1:
        both.insert_own(position + 2);
        break;
    case 2:
        both.list.push_left(value);
        both.vector.insert(both.vector.begin(), value);
        break;
    case 3:
        both.list = ox_list<T>(both.list);
        both.list.reserve(position);
        break;
    case 4:
        both.list.set_size(std::min(both.list.size(), std::max(position, 0)));
        both.vector.resize(static_cast<std::size_t>(both.list.size()));
        break;
    default:
        both.insert(position, value);
        break;
    }
    fuzz::require(std::vector<T>(both.list.begin(), both.list.end()) == both.vector);
    fuzz::require(both.list.get_capacity() >= both.list.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_reader bytes(data, size);
    twins<int> numbers;
    twins<std::string> texts;
    for (int step = 0; step < 200 && bytes.has_more(); ++step) {
        const int value = bytes.byte();
        change(bytes, numbers, value);
        change(bytes, texts, std::string(static_cast<std::size_t>(value % 32), 'x'));
    }
    return 0;
}
