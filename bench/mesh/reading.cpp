#include <cstdio>
#include <cstring>
#include <filesystem>
#include <stdexcept>

#include <bench/peers/mesh_files.h>

#include "field.h"
#include "workloads.h"

namespace bench {
namespace {

using ox::ox_triangle_set;

/// A file among the temporary ones, removed with the object; its pages stay in the system's cache.
class temporary_file {
public:
    explicit temporary_file(const char* name)
        : path((std::filesystem::temp_directory_path() / name).string()) {}
    ~temporary_file() { std::filesystem::remove(path); }
    temporary_file(const temporary_file&) = delete;
    temporary_file& operator=(const temporary_file&) = delete;

    const std::string path;
};

void write_stl(const std::string& path, const ox_triangle_set& set) {
    const unsigned int count = set.get_nb_triangles();
    std::vector<char> content(84 + 50 * std::size_t{count});
    std::memcpy(&content[80], &count, 4);
    for (std::size_t i = 0; i < count; ++i) {
        std::memcpy(&content[84 + 50 * i + 12], set.get_vertices() + 3 * i, 36);
    }
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    if (file == nullptr || std::fwrite(content.data(), 1, content.size(), file) != content.size() ||
        std::fclose(file) != 0) {
        throw std::runtime_error("cannot write " + path);
    }
}

std::vector<fact> facts_of(const ox_triangle_set& set) {
    double sum = 0.0;
    for (unsigned int i = 0; i < set.get_nb_vertices(); ++i) {
        sum += static_cast<double>(set.get_vertices()[i].x);
    }
    return {{"vertices", static_cast<double>(set.get_nb_vertices()), 0.0},
            {"triangles", static_cast<double>(set.get_nb_triangles()), 0.0},
            {"sum of x", sum, 1e-12}};
}

contest read_stl(long triangles) {
    const auto file = std::make_shared<temporary_file>("ox_bench.stl");
    write_stl(file->path, triangle_soup(triangles));
    contest rules;
    rules.ours = make_contestant(
        "ox_triangle_set", [] { return ox_triangle_set(); },
        [=](ox_triangle_set& set) { set.read_binary_stl(file->path.c_str()); }, facts_of);
    rules.peers = {peers::assimp_read(file->path)};
    rules.goal = 0.7;
    return rules;
}

contest read_raw(long triangles) {
    const auto file = std::make_shared<temporary_file>("ox_bench.raw");
    triangle_soup(triangles).write_binary_raw(file->path.c_str());
    contest rules;
    rules.ours = make_contestant(
        "ox_triangle_set", [] { return ox_triangle_set(); },
        [=](ox_triangle_set& set) { set.read_binary_raw(file->path.c_str()); }, facts_of);
    rules.peers = {peers::plain_fread(file->path, std::filesystem::file_size(file->path))};
    rules.goal = 1.3;
    return rules;
}

} // namespace

std::vector<workload> reading_workloads() {
    const std::vector<long> sizes = {10000, 100000, 1000000};
    const std::vector<long> quick_sizes = {10000, 50000, 250000};
    return {
        workload{"STL file read", "triangles", sizes, quick_sizes, read_stl}.judged_from(1000000),
        workload{"raw file read", "triangles", sizes, quick_sizes, read_raw}.judged_from(1000000)};
}

} // namespace bench
