// Solves systems and inverts matrices of any numbers and of lists that do not fit each other.

#include <fuzz/byte_reader.h>
#include <fuzz/require.h>
#include <ox/ox_functions.h>

namespace {

ox::ox_list<float> numbers(fuzz::byte_reader& bytes, int count) {
    ox::ox_list<float> list;
    for (int i = 0; i < count; ++i) {
        list.push_right(bytes.coordinate());
    }
    return list;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::byte_reader bytes(data, size);
    const int order = bytes.below(10);
    const int is_square = bytes.below(8) == 0 ? 0 : 1;
    const ox::ox_list<float> a = numbers(bytes, order * order + 1 - is_square);
    const ox::ox_list<float> b = numbers(bytes, order);
    const int solved = ox_solve_system(a, b).size();
    fuzz::require(solved == 0 || (is_square == 1 && solved == order));
    const int inverted = ox_reverse_matrix(a).size();
    fuzz::require(inverted == 0 || inverted == a.size());
    fuzz::require(inverted == 0 || is_square == 0 || solved == order);
    return 0;
}
