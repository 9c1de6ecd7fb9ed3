#include <ox/solid/internal/csg/evaluation.h>

#include <utility>

#include <ox/solid/internal/csg/clear_faces.h>
#include <ox/solid/internal/csg/half_space.h>
#include <ox/solid/internal/csg/overlay.h>
#include <ox/solid/internal/csg/result_boundary.h>
#include <ox/solid/internal/csg/scene.h>
#include <ox/solid/internal/csg/shell.h>
#include <ox/solid/internal/csg/slicing.h>
#include <ox/solid/internal/csg/snapping.h>
#include <ox/solid/internal/csg/working_grid.h>

namespace ox::internal::csg {

namespace {

// How much of the work is done after each stage.
constexpr double done_when_read = 0.05;
constexpr double done_when_placed = 0.1;
constexpr double done_when_clustered = 0.15;
constexpr double done_when_snapped = 0.2;
constexpr double done_when_sliced = 0.22;
constexpr double done_when_cut = 0.3;
constexpr double done_when_arranged = 0.8;

/// Reports the progress of one stage as part of the whole.
progress_report stage_report(const progress_report& report, double from, double to) {
    return [&report, from, to](double done) { return report(from + (to - from) * done); };
}

/// Reads one operand and closes it; a half-space becomes a shell without faces for now. False where
/// `report` ended the work.
bool read_operand(const operand& given, int number, float tolerance, const working_grid& grid,
                  const progress_report& report, shell& made,
                  std::vector<ox_csg_problem>& problems) {
    const std::size_t problem_count = problems.size();
    if (given.is_half_space) {
        check_half_space(given, number, problems);
        return report(1.0);
    }
    made = read_shell(given, number, tolerance, grid, problems);
    if (!report(0.3)) {
        return false;
    }
    if (problems.size() == problem_count) {
        weld(made, grid);
        if (!report(0.6)) {
            return false;
        }
        close_shell(made, number, grid, problems);
    }
    return report(1.0);
}

/// Reads the solids among the operands. False where `report` ended the work.
bool read_shells(const std::vector<operand>& operands, float tolerance, const working_grid& grid,
                 const progress_report& report, std::vector<shell>& shells,
                 std::vector<ox_csg_problem>& problems) {
    const double share = 1.0 / static_cast<double>(operands.size());
    shells.resize(operands.size());
    for (std::size_t i = 0; i < operands.size(); ++i) {
        const double done = static_cast<double>(i) * share;
        if (!read_operand(operands[i], static_cast<int>(i), tolerance, grid,
                          stage_report(report, done, done + share), shells[i], problems)) {
            return false;
        }
    }
    return true;
}

/// Gives the half-spaces their boxes around all solids.
void make_half_spaces(const std::vector<operand>& operands, const working_grid& grid,
                      std::vector<shell>& shells) {
    grid_box extent;
    for (const shell& placed : shells) {
        for (const grid_point& point : placed.points) {
            extent.include(point);
        }
    }
    for (std::size_t i = 0; i < operands.size(); ++i) {
        if (operands[i].is_half_space) {
            shells[i] = make_half_space(operands[i], extent, grid);
        }
    }
}

/// What the arrangement is given.
arrangement_input make_input(const std::vector<operand>& operands, const scene& faces,
                             const std::vector<face_triangle>& triangles) {
    arrangement_input input;
    input.points = faces.points;
    const std::vector<bool> is_clear = find_clear_triangles(faces, triangles);
    input.triangles.reserve(triangles.size());
    for (std::size_t t = 0; t < triangles.size(); ++t) {
        const scene_face& face = faces.faces[static_cast<std::size_t>(triangles[t].face)];
        input.triangles.push_back({triangles[t].vertices, face.operand, is_clear[t]});
    }
    for (const operand& given : operands) {
        input.operations.push_back(given.role);
    }
    return input;
}

/// Evaluates shells that are closed; false where `report` ended the work.
bool combine(const std::vector<operand>& operands, const std::vector<shell>& shells,
             const working_grid& grid, const progress_report& report, boundary& result) {
    scene faces;
    std::vector<face_triangle> triangles;
    if (!place_shells(shells, grid, stage_report(report, done_when_read, done_when_placed),
                      faces) ||
        !cluster_planes(faces, grid, stage_report(report, done_when_placed, done_when_clustered)) ||
        !snap_edges(faces, grid, stage_report(report, done_when_clustered, done_when_snapped)) ||
        !slice_long_planes(faces, stage_report(report, done_when_snapped, done_when_sliced)) ||
        !triangulate_faces(faces, stage_report(report, done_when_sliced, done_when_cut),
                           triangles)) {
        return false;
    }
    arrangement_result arranged;
    return arrange(make_input(operands, faces, triangles),
                   stage_report(report, done_when_cut, done_when_arranged), arranged) &&
           make_boundary(arranged, faces, triangles, grid,
                         stage_report(report, done_when_arranged, 1.0), result);
}

} // namespace

evaluation_end evaluate(const std::vector<operand>& operands, float tolerance,
                        const progress_report& report, boundary& result,
                        std::vector<ox_csg_problem>& problems) {
    const working_grid grid(operands, tolerance);
    std::vector<shell> shells;
    std::vector<ox_csg_problem> found;
    if (!read_shells(operands, tolerance, grid, stage_report(report, 0.0, done_when_read), shells,
                     found)) {
        return evaluation_end::stopped;
    }
    if (!found.empty()) {
        problems = std::move(found);
        return evaluation_end::refused;
    }
    make_half_spaces(operands, grid, shells);
    boundary made;
    if (!combine(operands, shells, grid, report, made)) {
        return evaluation_end::stopped;
    }
    result = std::move(made);
    return evaluation_end::done;
}

} // namespace ox::internal::csg
