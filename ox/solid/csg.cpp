#include <ox/solid/ox_csg.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include <ox/progress/ox_progress_manager.h>
#include <ox/solid/internal/ox_csg_state.h>

namespace ox {

using namespace internal::csg;

namespace {

/// Model units: the tolerance where none, or none that makes sense, is given.
constexpr float default_csg_tolerance = 0.001f;

/// The operand that a solid is.
operand read_operand(operation role, const ox_solid& solid) {
    operand read;
    read.role = role;
    read.vertices = solid.get_vertices();
    read.contours = solid.get_contours();
    read.contour_sizes = solid.get_contour_sizes();
    return read;
}

/// Passes the progress of an evaluation on to the share of the bar that it has.
progress_report make_report(const ox_csg_state& state) {
    return [&state](double done) {
        if (state.progress == nullptr) {
            return true;
        }
        const double share = state.progress->compute_phase_progress(done);
        return state.progress->set_progress(state.progress_min +
                                            (state.progress_max - state.progress_min) * share);
    };
}

} // namespace

ox_csg_state::ox_csg_state(float given_tolerance)
    : tolerance(std::isfinite(given_tolerance) && given_tolerance >= 0.0f ? given_tolerance
                                                                          : default_csg_tolerance) {
}

void ox_csg_state::append(operand added) {
    operands.push_back(std::move(added));
    forget_answer();
}

void ox_csg_state::forget_answer() {
    known = answer::none;
    result = boundary();
    problems.clear();
}

// Construction and copying

ox_csg::ox_csg() : ox_csg(default_csg_tolerance) {}

ox_csg::ox_csg(float tolerance) : state(std::make_unique<ox_csg_state>(tolerance)) {}

ox_csg::ox_csg(const ox_csg& other)
    : state(other.state ? std::make_unique<ox_csg_state>(*other.state) : nullptr) {
    if (state) {
        state->progress = nullptr;
    }
}

ox_csg::ox_csg(ox_csg&& other) noexcept = default;

ox_csg& ox_csg::operator=(const ox_csg& other) {
    if (this != &other) {
        *this = ox_csg(other);
    }
    return *this;
}

ox_csg& ox_csg::operator=(ox_csg&& other) noexcept {
    if (this != &other) {
        state = std::move(other.state);
    }
    return *this;
}

ox_csg::~ox_csg() = default;

ox_csg_state& ox_csg::get_state() {
    if (!state) {
        state = std::make_unique<ox_csg_state>(default_csg_tolerance);
    }
    return *state;
}

// Operands

void ox_csg::unites(const ox_solid& operand) {
    get_state().append(read_operand(operation::unite, operand));
}

void ox_csg::substracts(const ox_solid& operand) {
    get_state().append(read_operand(operation::substract, operand));
}

void ox_csg::intersects(const ox_solid& operand) {
    get_state().append(read_operand(operation::intersect, operand));
}

void ox_csg::clips(const ox_3dvector& point, const ox_3dvector& normal) {
    operand half_space;
    half_space.role = operation::substract;
    half_space.is_half_space = true;
    half_space.point = point;
    half_space.normal = normal;
    get_state().append(std::move(half_space));
}

void ox_csg::clear() {
    if (state) {
        state->operands.clear();
        state->forget_answer();
    }
}

int ox_csg::get_nb_operands() const {
    return state ? static_cast<int>(state->operands.size()) : 0;
}

// Evaluation

void ox_csg::set_progress_manager(ox_progress_manager* manager, double min, double max) {
    ox_csg_state& held = get_state();
    held.progress = manager;
    held.progress_min = min;
    held.progress_max = max;
}

bool ox_csg::compute() {
    using answer = ox_csg_state::answer;
    ox_csg_state& held = get_state();
    if (held.known == answer::none) {
        switch (evaluate(held.operands, held.tolerance, make_report(held), held.result,
                         held.problems)) {
        case evaluation_end::done:
            held.known = answer::result;
            break;
        case evaluation_end::refused:
            held.known = answer::problems;
            break;
        case evaluation_end::stopped:
            break;
        }
    }
    return held.known == answer::result;
}

// Result

ox_solid ox_csg::get_solid() const {
    ox_solid solid;
    if (state) {
        solid.set_vertices(state->result.vertices);
        solid.set_contours(state->result.contours);
        solid.set_contour_sizes(state->result.contour_sizes);
    }
    return solid;
}

ox_triangle_set ox_csg::get_triangles() const {
    ox_triangle_set set;
    if (state) {
        const boundary& result = state->result;
        set.allocate(static_cast<unsigned int>(result.vertices.size()),
                     static_cast<unsigned int>(result.triangles.size() / 3));
        std::copy(result.vertices.begin(), result.vertices.end(), set.get_vertices());
        std::copy(result.triangles.begin(), result.triangles.end(), set.get_triangles());
    }
    return set;
}

ox_list<int> ox_csg::get_origins() const {
    return state ? state->result.origins : ox_list<int>();
}

// Problems

int ox_csg::get_nb_problems() const {
    return state ? static_cast<int>(state->problems.size()) : 0;
}

const ox_csg_problem& ox_csg::get_problem(int index) const {
    static const ox_csg_problem none;
    return index >= 0 && index < get_nb_problems()
               ? state->problems[static_cast<std::size_t>(index)]
               : none;
}

} // namespace ox
