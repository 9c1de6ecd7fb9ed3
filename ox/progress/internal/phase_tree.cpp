#include <ox/progress/internal/phase_tree.h>

#include <cmath>

namespace ox::internal {

namespace {

using phase_list = std::vector<ox_progress_manager_phase*>;

/// Tiles `[start, end]` with one row of siblings, in proportion to their weights. False, and the
/// intervals stay as they are, when the weights have no sum to take proportions of.
bool tile_siblings(const phase_list& siblings, double start, double end) {
    double sum = 0.0;
    for (const ox_progress_manager_phase* phase : siblings) {
        sum += phase->weight;
    }
    const double unit = 1.0 / sum;
    if (!(sum > 0.0) || !std::isfinite(sum) || !std::isfinite(unit)) {
        return false;
    }
    double cursor = start;
    for (ox_progress_manager_phase* phase : siblings) {
        phase->start = cursor;
        cursor = cursor + unit * phase->weight * (end - start);
        phase->end = cursor;
    }
    return true;
}

} // namespace

ox_progress_manager_phase* phase_tree::find(const std::string& name) const {
    const auto place = by_name.find(name);
    return place != by_name.end() ? place->second : nullptr;
}

ox_progress_manager_phase* phase_tree::append(const std::string& name,
                                              ox_progress_manager_phase* parent, double weight) {
    phases.push_back(std::make_unique<ox_progress_manager_phase>());
    ox_progress_manager_phase* const phase = phases.back().get();
    phase->name = name;
    phase->weight = weight;
    phase->parent = parent;
    (parent != nullptr ? parent->children : top_level).push_back(phase);
    by_name.emplace(name, phase);
    return phase;
}

void phase_tree::tile_children(ox_progress_manager_phase* parent) {
    phase_list pending;
    if (parent != nullptr) {
        pending.push_back(parent);
    } else if (tile_siblings(top_level, 0.0, 1.0)) {
        pending = top_level;
    }
    while (!pending.empty()) {
        const ox_progress_manager_phase* const phase = pending.back();
        pending.pop_back();
        if (tile_siblings(phase->children, phase->start, phase->end)) {
            pending.insert(pending.end(), phase->children.begin(), phase->children.end());
        }
    }
}

void phase_tree::sum_durations() {
    for (auto phase = phases.rbegin(); phase != phases.rend(); ++phase) {
        const phase_list& children = (*phase)->children;
        if (children.empty()) {
            continue;
        }
        double sum = 0.0;
        for (const ox_progress_manager_phase* child : children) {
            sum += child->duration;
        }
        (*phase)->duration = sum;
    }
}

std::vector<ox_progress_manager_phase*> phase_tree::in_preorder() const {
    phase_list listed;
    listed.reserve(phases.size());
    phase_list pending(top_level.rbegin(), top_level.rend());
    while (!pending.empty()) {
        ox_progress_manager_phase* const phase = pending.back();
        pending.pop_back();
        listed.push_back(phase);
        pending.insert(pending.end(), phase->children.rbegin(), phase->children.rend());
    }
    return listed;
}

} // namespace ox::internal
