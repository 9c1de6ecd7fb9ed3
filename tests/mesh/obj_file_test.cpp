#include "mesh_support.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ox/mesh/ox_triangle_set.h>
#include <tests/support/comma_locale.h>

namespace {

using mesh_support::cube;
using mesh_support::log_capture;
using mesh_support::read_file;
using mesh_support::set_of;
using mesh_support::temporary_file;
using ox::ox_triangle_set;
using ::testing::ElementsAre;

ox_triangle_set lone_triangle() {
    ox_triangle_set set(3, 1);
    set.get_vertices()[1] = ox::ox_3dvector(0.1f, 0, 0);
    set.get_vertices()[2] = ox::ox_3dvector(0, -1.5f, 1e20f);
    for (unsigned int i = 0; i < 3; ++i) {
        set.get_triangles()[i] = i;
    }
    return set;
}

constexpr const char* lone_triangle_text = "v 0 0 0\nv 0.100000001 0 0\nv 0 -1.5 1.00000002e+20\n"
                                           "f 1 2 3\n";

TEST(ObjFile, WritesVerticesWithNineDigitsAndIndicesFromOne) {
    const temporary_file file("");
    EXPECT_TRUE(lone_triangle().write_obj(file.path.c_str()));
    EXPECT_EQ(read_file(file.path), lone_triangle_text);
}

TEST(ObjFile, NumbersHavePointsInEveryLocale) {
    const temporary_file file("");
    const support::comma_locale commas;
    EXPECT_TRUE(lone_triangle().write_obj(file.path.c_str()));
    EXPECT_EQ(read_file(file.path), lone_triangle_text);
}

TEST(ObjFile, EmptySetIsAnEmptyFile) {
    const temporary_file file("as it was");
    EXPECT_TRUE(ox_triangle_set().write_obj(file.path.c_str()));
    EXPECT_EQ(read_file(file.path), "");
}

TEST(ObjFile, NothingIsWrittenForAnInvalidIndexOrANullPath) {
    const log_capture log;
    const temporary_file file("as it was");
    ox_triangle_set set = set_of(cube());
    EXPECT_FALSE(set.write_obj(nullptr));
    set.get_triangles()[5] = 8;
    EXPECT_FALSE(set.write_obj(file.path.c_str()));
    EXPECT_EQ(read_file(file.path), "as it was");
    EXPECT_THAT(log.lines(), ElementsAre("invalid triangle index"));
}

#ifdef __linux__
TEST(ObjFile, WritingToAFullDeviceFails) {
    EXPECT_FALSE(set_of(cube()).write_obj("/dev/full"));
}
#endif

} // namespace
