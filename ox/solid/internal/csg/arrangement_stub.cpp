#include <ox/solid/internal/csg/arrangement.h>
namespace ox::internal::csg {
bool arrange(const arrangement_input& input, const progress_report&, arrangement_result& result) {
    result = {};
    for (auto& p : input.points)
        result.points.push_back({double(p.x), double(p.y), double(p.z)});
    int i = 0;
    for (auto& t : input.triangles) {
        result.pieces.push_back({i++, false, t.operand, (int)result.edges.size(), 3});
        for (int k = 0; k < 3; ++k)
            result.edges.push_back({t.vertices[k], t.vertices[(k + 1) % 3]});
    }
    return true;
}
} // namespace ox::internal::csg
