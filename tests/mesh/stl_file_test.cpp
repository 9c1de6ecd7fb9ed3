#include "mesh_support.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ox/mesh/ox_triangle_set.h>
#include <thread>

#include <tests/support/allocation_meter.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace {

using mesh_support::bytes_of;
using mesh_support::cube;
using mesh_support::height_field;
using mesh_support::log_capture;
using mesh_support::read_file;
using mesh_support::set_of;
using mesh_support::stl_bytes;
using mesh_support::temporary_file;
using ox::ox_triangle_set;
using ::testing::ElementsAre;

/// `mesh` with three vertices of its own for each triangle, as STL files hold it.
void expect_corners_of(const reference::plain_mesh& mesh, const ox_triangle_set& set) {
    ASSERT_EQ(set.get_nb_vertices(), mesh.triangles.size());
    ASSERT_EQ(set.get_nb_triangles(), mesh.triangles.size() / 3);
    for (unsigned int i = 0; i < mesh.triangles.size(); ++i) {
        ASSERT_EQ(set.get_triangles()[i], i);
        ASSERT_EQ(set.get_vertices()[i], mesh.vertices[mesh.triangles[i]]);
    }
}

void expect_empty(const ox_triangle_set& set) {
    EXPECT_EQ(set.get_nb_vertices(), 0u);
    EXPECT_EQ(set.get_nb_triangles(), 0u);
    EXPECT_EQ(set.get_vertices(), nullptr);
    EXPECT_EQ(set.get_triangles(), nullptr);
}

TEST(StlFile, EachTriangleGetsThreeVerticesOfItsOwn) {
    const temporary_file file(stl_bytes(cube()));
    ox_triangle_set set;
    EXPECT_TRUE(set.read_binary_stl(file.path.c_str()));
    expect_corners_of(cube(), set);
}

TEST(StlFile, FilesOfMoreThanOneBlockAreReadWhole) {
    const reference::plain_mesh field = height_field(60);
    const temporary_file file(stl_bytes(field));
    ox_triangle_set set;
    EXPECT_TRUE(set.read_binary_stl(file.path.c_str()));
    expect_corners_of(field, set);
}

TEST(StlFile, ReadingLogsItsStepsAndStates52Bytes) {
    const temporary_file file(stl_bytes(cube()));
    const log_capture log;
    ox_triangle_set set;
    set.read_binary_stl(file.path.c_str());
    EXPECT_THAT(log.lines(),
                ElementsAre("reading stl...", "open file ok", "header ok", "nb of triangles ok",
                            "reading 12 triangles...", "triangle size : 52 bytes."));
}

TEST(StlFile, FileWithoutTrianglesIsReadAsAnEmptySet) {
    const temporary_file file(stl_bytes({}));
    ox_triangle_set set(2, 2);
    EXPECT_TRUE(set.read_binary_stl(file.path.c_str()));
    expect_empty(set);
}

TEST(StlFile, CountOf10WithNineRecordsLogsNineAndEmptiesTheSet) {
    reference::plain_mesh nine = cube();
    nine.triangles.resize(27);
    const temporary_file file(stl_bytes(nine, 10));
    const log_capture log;
    ox_triangle_set set(2, 2);
    EXPECT_FALSE(set.read_binary_stl(file.path.c_str()));
    EXPECT_THAT(log.lines(), ElementsAre("reading stl...", "open file ok", "header ok",
                                         "nb of triangles ok", "reading 10 triangles...",
                                         "triangle size : 52 bytes.", "9 read triangles..."));
    expect_empty(set);
}

TEST(StlFile, RecordCutShortIsNotCounted) {
    std::string bytes = stl_bytes(cube());
    bytes.pop_back();
    const temporary_file file(bytes);
    const log_capture log;
    ox_triangle_set set;
    EXPECT_FALSE(set.read_binary_stl(file.path.c_str()));
    EXPECT_EQ(log.lines().back(), "11 read triangles...");
}

TEST(StlFile, CountsAbove2To31AreLoggedAsNegative) {
    const temporary_file file(stl_bytes(cube(), 4294967295u));
    const log_capture log;
    ox_triangle_set set;
    EXPECT_FALSE(set.read_binary_stl(file.path.c_str()));
    EXPECT_EQ(log.lines()[4], "reading -1 triangles...");
    EXPECT_EQ(log.lines()[6], "12 read triangles...");
}

TEST(StlFile, CountWhoseVerticesWrapAroundToFewIsRefused) {
    // 3 x 1431655766 is 2^32 + 2.
    const temporary_file file(stl_bytes(cube(), 1431655766u));
    ox_triangle_set set;
    EXPECT_FALSE(set.read_binary_stl(file.path.c_str()));
    expect_empty(set);
}

TEST(StlFile, FileThatEndsInHeaderOrCountLeavesTheSetAsItWas) {
    const temporary_file in_header(std::string(79, 'h'));
    const temporary_file in_count(std::string(83, 'h'));
    const log_capture log;
    ox_triangle_set set(1, 1);
    EXPECT_FALSE(set.read_binary_stl(in_header.path.c_str()));
    EXPECT_FALSE(set.read_binary_stl(in_count.path.c_str()));
    EXPECT_THAT(log.lines(), ElementsAre("reading stl...", "open file ok", "reading stl...",
                                         "open file ok", "header ok"));
    EXPECT_EQ(set.get_nb_vertices(), 1u);
}

TEST(StlFile, FilesThatCannotBeOpenedLogOneLine) {
    for (const char* path : {static_cast<const char*>(nullptr), "", "/no/such/file.stl"}) {
        const log_capture log;
        ox_triangle_set set(1, 1);
        EXPECT_FALSE(set.read_binary_stl(path));
        EXPECT_THAT(log.lines(), ElementsAre("reading stl..."));
        EXPECT_EQ(set.get_nb_vertices(), 1u);
    }
}

TEST(StlFile, FolderIsNotOpened) {
    const std::string folder = std::filesystem::temp_directory_path().string();
    const log_capture log;
    ox_triangle_set set;
    EXPECT_FALSE(set.read_binary_stl(folder.c_str()));
    EXPECT_FALSE(set.read_binary_raw(folder.c_str()));
    EXPECT_FALSE(set.write_binary_raw(folder.c_str()));
    EXPECT_THAT(log.lines(),
                ElementsAre("reading stl...", "reading binary_raw...", "writing binary_raw..."));
}

#ifndef _WIN32 // which has no pipes among its files, and where links take a right of their own

/// To open a pipe that nobody writes to would wait for ever; a device may never end.
TEST(StlFile, PipesAndDevicesAreNotOpened) {
    const temporary_file place("");
    const std::string pipe = place.path + ".pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& path : {pipe, std::string("/dev/zero"), std::string("/dev/urandom")}) {
        const log_capture log;
        ox_triangle_set set(1, 1);
        EXPECT_FALSE(set.read_binary_stl(path.c_str()));
        EXPECT_FALSE(set.read_binary_raw(path.c_str()));
        EXPECT_THAT(log.lines(), ElementsAre("reading stl...", "reading binary_raw..."));
        EXPECT_EQ(set.get_nb_vertices(), 1u);
    }
    std::filesystem::remove(pipe);
}

TEST(StlFile, LinkToAFileIsRead) {
    const temporary_file file(stl_bytes(cube()));
    const std::string link = file.path + ".link";
    std::filesystem::create_symlink(file.path, link);
    ox_triangle_set set;
    EXPECT_TRUE(set.read_binary_stl(link.c_str()));
    std::filesystem::remove(link);
    expect_corners_of(cube(), set);
}

#endif

TEST(StlFile, WhatIsWrittenIsReadBackAsCornersOfTheSameTriangles) {
    const temporary_file file("");
    EXPECT_TRUE(set_of(cube()).write_binary_stl(file.path.c_str()));
    ox_triangle_set read;
    EXPECT_TRUE(read.read_binary_stl(file.path.c_str()));
    expect_corners_of(cube(), read);
}

TEST(StlFile, WritesUnitNormalsAndNoAttributesBehindAHeaderThatIsNotTakenForText) {
    const temporary_file file("");
    ox_triangle_set set(3, 1);
    set.get_vertices()[1] = ox::ox_3dvector(2, 0, 0);
    set.get_vertices()[2] = ox::ox_3dvector(0, 3, 0);
    for (unsigned int i = 0; i < 3; ++i) {
        set.get_triangles()[i] = i;
    }
    EXPECT_TRUE(set.write_binary_stl(file.path.c_str()));
    const std::string bytes = read_file(file.path);
    ASSERT_EQ(bytes.size(), 134u);
    EXPECT_NE(bytes.substr(0, 5), "solid");
    EXPECT_EQ(bytes.substr(80, 4), bytes_of(1u));
    EXPECT_EQ(bytes.substr(84, 12), bytes_of(ox::ox_3dvector(0, 0, 1)));
    EXPECT_EQ(bytes.substr(132), std::string(2, '\0'));
}

TEST(StlFile, TriangleWithoutAreaIsWrittenWithoutNormal) {
    const temporary_file file("");
    ox_triangle_set set(1, 1);
    std::fill_n(set.get_triangles(), 3, 0u);
    EXPECT_TRUE(set.write_binary_stl(file.path.c_str()));
    EXPECT_EQ(read_file(file.path).substr(84), std::string(50, '\0'));
}

TEST(StlFile, NothingIsWrittenForAnInvalidIndexOrANullPath) {
    const log_capture log;
    const temporary_file file("as it was");
    ox_triangle_set set = set_of(cube());
    EXPECT_FALSE(set.write_binary_stl(nullptr));
    set.get_triangles()[5] = 8;
    EXPECT_FALSE(set.write_binary_stl(file.path.c_str()));
    EXPECT_EQ(read_file(file.path), "as it was");
    EXPECT_THAT(log.lines(), ElementsAre("invalid triangle index"));
}

#ifdef __linux__
TEST(StlFile, WritingToAFullDeviceFailsAndKeepsTheSet) {
    const ox_triangle_set set = set_of(cube());
    EXPECT_FALSE(set.write_binary_stl("/dev/full"));
    EXPECT_EQ(set.get_nb_triangles(), 12u);
}
#endif

} // namespace
