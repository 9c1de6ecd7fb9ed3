// Runs a fuzz target over the files named on the command line, without the fuzzer: any compiler
// can repeat a finding, and the test suite repeats all of them.

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        std::ifstream file(argv[i], std::ios::binary);
        if (!file) {
            std::fprintf(stderr, "cannot read %s\n", argv[i]);
            return 1;
        }
        const std::vector<char> text((std::istreambuf_iterator<char>(file)),
                                     std::istreambuf_iterator<char>());
        const std::vector<std::uint8_t> bytes(text.begin(), text.end());
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    // An empty corpus would prove nothing.
    return argc > 1 ? 0 : 1;
}
