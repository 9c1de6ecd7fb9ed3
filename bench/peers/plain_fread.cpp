#include <bench/peers/mesh_files.h>

#include <cstdio>
#include <cstring>

namespace peers {
namespace {

using bytes_type = std::unique_ptr<char[]>;

constexpr std::size_t counts_offset = 8;
constexpr std::size_t vertices_offset = 16;
constexpr std::size_t vertex_bytes = 12;

template <class type>
type read_at(const bytes_type& bytes, std::size_t offset) {
    type value;
    std::memcpy(&value, bytes.get() + offset, sizeof value);
    return value;
}

std::vector<bench::fact> facts_of(const bytes_type& bytes) {
    const unsigned int vertices = read_at<unsigned int>(bytes, counts_offset);
    double sum = 0.0;
    for (std::size_t i = 0; i < vertices; ++i) {
        sum += static_cast<double>(read_at<float>(bytes, vertices_offset + vertex_bytes * i));
    }
    return {
        {"vertices", static_cast<double>(vertices), 0.0},
        {"triangles", static_cast<double>(read_at<unsigned int>(bytes, counts_offset + 4)), 0.0},
        {"sum of x", sum, 1e-12}};
}

} // namespace

bench::contestant plain_fread(const std::string& path, std::size_t length) {
    return bench::make_contestant(
        "fread into fresh memory", [] { return bytes_type(); },
        [=](bytes_type& bytes) {
            bytes.reset(new char[length]);
            std::FILE* const file = std::fopen(path.c_str(), "rb");
            if (file != nullptr) {
                const std::size_t done = std::fread(bytes.get(), 1, length, file);
                std::fclose(file);
                if (done != length) {
                    bytes.reset(new char[length]()); // the facts will disagree
                }
            }
        },
        facts_of);
}

} // namespace peers
