// What a failing test leaves in the folder that OX_DUMP names.

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/support/dump.h>
#include <tests/support/random_shapes.h>

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string content_of(const std::string& path) {
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

int count(const std::string& text, const std::string& part) {
    int found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++found;
    }
    return found;
}

/// OX_DUMP names the working folder, and then again what it named before.
class Dump : public ::testing::Test {
protected:
    void SetUp() override {
        const char* given = std::getenv("OX_DUMP");
        before = given == nullptr ? "" : given;
        name_folder(".");
    }

    void TearDown() override { name_folder(before); }

    static void name_folder(const std::string& folder) {
#if defined(_WIN32)
        _putenv_s("OX_DUMP", folder.c_str());
#else
        setenv("OX_DUMP", folder.c_str(), 1);
#endif
    }

    std::string before;
};

ox::ox_polygon square_with_hole() {
    ox::ox_polygon polygon;
    polygon.add_contour(support::contour({{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}}));
    polygon.add_contour(support::contour({{1, 1, 0}, {2, 1, 0}, {2, 2, 0}, {1, 2, 0}}));
    return polygon;
}

TEST_F(Dump, ASolidBecomesAModelFileNamedByTheTest) {
    ox::ox_solid cube;
    cube.brick(ox::ox_3dvector(0, 0, 0), 1, 1, 1);
    const std::string path = support::dump(cube, "cube");
    EXPECT_EQ("./Dump.ASolidBecomesAModelFileNamedByTheTest-cube.obj", path);
    const std::string model = content_of(path);
    EXPECT_EQ(cube.get_tesselation_vertices().size(), count("\n" + model, "\nv "));
    EXPECT_EQ(12, count(model, "\nf "));
    EXPECT_THAT(model, Not(HasSubstr("f 0"))); // indices begin with 1
    std::remove(path.c_str());
}

TEST_F(Dump, APolygonBecomesAPictureOfItsContours) {
    ox::ox_polygon polygon = square_with_hole();
    const std::string path = support::dump(polygon, "plate");
    const std::string picture = content_of(path);
    EXPECT_THAT(picture, HasSubstr("fill-rule=\"evenodd\""));
    EXPECT_EQ(2, count(picture, "M "));
    EXPECT_EQ(6, count(picture, "L "));
    EXPECT_EQ(2, count(picture, "Z\n"));
    std::remove(path.c_str());
}

TEST_F(Dump, TheMessageOfAnExpectationNamesTheFile) {
    ox::ox_polygon polygon = square_with_hole();
    const std::string message = support::seen(polygon, "plate");
    const std::string path = "./Dump.TheMessageOfAnExpectationNamesTheFile-plate.svg";
    EXPECT_THAT(message, HasSubstr("written to " + path));
    EXPECT_THAT(content_of(path), HasSubstr("</svg>"));
    std::remove(path.c_str());
}

TEST_F(Dump, NothingIsWrittenWithoutAFolder) {
    ox::ox_polygon polygon = square_with_hole();
    name_folder("");
    EXPECT_THAT(support::dump(polygon, "plate"), IsEmpty());
    name_folder("./no such folder");
    EXPECT_THAT(support::dump(polygon, "plate"), IsEmpty());
}

} // namespace
