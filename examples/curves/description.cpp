#include <examples/curves/description.h>

#include <examples/support/record_reader.h>

namespace curves {

namespace {

using ox_examples::line_reader;

/// A cubic curve takes four points; the coefficients of a Bezier curve are exact up to 18.
constexpr std::size_t fewest_points = 4;
constexpr std::size_t most_points = 18;

/// Of x from point to point. Points much closer count as one place to the spline.
constexpr double smallest_advance = 0.01;

void read_name(line_reader& line, description& d) {
    if (!d.name.empty()) {
        line.fail("the curves have a name already");
    }
    d.name = line.name("name of the curves");
}

void read_point(line_reader& line, description& d) {
    const double x = line.number("x of the point");
    const double y = line.number("y of the point");
    if (d.points.size() == most_points) {
        line.fail("more than " + std::to_string(most_points) + " points");
    }
    if (!d.points.empty() && x < d.points.back().x + smallest_advance) {
        line.fail("x must grow by at least 0.01 from point to point");
    }
    d.points.push_back({x, y});
}

} // namespace

description read_description(const std::string& path) {
    description d;
    ox_examples::read_records(path, {
                                        {"curves", [&d](line_reader& line) { read_name(line, d); }},
                                        {"point", [&d](line_reader& line) { read_point(line, d); }},
                                    });
    if (d.name.empty()) {
        throw description_error(path, 0, "no 'curves' line names the curves");
    }
    if (d.points.size() < fewest_points) {
        throw description_error(
            path, 0, "curves need at least " + std::to_string(fewest_points) + " points");
    }
    return d;
}

} // namespace curves
