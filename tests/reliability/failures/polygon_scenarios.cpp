#include <tests/reliability/failures/scenario.h>

#include <ox/polygon/ox_polygon_pieces.h>
#include <ox/polygon/ox_polygon_projection.h>
#include <tests/reliability/failures/shapes.h>

namespace failures {

namespace {

using ox::ox_3dvector;
using ox::ox_polygon;
using ox::ox_polygon_pieces;
using ox::ox_polygon_projection;

std::string contents_of(ox_polygon& polygon) {
    return told(polygon.get_contour_vertices(), polygon.get_contour_sizes(),
                polygon.get_contour_orientations(), polygon.get_contour_parents(),
                polygon.get_normal(), polygon.get_point());
}

template <typename Act>
scenario on_frame(const std::string& name, Act act) {
    return on(name, frame, act, contents_of);
}

/// The contours are merged before memory fails.
ox_polygon merged_frame() {
    ox_polygon polygon = frame();
    polygon.get_contour_vertices();
    return polygon;
}

template <typename Act>
scenario on_merged(const std::string& name, Act act) {
    return on(name, merged_frame, act, contents_of);
}

void add_building(std::vector<scenario>& all) {
    all.push_back(on_frame("PolygonGainsAContour", [](ox_polygon& polygon) {
        polygon.add_contour(support::rectangle(6, 0, 8, 2));
        return std::string();
    }));
    all.push_back(on_merged("PolygonIsAssigned", [](ox_polygon& polygon) {
        polygon = angle();
        return std::string();
    }));
    all.push_back(on_merged("PolygonIsTurned", [](ox_polygon& polygon) {
        polygon.set_normal(ox_3dvector(0.0f, 1.0f, 1.0f));
        return std::string();
    }));
    all.push_back(on_merged("PolygonIsMoved", [](ox_polygon& polygon) {
        polygon.set_point(ox_3dvector(0.0f, 0.0f, 1.0f));
        return std::string();
    }));
    all.push_back(on_merged("PolygonIsReversed", [](ox_polygon& polygon) {
        polygon.reverse();
        return std::string();
    }));
    all.push_back(on_merged("PolygonIsTransformed", [](ox_polygon& polygon) {
        ox::ox_matrix matrix;
        matrix.translation(ox_3dvector(1.0f, 2.0f, 3.0f));
        polygon.matrix_transform(matrix);
        return std::string();
    }));
}

void add_queries(std::vector<scenario>& all) {
    all.push_back(on_frame("PolygonMergesItsContours", [](ox_polygon& polygon) {
        return told(polygon.get_contour_vertices());
    }));
    all.push_back(on_frame("PolygonIsDividedIntoTriangles", [](ox_polygon& polygon) {
                      return told(polygon.get_tesselation_vertices(), polygon.get_area());
                  }).in_libraries());
    all.push_back(on_merged("PolygonTellsItsMeasures", [](ox_polygon& polygon) {
        return told(polygon.get_perimeter(), polygon.get_bounding_box().size,
                    polygon.count_outer_contours(), polygon.is_convex(0));
    }));
    all.push_back(on(
        "PolygonTellsItsBestCentre", angle,
        [](ox_polygon& polygon) { return told(polygon.get_best_center()); }, contents_of));
    all.push_back(on_merged("PolygonContainsAPoint", [](ox_polygon& polygon) {
        return told(polygon.contains(ox_3dvector(0.5f, 0.5f, 0.0f)));
    }));
    all.push_back(on_merged("PolygonStrewsPointsInAGrid", [](ox_polygon& polygon) {
        return told(polygon.regular_distribution(0.5f));
    }));
    all.push_back(on_merged("PolygonStrewsPointsAtRandom", [](ox_polygon& polygon) {
                      return told(polygon.random_distribution(20, 3));
                  }).in_libraries());
    all.push_back(on_merged("PolygonFillsARaster", [](ox_polygon& polygon) {
        bool grid[64] = {};
        return told(polygon.fill_regular_grid(grid, ox_3dvector(), ox_3dvector(0.5f, 0.0f, 0.0f),
                                              ox_3dvector(0.0f, 0.5f, 0.0f), 8, 8, 0.1f));
    }));
}

using boolean = void (ox_polygon::*)(const ox_polygon&);

scenario combination(const std::string& name, boolean operation) {
    return on_merged(name, [=](ox_polygon& polygon) {
        (polygon.*operation)(support::rectangle_polygon(2, 2, 6, 6));
        return std::string();
    });
}

void add_booleans(std::vector<scenario>& all) {
    all.push_back(combination("PolygonIsUnited", &ox_polygon::unites).in_libraries());
    all.push_back(combination("PolygonIsCutOut", &ox_polygon::substracts).in_libraries());
    all.push_back(combination("PolygonIsIntersected", &ox_polygon::intersects).in_libraries());
    for (const int join : {0, 1, 2}) {
        all.push_back(
            on_merged("PolygonGrowsWithJoin" + std::to_string(join), [join](ox_polygon& polygon) {
                polygon.offset(0.25f, join);
                return std::string();
            }).in_libraries());
    }
}

std::string areas_of(const ox_polygon_pieces& pieces) {
    std::string areas;
    for (ox_polygon* piece : pieces) {
        areas += told(piece->get_area());
    }
    return areas;
}

void add_cutting(std::vector<scenario>& all) {
    all.push_back(on_merged("PolygonIsCutByAPlane", [](ox_polygon& polygon) {
                      return areas_of(ox_polygon_pieces(
                          polygon, polygon.cut_by_plane(ox_3dvector(2.0f, 0.0f, 0.0f),
                                                        ox_3dvector(1.0f, 0.0f, 0.0f), true)));
                  }).in_libraries());
    all.push_back(on_merged("PolygonIsMetByAPlane", [](ox_polygon& polygon) {
        return told(polygon.intersect_by_plane(ox_3dvector(0.5f, 0.0f, 0.0f),
                                               ox_3dvector(1.0f, 0.0f, 0.0f)));
    }));
    all.push_back(on_frame("PolygonIsSplit",
                           [](ox_polygon& polygon) {
                               polygon.add_contour(support::rectangle(6, 0, 8, 2));
                               const std::string areas = areas_of(
                                   ox_polygon_pieces(polygon, polygon.split_to_polygons()));
                               return areas;
                           })
                      .with(promise::some_of_it)
                      .in_libraries());
    all.push_back(on_merged("PolygonIsSimplified", [](ox_polygon& polygon) {
        polygon.optimize_contours(1.5f);
        return std::string();
    }));
    all.push_back(of("ContourIsSimplified", [] {
        ox::ox_list<ox_3dvector> contour = support::rectangle(0, 0, 4, 4);
        contour.insert(1, ox_3dvector(2.0f, 0.0f, 0.0f));
        ox_polygon::optimize_contour(contour, 0.1f);
        return told(contour, ox_polygon::is_clockwise(contour, ox_3dvector(0.0f, 0.0f, 1.0f)));
    }));
}

void add_projection(std::vector<scenario>& all) {
    all.push_back(on_frame("ProjectionIsMade", [](ox_polygon& polygon) {
        return told(ox_polygon_projection(&polygon, 0.1f).get_size());
    }));
    all.push_back(on_merged("ProjectionIsAsked", [](ox_polygon& polygon) {
        const ox_polygon_projection projection(&polygon, 0.1f);
        ox::ox_2dvector hit;
        ox::ox_2dvector edge;
        float distance = 0.0f;
        const int hits = projection.raytrace(ox::ox_2dvector(-1.0f, 0.5f),
                                             ox::ox_2dvector(1.0f, 0.0f), hit, edge, distance);
        return told(hits, hit, edge, distance, projection.contains(0.5f, 0.5f));
    }));
}

} // namespace

std::vector<scenario> polygon_scenarios() {
    std::vector<scenario> all;
    add_building(all);
    add_queries(all);
    add_booleans(all);
    add_cutting(all);
    add_projection(all);
    return all;
}

} // namespace failures
