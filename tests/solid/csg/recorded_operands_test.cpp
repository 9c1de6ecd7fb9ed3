// Operands that once gave a result that was not closed, kept as they were found.

#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include <tests/solid/csg/judged_results.h>

namespace {

using ox::ox_3dvector;
using ox::ox_csg;
using ox::ox_list;
using ox::ox_solid;

/// The values of a line, after as many words as it begins with.
template <typename T>
ox_list<T> values_of(const std::string& line, int words) {
    std::istringstream rest(line);
    std::string word;
    for (int i = 0; i < words; ++i) {
        rest >> word;
    }
    ox_list<T> values;
    for (T value; rest >> value;) {
        values.push_right(value);
    }
    return values;
}

/// The operand of three lines: "unites vertices N: x y z ...", "contours ...", "sizes ...".
ox_solid read_operand(const std::string& vertices, std::istream& file) {
    std::string contours;
    std::string sizes;
    std::getline(file, contours);
    std::getline(file, sizes);
    const ox_list<float> coordinates = values_of<float>(vertices, 3);
    ox_list<ox_3dvector> points;
    for (int i = 0; i + 2 < coordinates.size(); i += 3) {
        points.push_right(ox_3dvector(coordinates[i], coordinates[i + 1], coordinates[i + 2]));
    }
    ox_solid operand;
    operand.set_vertices(points);
    operand.set_contours(values_of<unsigned int>(contours, 1));
    operand.set_contour_sizes(values_of<int>(sizes, 1));
    return operand;
}

/// All operands of a file united, by the tolerance in its first line.
ox_csg read_operands(const std::string& name) {
    std::ifstream file(OX_SOURCE_DIR "/tests/data/operands/" + name);
    std::string line;
    std::getline(file, line);
    ox_csg csg(values_of<float>(line, 1)[0]);
    while (std::getline(file, line)) {
        csg.unites(read_operand(line, file));
    }
    return csg;
}

TEST(CsgRecordedOperands, ThreeShellsCloserThanTheToleranceGiveAClosedResult) {
    ox_csg csg = read_operands("three_shells_within_a_third.txt");
    ASSERT_EQ(3, csg.get_nb_operands());
    ASSERT_TRUE(csg.compute());
    EXPECT_GT(csg.get_solid().get_contour_sizes().size(), 100);
    EXPECT_TRUE(csg_test::is_closed_by_indices(csg.get_solid()));
    EXPECT_EQ(0, csg.get_solid().get_open_edges(0.0f).size());
    EXPECT_TRUE(csg_test::is_closed_by_indices(csg.get_triangles()));
}

} // namespace
