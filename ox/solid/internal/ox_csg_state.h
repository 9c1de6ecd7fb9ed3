#ifndef OX_SOLID_INTERNAL_OX_CSG_STATE_H
#define OX_SOLID_INTERNAL_OX_CSG_STATE_H

#include <vector>

#include <ox/solid/internal/csg/evaluation.h>
#include <ox/solid/internal/csg/operand.h>
#include <ox/solid/ox_csg.h>

namespace ox {

class ox_progress_manager;

/// The record behind a combination: its operands, what became of them, and who is told meanwhile.
struct ox_csg_state {
    /// The answers that a record can hold already.
    enum class answer { none, result, problems };

    explicit ox_csg_state(float given_tolerance);

    /// Appends an operand and forgets the answer.
    void append(internal::csg::operand added);

    /// Drops the result and the problems: the operands changed.
    void forget_answer();

    float tolerance;
    std::vector<internal::csg::operand> operands;

    answer known = answer::none;
    internal::csg::boundary result;       // of the answer `result`
    std::vector<ox_csg_problem> problems; // of the answer `problems`

    // Not owned; null for none
    ox_progress_manager* progress = nullptr;
    double progress_min = 0.0;
    double progress_max = 1.0;
};

} // namespace ox

#endif
