#include <tests/support/dump.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <vector>

#include <gtest/gtest.h>

#include <tests/support/printing.h>

namespace support {
namespace {

/// A path for what the running test shows, or an empty text.
std::string path_for(const std::string& name, const char* suffix) {
    const char* folder = std::getenv("OX_DUMP");
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    if (folder == nullptr || *folder == '\0' || test == nullptr) {
        return "";
    }
    std::string file = std::string(test->test_suite_name()) + '.' + test->name() + '-' + name;
    std::replace(file.begin(), file.end(), '/', '_'); // of tests with parameters
    return std::string(folder) + '/' + file + suffix;
}

/// Writes a text where there is a path for it. Returns the path of what was written.
std::string write(const std::string& path, const std::string& text) {
    if (path.empty()) {
        return "";
    }
    std::ofstream file(path);
    file << text;
    file.close();
    return file ? path : "";
}

std::string obj_of(ox::ox_solid& solid) {
    std::ostringstream text;
    text << std::setprecision(9);
    for (const ox::ox_3dvector& v : solid.get_tesselation_vertices()) {
        text << "v " << v.x << ' ' << v.y << ' ' << v.z << '\n';
    }
    const ox::ox_list<unsigned int>& triangles = solid.get_tesselation_triangles();
    for (int i = 0; i + 2 < triangles.size(); i += 3) {
        text << "f " << triangles[i] + 1 << ' ' << triangles[i + 1] + 1 << ' '
             << triangles[i + 2] + 1 << '\n';
    }
    return text.str();
}

/// A point in the plane of a picture, whose ordinates grow downwards.
struct dot {
    float x = 0.0f;
    float y = 0.0f;
};

std::vector<dot> flat_points(ox::ox_polygon& polygon) {
    ox::ox_3dvector normal = polygon.get_normal();
    ox::ox_3dvector right;
    ox::ox_3dvector up;
    normal.build_axis(right, up);
    std::vector<dot> points;
    for (const ox::ox_3dvector& v : polygon.get_contour_vertices()) {
        points.push_back({ox::ox_dot(v, right), -ox::ox_dot(v, up)});
    }
    return points;
}

/// The part of the plane that a picture shows: all points and a margin.
std::string view_box(const std::vector<dot>& points) {
    dot low = points.empty() ? dot() : points.front();
    dot high = low;
    for (const dot& point : points) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
    const float margin = 0.05f * std::max(high.x - low.x, high.y - low.y);
    std::ostringstream text;
    text << std::setprecision(9) << low.x - margin << ' ' << low.y - margin << ' '
         << high.x - low.x + 2.0f * margin << ' ' << high.y - low.y + 2.0f * margin;
    return text.str();
}

std::string svg_of(ox::ox_polygon& polygon) {
    const std::vector<dot> points = flat_points(polygon);
    std::ostringstream text;
    text << std::setprecision(9);
    text << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"" << view_box(points) << "\">\n"
         << "<path fill=\"#cde\" fill-rule=\"evenodd\" stroke=\"black\" stroke-width=\"1\" "
            "vector-effect=\"non-scaling-stroke\" d=\"";
    std::size_t next = 0;
    for (const unsigned int size : polygon.get_contour_sizes()) {
        for (unsigned int i = 0; i < size; ++i, ++next) {
            text << (i == 0 ? "M " : "L ") << points[next].x << ' ' << points[next].y << '\n';
        }
        text << "Z\n";
    }
    text << "\"/>\n</svg>\n";
    return text.str();
}

template <typename Object>
std::string text_with_file(Object& object, const std::string& name) {
    const std::string path = dump(object, name);
    return name + ":\n" + to_text(object) + (path.empty() ? "" : "written to " + path + '\n');
}

} // namespace

std::string dump(ox::ox_solid& solid, const std::string& name) {
    const std::string path = path_for(name, ".obj");
    return path.empty() ? "" : write(path, obj_of(solid));
}

std::string dump(ox::ox_polygon& polygon, const std::string& name) {
    const std::string path = path_for(name, ".svg");
    return path.empty() ? "" : write(path, svg_of(polygon));
}

std::string seen(ox::ox_solid& solid, const std::string& name) {
    return text_with_file(solid, name);
}

std::string seen(ox::ox_polygon& polygon, const std::string& name) {
    return text_with_file(polygon, name);
}

} // namespace support
