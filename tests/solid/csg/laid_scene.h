#ifndef OX_TESTS_SOLID_CSG_LAID_SCENE_H
#define OX_TESTS_SOLID_CSG_LAID_SCENE_H

#include <vector>

#include <gtest/gtest.h>

#include <ox/solid/internal/csg/overlay.h>
#include <ox/solid/internal/csg/shell.h>
#include <ox/solid/internal/csg/slicing.h>
#include <ox/solid/internal/csg/snapping.h>
#include <ox/solid/ox_solid.h>

namespace csg_test {

/// A report that never ends the work.
inline bool keep_going(double) {
    return true;
}

/// The operand that a solid is.
inline ox::internal::csg::operand operand_of(const ox::ox_solid& solid) {
    ox::internal::csg::operand given;
    given.vertices = solid.get_vertices();
    given.contours = solid.get_contours();
    given.contour_sizes = solid.get_contour_sizes();
    return given;
}

/// The scene of some solids whose edges are snapped.
inline ox::internal::csg::scene snapped_scene(const std::vector<ox::ox_solid>& solids,
                                              float tolerance = 0.001f) {
    using namespace ox::internal::csg;
    std::vector<operand> operands;
    for (const ox::ox_solid& solid : solids) {
        operands.push_back(operand_of(solid));
    }
    const working_grid grid(operands, tolerance);
    std::vector<shell> shells;
    std::vector<ox::ox_csg_problem> problems;
    for (const operand& given : operands) {
        shells.push_back(read_shell(given, 0, tolerance, grid, problems));
        weld(shells.back(), grid);
        close_shell(shells.back(), 0, grid, problems);
    }
    EXPECT_TRUE(problems.empty());
    scene faces;
    EXPECT_TRUE(place_shells(shells, grid, keep_going, faces));
    EXPECT_TRUE(cluster_planes(faces, grid, keep_going));
    EXPECT_TRUE(snap_edges(faces, grid, keep_going));
    return faces;
}

/// The scene of some solids after all stages before the arrangement, and its triangles.
struct laid_scene {
    ox::internal::csg::scene faces;
    std::vector<ox::internal::csg::face_triangle> triangles;

    explicit laid_scene(const std::vector<ox::ox_solid>& solids) : faces(snapped_scene(solids)) {
        EXPECT_TRUE(ox::internal::csg::slice_long_planes(faces, keep_going));
        EXPECT_TRUE(ox::internal::csg::triangulate_faces(faces, keep_going, triangles));
    }
};

} // namespace csg_test

#endif
