#include <tests/reliability/mixed_work.h>

#include <memory>

#include <ox/core/ox_chrono.h>
#include <ox/core/ox_hash.h>
#include <ox/core/ox_log.h>
#include <ox/core/ox_random.h>
#include <ox/display/ox_camera.h>
#include <ox/display/ox_debug.h>
#include <ox/display/ox_snap.h>
#include <ox/geometry/ox_bezier.h>
#include <ox/geometry/ox_bspline.h>
#include <ox/geometry/ox_cubic_spline.h>
#include <ox/io/ox_csv.h>
#include <ox/mesh/ox_mesh.h>
#include <ox/mesh/ox_triangle_set.h>
#include <ox/mesh/ox_vertex_optimizer.h>
#include <ox/ox_functions.h>
#include <ox/polygon/ox_polygon_pieces.h>
#include <ox/polygon/ox_polygon_projection.h>
#include <ox/progress/ox_progress_manager.h>
#include <ox/solid/ox_csg.h>
#include <ox/structure/ox_loadshare.h>
#include <tests/reliability/failures/scenario.h>
#include <tests/support/random_shapes.h>

namespace mixed_work {

namespace {

using failures::told;
using ox::ox_3dvector;
using ox::ox_polygon;
using ox::ox_polygon_pieces;
using ox::ox_solid;

/// A place that depends on the number.
float shift(int number) {
    return static_cast<float>(number % 7) * 0.25f;
}

/// A square beside which others lie, with a hole.
ox_polygon region(int number) {
    ox_polygon polygon = support::rectangle_polygon(0, 0, 4, 4 + shift(number));
    polygon.add_contour(support::rectangle(1, 1, 2, 2));
    return polygon;
}

ox_solid wall(float at) {
    return support::brick_between(ox_3dvector(at, 0, 0), ox_3dvector(at + 4, 1, 3));
}

ox_solid opening(float at) {
    return support::brick_between(ox_3dvector(at + 1, -1, 1), ox_3dvector(at + 2, 2, 2));
}

std::string combine_polygons(int number) {
    ox_polygon polygon = region(number);
    const ox_polygon other = support::rectangle_polygon(shift(number), 1, 6, 3);
    if (number % 3 == 0) {
        polygon.unites(other);
    } else if (number % 3 == 1) {
        polygon.substracts(other);
    } else {
        polygon.intersects(other);
    }
    return told(polygon.get_contour_vertices(), polygon.get_area());
}

std::string grow_and_cut_polygons(int number) {
    ox_polygon polygon = region(number);
    polygon.offset(0.1f + shift(number), number % 3);
    const ox_polygon_pieces pieces(
        polygon,
        polygon.cut_by_plane(ox_3dvector(2, 0, 0), ox_3dvector(1.0f, shift(number), 0.0f), true));
    std::string areas;
    for (ox_polygon* piece : pieces) {
        areas += told(piece->get_area());
    }
    return areas;
}

std::string question_polygons(int number) {
    ox_polygon polygon = region(number);
    const ox::ox_polygon_projection projection(&polygon, 0.1f);
    return told(polygon.get_best_center(), polygon.contains(ox_3dvector(shift(number), 1, 0)),
                polygon.regular_distribution(0.5f), polygon.random_distribution(5, number),
                projection.contains(shift(number), 0.5f));
}

std::string combine_solids(int number) {
    ox_solid solid = wall(0);
    ox_solid other = opening(shift(number));
    if (number % 2 == 0) {
        solid.substracts(other);
    } else {
        solid.unites(other);
    }
    solid.clip(ox_3dvector(0, 0, 2.5f), ox_3dvector(0, 0, 1));
    return told(solid.get_vertices(), solid.get_volume());
}

std::string compute_combinations(int number) {
    ox::ox_csg csg;
    csg.unites(wall(0));
    csg.substracts(opening(shift(number)));
    csg.clips(ox_3dvector(0, 0, 2.5f), ox_3dvector(0, 0, 1));
    const bool is_done = csg.compute();
    return told(is_done, csg.get_solid().get_vertices(), csg.get_triangles().get_nb_triangles());
}

std::string work_on_meshes(int number) {
    ox_solid solid = wall(shift(number));
    ox::ox_vertex_optimizer optimizer(0.001f, 10.0f);
    optimizer.add_vertices(solid.get_tesselation_vertices());
    ox::ox_mesh mesh;
    mesh.set_vertices(optimizer.get_optimized_vertices());
    ox::ox_list<unsigned int> triangles;
    for (const unsigned int index : solid.get_tesselation_triangles()) {
        triangles.push_right(optimizer.get_mapping()[static_cast<int>(index)]);
    }
    mesh.set_triangles(triangles);
    mesh.build_half_edges();
    ox::ox_triangle_set set(3, 1);
    for (unsigned int i = 0; i < 3; ++i) {
        set.get_vertices()[i] = optimizer.get_optimized_vertices()[static_cast<int>(i)];
        set.get_triangles()[i] = i;
    }
    set.subdivide();
    set.optimize(0.001f, 10.0f);
    return told(mesh.is_closed(), set.get_nb_vertices(), set.get_vertices()[3]);
}

std::string share_loads(int number) {
    ox::ox_loadshare slab;
    slab.add_slab_contour(support::rectangle(0, 0, 4, 4));
    slab.add_beam(ox_3dvector(shift(number), 0, 0), ox_3dvector(1, 4, 0));
    slab.add_beam(ox_3dvector(3, 0, 0), ox_3dvector(3, 4, 0));
    slab.compute_weights(0.1f);
    return told(slab.get_weight(0), slab.get_weight(1));
}

std::string read_tables(int number) {
    ox::ox_csv table;
    table.add_column("numbers", ox::ox_make_list({number, 2, 3}));
    table.add_column("heights", ox::ox_make_list({shift(number), 2.5f}), 3);
    const std::string written = table.write_string();
    ox::ox_csv read;
    read.read_string(written);
    return written + told(read.get_nb_columns());
}

std::string follow_progress(int number) {
    ox::ox_progress_manager manager;
    manager.add_phase("load", "", 1.0);
    manager.add_phase("read", "load", 1.0 + number % 5);
    manager.add_phase("save", "", 2.0);
    manager.set_current_phase("read");
    return told(manager.get_current_phase(), manager.compute_phase_progress(0.5));
}

std::string evaluate_curves(int number) {
    ox::ox_bezier bezier(4 + number % 5);
    ox::ox_bspline spline(3, 8 + number % 5);
    ox::ox_cubic_spline through(
        ox::ox_make_list({ox::ox_2dvector(0.0f, shift(number)), ox::ox_2dvector(1.0f, 2.0f),
                          ox::ox_2dvector(2.0f, 0.0f)}));
    const ox::ox_list<float> matrix = ox::ox_make_list({2.0f, shift(number), 1.0f, 3.0f});
    return told(bezier.compute(0.3f)[1], spline.compute(0.5f)[2], through.compute(0.7f),
                ox_reverse_matrix(matrix));
}

std::string encode_texts(int number) {
    const std::string text = "caf\xe9 " + std::to_string(number);
    const ox::ox_list<unsigned char> bytes = ox_from_stdstring(text);
    ox_get_new_date();
    return ox_to_ansi(ox_to_utf8(text)) + told(ox_from_b64(ox_to_b64(bytes)), ox_uuid().size()) +
           ox::ox_chrono::to_xsd_datetime(86400LL * number) + ox_to_upper(text);
}

std::string keep_entries(int number) {
    ox::ox_hash<int, int> table;
    ox::ox_random random(number);
    for (int i = 0; i < 30; ++i) {
        table.set(random.dice(0, 100), i);
    }
    ox_log_thread_safe("a line of this thread");
    return told(table.get_keys(), random.dice_vector());
}

std::string look(int number) {
    ox::ox_camera camera(ox_3dvector(5, shift(number), 2), ox_3dvector(), ox_3dvector(0, 0, 1),
                         0.8f, 640, 480);
    float x = 0.0f;
    float y = 0.0f;
    const bool is_seen = camera.get_projection(ox_3dvector(0, 1, 0), x, y);
    ox::ox_snap snap(ox_3dvector(shift(number), 1, 1), 5.0f, 3, ox_3dvector());
    snap.check_plane(ox_3dvector(), ox_3dvector(0, 0, 1));
    ox::ox_debug node;
    node.children.push_right(new ox::ox_debug);
    node.shapes.add_point(snap.position, ox::ox_color(1.0f), 3);
    return told(is_seen, x, y, snap.position);
}

using work = std::string (*)(int);

const work kinds[] = {combine_polygons,
                      grow_and_cut_polygons,
                      question_polygons,
                      combine_solids,
                      compute_combinations,
                      work_on_meshes,
                      share_loads,
                      read_tables,
                      follow_progress,
                      evaluate_curves,
                      encode_texts,
                      keep_entries,
                      look};

} // namespace

const int kind_count = static_cast<int>(sizeof kinds / sizeof kinds[0]);

std::string run(int kind, int number) {
    return kinds[kind](number);
}

} // namespace mixed_work
