#include "mesh_support.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ox/mesh/ox_triangle_set.h>
#include <thread>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

using mesh_support::bytes_of;
using mesh_support::contents_of;
using mesh_support::cube;
using mesh_support::height_field;
using mesh_support::log_capture;
using mesh_support::raw_bytes;
using mesh_support::read_file;
using mesh_support::same_bits;
using mesh_support::set_of;
using mesh_support::temporary_file;
using ox::ox_triangle_set;
using ::testing::ElementsAre;

void expect_cube(const ox_triangle_set& set) {
    EXPECT_TRUE(same_bits(contents_of(set).vertices, cube().vertices));
    EXPECT_EQ(contents_of(set).triangles, cube().triangles);
}

void expect_empty(const ox_triangle_set& set) {
    EXPECT_EQ(set.get_nb_vertices(), 0u);
    EXPECT_EQ(set.get_nb_triangles(), 0u);
    EXPECT_EQ(set.get_vertices(), nullptr);
    EXPECT_EQ(set.get_triangles(), nullptr);
}

TEST(RawFile, EmptySetIsWrittenAs16BytesAndReadBackWithoutArrays) {
    const temporary_file file("");
    ox_triangle_set set;
    EXPECT_TRUE(set.write_binary_raw(file.path.c_str()));
    EXPECT_EQ(read_file(file.path), "binaryra" + bytes_of(0u) + bytes_of(0u));
    ox_triangle_set read = set_of(cube());
    EXPECT_TRUE(read.read_binary_raw(file.path.c_str()));
    expect_empty(read);
}

TEST(RawFile, WritesMagicCountsVerticesAndIndices) {
    const temporary_file file("");
    ox_triangle_set set = set_of(cube());
    EXPECT_TRUE(set.write_binary_raw(file.path.c_str()));
    EXPECT_EQ(read_file(file.path), raw_bytes(cube()));
    expect_cube(set);
}

TEST(RawFile, ReadsWhatItWrote) {
    const temporary_file file(raw_bytes(cube()));
    ox_triangle_set set;
    EXPECT_TRUE(set.read_binary_raw(file.path.c_str()));
    expect_cube(set);
}

TEST(RawFile, BytesBehindTheIndicesAreIgnored) {
    const temporary_file file(raw_bytes(cube()) + "trailer");
    ox_triangle_set set;
    EXPECT_TRUE(set.read_binary_raw(file.path.c_str()));
    expect_cube(set);
}

TEST(RawFile, IndicesAreNotComparedWithTheVertexCount) {
    reference::plain_mesh mesh = cube();
    mesh.triangles[0] = 4294967295u;
    const temporary_file file(raw_bytes(mesh));
    ox_triangle_set set;
    EXPECT_TRUE(set.read_binary_raw(file.path.c_str()));
    EXPECT_EQ(set.get_triangles()[0], 4294967295u);
}

TEST(RawFile, WritingLogsItsSteps) {
    const temporary_file file("");
    const log_capture log;
    ox_triangle_set set;
    set.write_binary_raw(file.path.c_str());
    EXPECT_THAT(log.lines(), ElementsAre("writing binary_raw...", "open file ok", "header ok"));
}

TEST(RawFile, ReadingLogsItsStepsAndTheCounts) {
    const temporary_file file(raw_bytes(cube()));
    const log_capture log;
    ox_triangle_set set;
    set.read_binary_raw(file.path.c_str());
    EXPECT_THAT(log.lines(), ElementsAre("reading binary_raw...", "open file ok", "header ok",
                                         "reading 8 vertices and 12 triangles"));
}

TEST(RawFile, MagicThatDiffersInItsLastCharacterOnlyIsRefusedBeforeHeaderOk) {
    std::string bytes = raw_bytes(cube());
    bytes[7] = 'w';
    const temporary_file file(bytes);
    const log_capture log;
    ox_triangle_set set(1, 1);
    EXPECT_FALSE(set.read_binary_raw(file.path.c_str()));
    EXPECT_THAT(log.lines(), ElementsAre("reading binary_raw...", "open file ok"));
    EXPECT_EQ(set.get_nb_vertices(), 1u);
}

TEST(RawFile, FileThatEndsInItsCountsLeavesTheSetAsItWas) {
    const temporary_file file(raw_bytes(cube()).substr(0, 15));
    const log_capture log;
    ox_triangle_set set(1, 1);
    EXPECT_FALSE(set.read_binary_raw(file.path.c_str()));
    EXPECT_THAT(log.lines(), ElementsAre("reading binary_raw...", "open file ok", "header ok"));
    EXPECT_EQ(set.get_nb_triangles(), 1u);
}

TEST(RawFile, FileThatLacksItsLastByteEmptiesTheSet) {
    std::string bytes = raw_bytes(cube());
    bytes.pop_back();
    const temporary_file file(bytes);
    const log_capture log;
    ox_triangle_set set(1, 1);
    EXPECT_FALSE(set.read_binary_raw(file.path.c_str()));
    EXPECT_THAT(log.lines(),
                ElementsAre("reading binary_raw...", "open file ok", "header ok",
                            "reading 8 vertices and 12 triangles", "Error reading file"));
    expect_empty(set);
}

TEST(RawFile, CountsAbove2To31AreLoggedAsNegative) {
    const temporary_file file(raw_bytes(cube(), 2147483648u, 4294967295u));
    const log_capture log;
    ox_triangle_set set;
    EXPECT_FALSE(set.read_binary_raw(file.path.c_str()));
    EXPECT_EQ(log.lines()[3], "reading -2147483648 vertices and -1 triangles");
    EXPECT_EQ(log.lines()[4], "Error reading file");
}

TEST(RawFile, FailedReadLetsCopiesKeepTheirArrays) {
    const temporary_file file(raw_bytes(cube(), 9, 12));
    ox_triangle_set set = set_of(cube());
    const ox_triangle_set copy(set);
    EXPECT_FALSE(set.read_binary_raw(file.path.c_str()));
    expect_empty(set);
    expect_cube(copy);
}

TEST(RawFile, FilesThatCannotBeOpenedLogOneLineAndChangeNothing) {
    for (const char* path : {static_cast<const char*>(nullptr), "", "/no/such/folder/file.raw"}) {
        const log_capture log;
        ox_triangle_set set = set_of(cube());
        EXPECT_FALSE(set.read_binary_raw(path));
        EXPECT_FALSE(set.write_binary_raw(path));
        EXPECT_THAT(log.lines(), ElementsAre("reading binary_raw...", "writing binary_raw..."));
        expect_cube(set);
    }
}

TEST(RawFile, FolderIsNeitherReadNorWritten) {
    const std::string folder = std::filesystem::temp_directory_path().string();
    ox_triangle_set set = set_of(cube());
    EXPECT_FALSE(set.read_binary_raw(folder.c_str()));
    EXPECT_FALSE(set.write_binary_raw(folder.c_str()));
    expect_cube(set);
}

#ifndef _WIN32 // which has no pipes among its files

TEST(RawFile, PipeWithoutAReaderIsNotWaitedFor) {
    const temporary_file place("");
    const std::string pipe = place.path + ".pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const log_capture log;
    ox_triangle_set set = set_of(cube());
    EXPECT_FALSE(set.write_binary_raw(pipe.c_str()));
    EXPECT_THAT(log.lines(), ElementsAre("writing binary_raw..."));
    expect_cube(set);
    std::filesystem::remove(pipe);
}

TEST(RawFile, PipeWithAReaderGetsTheWholeSet) {
    const temporary_file place("");
    const std::string pipe = place.path + ".pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const int reader = open(pipe.c_str(), O_RDWR); // also for writing: it is never without a writer
    std::thread writer([&] {
        ox_triangle_set set = set_of(height_field(100)); // more than a pipe holds
        EXPECT_TRUE(set.write_binary_raw(pipe.c_str()));
    });
    std::string bytes(raw_bytes(height_field(100)).size(), '\0');
    std::size_t done = 0;
    while (done < bytes.size()) {
        done += static_cast<std::size_t>(read(reader, &bytes[done], bytes.size() - done));
    }
    writer.join();
    close(reader);
    EXPECT_TRUE(bytes == raw_bytes(height_field(100)));
    std::filesystem::remove(pipe);
}

#endif

TEST(RawFile, FullDeviceEmptiesTheSet) {
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "this system has no /dev/full";
    }
    for (const unsigned int nb_vertices : {8u, 100000u}) {
        const log_capture log;
        ox_triangle_set set(nb_vertices, 0);
        EXPECT_FALSE(set.write_binary_raw("/dev/full"));
        EXPECT_EQ(log.lines().back(), "Error writing file");
        expect_empty(set);
    }
}

TEST(RawFile, FilesAreClosedAfterEveryFailure) {
    std::string wrong = raw_bytes(cube());
    wrong[0] = 'x';
    const temporary_file wrong_magic(wrong);
    const temporary_file without_counts("binaryra");
    const temporary_file too_short(raw_bytes(cube(), 9, 12));
    ox_triangle_set set;
    // More often than a process may have files open.
    for (int i = 0; i < 1100; ++i) {
        EXPECT_FALSE(set.read_binary_raw(wrong_magic.path.c_str()));
        EXPECT_FALSE(set.read_binary_raw(without_counts.path.c_str()));
        EXPECT_FALSE(set.read_binary_raw(too_short.path.c_str()));
        EXPECT_FALSE(set.read_binary_stl(without_counts.path.c_str()));
    }
    EXPECT_TRUE(set.read_binary_raw(temporary_file(raw_bytes(cube())).path.c_str()));
}

} // namespace
