// Charts of what was measured.

#include <examples/gallery/pictures.h>
#include <examples/gallery/shapes.h>
#include <examples/gallery/sheet.h>

#include <ox/solid/ox_csg.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace gallery {

namespace {

/// A row of the report: the last, so the largest size of each workload counts.
struct measured {
    std::string size, ours, peer;
    double ratio = 0;
};

std::string trimmed(const std::string& cell) {
    const std::size_t first = cell.find_first_not_of(' ');
    return first == std::string::npos ? ""
                                      : cell.substr(first, cell.find_last_not_of(' ') - first + 1);
}

std::map<std::string, measured> read_report(const std::string& path) {
    std::ifstream file(path);
    std::map<std::string, measured> rows;
    std::string line;
    while (std::getline(file, line)) {
        std::vector<std::string> cells;
        std::istringstream text(line);
        for (std::string cell; std::getline(text, cell, '|');) {
            cells.push_back(trimmed(cell));
        }
        const double ratio = cells.size() > 6 ? std::atof(cells[5].c_str()) : 0.0;
        if (ratio > 0) {
            rows[cells[1]] = {cells[2], cells[3], cells[4].substr(0, cells[4].find_first_of(":,")),
                              ratio};
        }
    }
    return rows;
}

void draw_speed(const folders& to, const std::string& report) {
    const std::vector<std::pair<std::string, std::string>> shown = {
        {"wall with arched openings, one pass", "wall with arched openings (ox_csg)"},
        {"row of overlapping cubes askew, one pass", "row of overlapping cubes (ox_csg)"},
        {"storeys on top of each other, one pass", "storeys on top of each other (ox_csg)"},
        {"wall, 20 horizontal sections", "20 sections of a wall"},
        {"squares that keep apart merged", "contours merged"},
        {"STL file read", "STL file read"},
        {"half-edges", "half-edges built"},
        {"table read", "table read"},
        {"set welded", "mesh welded"},
        {"overlapping squares merged", "overlapping contours merged"},
        {"sphere minus sphere, one pass", "sphere minus sphere (ox_csg)"},
        {"terrain minus prism, one pass", "terrain minus prism (ox_csg)"}};
    const std::map<std::string, measured> rows = read_report(report);
    const double count = static_cast<double>(shown.size());
    const auto x = [](double times) { return 6.1 + 1.7 * std::log10(times); };
    sheet page(1, 1, 680, 300);
    page.panel(0, "times faster than a peer at the same work (largest size; docs/benchmarks.md)", 0,
               -0.6, 12.6, count * 0.44);
    for (const double times : {0.1, 1.0, 10.0, 100.0}) {
        page.line(x(times), -0.1, x(times), count * 0.44, times == 1.0 ? ink::line : ink::faint,
                  times == 1.0 ? 1.2 : 0.6);
        page.text(x(times), -0.3,
                  times < 1   ? "10 x slower"
                  : times > 1 ? number(times, 0) + " x faster"
                              : "equal",
                  ink::line, 0.5, 9);
    }
    double y = count * 0.44 - 0.36;
    for (const auto& [workload, label] : shown) {
        const auto row = rows.find(workload);
        if (row == rows.end()) {
            throw std::runtime_error("no row of " + workload + " in " + report);
        }
        const double times = 1.0 / row->second.ratio;
        page.box(std::min(x(1), x(times)), y, std::max(x(1), x(times)), y + 0.27,
                 times >= 1.0 ? ink::result : ink::second);
        page.text(3.6, y + 0.14, label, ink::line, 1, 9.5);
        page.text(std::max(x(1), x(times)) + 0.08, y + 0.14,
                  number(times, times < 0.1  ? 2
                                : times < 10 ? 1
                                             : 0) +
                      " x   " + row->second.size + ", beside " + row->second.peer,
                  ink::line, 0, 8.5);
        y -= 0.44;
    }
    page.save(to.gallery + "/speed", to.preview("speed"));
}

/// What is left of a size, so far from the origin.
struct precision {
    double distance, spacing, area_error, volume_error;
    bool combined;
};

precision measure_at(double distance) {
    const float d = static_cast<float>(distance);
    const double width = 10.123, depth = 8.456, height = 3.0;
    const auto corner = [&](double x, double y) {
        return ox::ox_3dvector(static_cast<float>(distance + x), static_cast<float>(distance + y),
                               0);
    };
    ox::ox_polygon room;
    room.add_contour(
        ox::ox_make_list({corner(0, 0), corner(width, 0), corner(width, depth), corner(0, depth)}));
    ox::ox_solid block, niche;
    block.extrusion(room, {0, 0, static_cast<float>(height)});
    niche.brick(corner(1.234, -1), 1.111f, 2.0f, 3.0f);
    ox::ox_csg csg;
    csg.unites(block);
    csg.substracts(niche);
    precision p;
    p.distance = distance;
    p.spacing = static_cast<double>(std::nextafter(d, 1e30f) - d);
    p.area_error = std::fabs(static_cast<double>(room.get_area()) - width * depth);
    p.combined = csg.compute();
    p.volume_error =
        p.combined ? std::fabs(csg.get_solid().get_volume() - (width * depth - 1.111) * height) : 0;
    return p;
}

void draw_distance(const folders& to) {
    std::vector<precision> rows;
    for (double exponent = 0; exponent <= 7.01; exponent += 0.25) {
        rows.push_back(measure_at(std::pow(10.0, exponent)));
    }
    sheet page(1, 1, 600, 330);
    const double wide = 1.9; // of a power of ten in x
    page.panel(0, "what is left of a room of 10.123 x 8.456 m, so far from the origin", -1.8, -7.6,
               7 * wide + 0.9, 2.0);
    for (int power = 0; power <= 7; ++power) {
        page.line(wide * power, -6.6, wide * power, 1.6, ox::ox_color(0.88f), 0.6);
        const char* names[] = {"1 m",   "10 m",   "100 m",   "1 km",
                               "10 km", "100 km", "1000 km", "10,000 km"};
        page.text(wide * power, -7, names[power], ink::line, 0.5, 8.5);
    }
    for (int power = -6; power <= 1; ++power) {
        page.line(0, power, 7 * wide, power, ox::ox_color(0.88f), 0.6);
        page.text(-0.15, power,
                  power < 0    ? "0." + std::string(static_cast<std::size_t>(-power - 1), '0') + "1"
                  : power == 0 ? "1"
                               : "10",
                  ink::line, 1, 8.5);
    }
    const auto log_of = [](double v) { return std::log10(std::max(v, 2e-7)); };
    contour spacing;
    for (const precision& p : rows) {
        const double x = wide * std::log10(p.distance);
        spacing.push_right({static_cast<float>(x), static_cast<float>(log_of(p.spacing)), 0});
        page.dot(x, log_of(p.area_error), ink::first, 2.4);
        if (p.combined) {
            page.dot(x, log_of(p.volume_error), ink::result, 2.4);
        } else {
            page.text(x, 1.75, "x", ink::wrong, 0.5, 9, true);
        }
        std::printf("at %10.0f m: spacing %.2g, area off by %.2g, volume by %.2g%s\n", p.distance,
                    p.spacing, p.area_error, p.volume_error, p.combined ? "" : ", not combined");
    }
    page.path(spacing, false, ink::line, 1.2);
    page.text(0.3, 1.55, "\u2014 spacing of floats (m)", ink::line, 0, 9);
    page.text(0.3, 1.05, "\u2022 error of the area (m\u00b2)", ink::first, 0, 9);
    page.text(0.3, 0.55, "\u2022 error of a combined volume (m\u00b3)", ink::result, 0, 9);
    page.text(0.3, 0.05, "x too far for ox_csg at 0.001", ink::wrong, 0, 9);
    page.save(to.figures + "/distance", to.preview("distance"));
}

} // namespace

void draw_charts(const folders& to, const std::string& benchmarks) {
    draw_speed(to, benchmarks);
    draw_distance(to);
}

} // namespace gallery
