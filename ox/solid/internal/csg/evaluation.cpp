#include <ox/solid/internal/csg/evaluation.h>

namespace ox::internal::csg {

evaluation_end evaluate(const std::vector<operand>& operands, float /*tolerance*/,
                        const progress_report& /*report*/, boundary& result,
                        std::vector<ox_csg_problem>& /*problems*/) {
    if (operands.empty()) {
        result = boundary();
        return evaluation_end::done;
    }
    return evaluation_end::stopped;
}

} // namespace ox::internal::csg
