#include <ox/progress/ox_progress_manager.h>

#include <ox/core/ox_chrono.h>
#include <ox/core/ox_log.h>
#include <ox/progress/internal/experience_file.h>
#include <ox/progress/internal/phase_tree.h>

namespace ox {

using namespace internal;

namespace {

/// How much of a learnt duration stays in one run. Learning is slow on purpose: one unusual run
/// moves a duration by a tenth of the difference only.
constexpr double kept_experience = 0.9;
constexpr double added_experience = 0.1;

} // namespace

struct ox_progress_manager_state {
    /// Ends the timing of the current phase.
    void store_duration() {
        if (current != nullptr) {
            current->duration = stopwatch.elapsed();
        }
    }

    /// Keeps the first of several durations of one name.
    void learn(const std::vector<phase_experience>& lines) {
        experience.clear();
        experience.insert(lines.begin(), lines.end());
    }

    /// The duration of a finished phase, blended with what was learnt before.
    double blended_duration(const ox_progress_manager_phase& phase) const {
        const auto learnt = experience.find(phase.name);
        return learnt == experience.end()
                   ? phase.duration
                   : kept_experience * learnt->second + added_experience * phase.duration;
    }

    phase_tree tree;
    ox_progress_manager_phase* current = nullptr;
    ox_chrono stopwatch; // runs since the current phase became current
    std::string experience_path;
    std::unordered_map<std::string, double> experience; // seconds by phase name
};

ox_progress_manager::ox_progress_manager() : state(std::make_shared<ox_progress_manager_state>()) {}

ox_progress_manager::ox_progress_manager(const ox_progress_manager& other) = default;

ox_progress_manager& ox_progress_manager::operator=(const ox_progress_manager& other) = default;

ox_progress_manager::~ox_progress_manager() = default;

bool ox_progress_manager::set_progress(double) {
    return true;
}

double ox_progress_manager::compute_phase_progress(double fraction) {
    const ox_progress_manager_phase* const phase = state->current;
    return phase != nullptr ? phase->start + (phase->end - phase->start) * fraction : fraction;
}

void ox_progress_manager::add_phase(const std::string& name, const std::string& parent,
                                    double weight) {
    const auto learnt = state->experience.find(name);
    const double used_weight = learnt != state->experience.end() ? learnt->second : weight;
    if (ox_progress_manager_phase* const known = state->tree.find(name)) {
        known->weight = used_weight;
        state->tree.tile_children(nullptr);
        return;
    }
    ox_progress_manager_phase* const above = parent.empty() ? nullptr : state->tree.find(parent);
    state->tree.append(name, above, used_weight);
    state->tree.tile_children(above);
}

void ox_progress_manager::set_current_phase(const std::string& name) {
    state->store_duration();
    state->current = state->tree.find(name);
    if (state->current != nullptr) {
        state->stopwatch.reset();
        state->stopwatch.start();
        set_progress(state->current->start);
    }
}

std::string ox_progress_manager::get_current_phase() const {
    return state->current != nullptr ? state->current->name : std::string();
}

double ox_progress_manager::get_current_phase_duration() const {
    return state->current != nullptr ? state->stopwatch.elapsed() : 0.0;
}

void ox_progress_manager::get_all_phases(ox_list<std::string>& names, ox_list<std::string>& parents,
                                         ox_list<double>& weights, ox_list<double>& durations) {
    names.clear();
    parents.clear();
    weights.clear();
    state->tree.sum_durations();
    for (const ox_progress_manager_phase* phase : state->tree.in_preorder()) {
        names.push_right(phase->name);
        parents.push_right(phase->parent != nullptr ? phase->parent->name : std::string());
        weights.push_right(phase->weight);
        durations.push_right(phase->duration);
    }
}

void ox_progress_manager::set_experience_learning_file(const std::string& path) {
    state->experience_path = path;
    std::vector<phase_experience> lines;
    if (!read_experience(path, lines)) {
        ox_log_thread_safe("Could not read from experience file");
    }
    state->learn(lines);
}

void ox_progress_manager::finalize() {
    set_progress(1.0);
    set_current_phase("");
    if (state->experience_path.empty()) {
        return;
    }
    state->tree.sum_durations();
    std::vector<phase_experience> lines;
    for (const ox_progress_manager_phase* phase : state->tree.in_preorder()) {
        lines.emplace_back(phase->name, state->blended_duration(*phase));
    }
    state->learn(lines);
    write_experience(state->experience_path, lines);
}

} // namespace ox
