#ifndef OX_SOLID_INTERNAL_CSG_EVALUATION_H
#define OX_SOLID_INTERNAL_CSG_EVALUATION_H

#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/solid/internal/csg/arrangement.h>
#include <ox/solid/internal/csg/operand.h>
#include <ox/solid/ox_csg.h>

namespace ox::internal::csg {

/// The boundary of a result, in the form of a solid's primary storage and as triangles of the same
/// vertices.
struct boundary {
    ox_list<ox_3dvector> vertices;
    ox_list<unsigned int> contours;
    ox_list<int> contour_sizes;
    ox_list<unsigned int> triangles; ///< three vertex indices each
    ox_list<int> origins;            ///< one for each face
};

/// How an evaluation ended.
enum class evaluation_end { done, refused, stopped };

/// Evaluates `operands` in order. Where it ends as `done`, `result` is the boundary; where an
/// operand cannot be used it ends as `refused` with the reasons in `problems`; where `report` gave
/// false, as `stopped`. What belongs to another end stays as it was.
evaluation_end evaluate(const std::vector<operand>& operands, float tolerance,
                        const progress_report& report, boundary& result,
                        std::vector<ox_csg_problem>& problems);

} // namespace ox::internal::csg

#endif
