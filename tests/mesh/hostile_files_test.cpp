#include "mesh_support.h"

#include <gtest/gtest.h>
#include <ox/core/ox_log.h>
#include <ox/mesh/ox_mesh.h>
#include <ox/mesh/ox_triangle_set.h>
#include <tests/support/allocation_meter.h>
#include <tests/support/generator.h>

namespace {

using mesh_support::cube;
using mesh_support::plain_mesh;
using mesh_support::raw_bytes;
using mesh_support::stl_bytes;
using mesh_support::temporary_file;

/// What reading any of these files, and working on what was read, may use.
constexpr std::size_t memory_limit = std::size_t{512} << 20;

const unsigned int lying_counts[] = {0u,          1u,          11u,         13u,
                                     1000000u,    1431655765u, 1431655766u, 2147483647u,
                                     2147483648u, 4294967294u, 4294967295u};

void add_prefixes(std::vector<std::string>& files, const std::string& bytes) {
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        files.push_back(bytes.substr(0, length));
    }
}

void add_wrong_magic(std::vector<std::string>& files) {
    for (std::size_t i = 0; i < 8; ++i) {
        for (const char wrong : {'\0', 'B', '\xff'}) {
            std::string bytes = raw_bytes(cube());
            bytes[i] = wrong;
            files.push_back(bytes);
        }
    }
}

void add_lying_counts(std::vector<std::string>& files) {
    for (const unsigned int first : lying_counts) {
        files.push_back(stl_bytes(cube(), first));
        for (const unsigned int second : lying_counts) {
            files.push_back(raw_bytes(cube(), first, second));
        }
    }
}

void add_flipped_bytes(std::vector<std::string>& files, const std::string& bytes) {
    support::generator random(613);
    for (int i = 0; i < 200; ++i) {
        std::string flipped = bytes;
        const int place = random.between(0, static_cast<int>(bytes.size()) - 1);
        flipped[static_cast<std::size_t>(place)] = static_cast<char>(random.between(-128, 127));
        files.push_back(flipped);
    }
}

std::vector<std::string> corpus() {
    std::vector<std::string> files;
    plain_mesh small = cube();
    small.triangles.resize(6);
    add_prefixes(files, raw_bytes(small));
    add_prefixes(files, stl_bytes(small));
    add_wrong_magic(files);
    add_lying_counts(files);
    add_flipped_bytes(files, raw_bytes(cube()));
    add_flipped_bytes(files, stl_bytes(cube()));
    return files;
}

/// Everything that can be done with a set that a file filled.
void work_on(ox::ox_triangle_set& set) {
    ox::ox_mesh mesh;
    ox::ox_list<ox::ox_3dvector> vertices;
    for (unsigned int i = 0; i < set.get_nb_vertices(); ++i) {
        vertices.push_right(set.get_vertices()[i]);
    }
    ox::ox_list<unsigned int> triangles;
    for (unsigned int i = 0; i < 3 * set.get_nb_triangles(); ++i) {
        triangles.push_right(set.get_triangles()[i]);
    }
    mesh.set_vertices(vertices);
    mesh.set_triangles(triangles);
    mesh.build_half_edges();
    set.subdivide();
    set.optimize(0.001f, 0.01f);
    set.subdivide();
}

/// Reads the file in both formats; a refused one leaves the set consistent.
void read_and_work_on(const std::string& path) {
    ox::ox_triangle_set raw, stl;
    if (raw.read_binary_raw(path.c_str())) {
        work_on(raw);
    } else {
        EXPECT_EQ(raw.get_vertices(), nullptr);
        EXPECT_EQ(raw.get_triangles(), nullptr);
    }
    if (stl.read_binary_stl(path.c_str())) {
        work_on(stl);
    } else {
        EXPECT_EQ(stl.get_vertices(), nullptr);
        EXPECT_EQ(stl.get_triangles(), nullptr);
    }
}

TEST(HostileFiles, CorpusIsReadWithinTheMemoryLimit) {
    const std::vector<std::string> files = corpus();
    ASSERT_GE(files.size(), 500u);
    ox_log_set(false);
    for (const std::string& bytes : files) {
        const temporary_file file(bytes);
        allocation_meter::start(memory_limit);
        read_and_work_on(file.path);
        EXPECT_LT(allocation_meter::stop(), memory_limit);
    }
    ox_log_set(true);
}

TEST(HostileFiles, LyingCountsAskForNoMoreThanTheFileHolds) {
    ox_log_set(false);
    for (const unsigned int count : {1000000u, 2147483648u, 4294967295u}) {
        const temporary_file stl(stl_bytes(cube(), count));
        const temporary_file raw(raw_bytes(cube(), count, count));
        ox::ox_triangle_set set;
        allocation_meter::start(memory_limit);
        EXPECT_FALSE(set.read_binary_stl(stl.path.c_str()));
        EXPECT_FALSE(set.read_binary_raw(raw.path.c_str()));
        EXPECT_LT(allocation_meter::stop(), std::size_t{1} << 16);
    }
    ox_log_set(true);
}

} // namespace
