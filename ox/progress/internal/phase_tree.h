#ifndef OX_PROGRESS_INTERNAL_PHASE_TREE_H
#define OX_PROGRESS_INTERNAL_PHASE_TREE_H

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace ox::internal {

/// One phase of a computation, and the part of the progress bar that belongs to it.
struct ox_progress_manager_phase {
    std::string name;
    double weight = 0.0;
    double start = 0.0;
    double end = 0.0;
    double duration = 0.0; ///< seconds
    ox_progress_manager_phase* parent = nullptr;
    std::vector<ox_progress_manager_phase*> children; ///< in the order they were added
};

/// The phases of one progress manager. A tree may be as deep as it has phases, so nothing here
/// recurses: the phases are owned by one flat list, and walks keep a stack of their own.
class phase_tree {
public:
    /// The phase of that name, null when there is none. O(1).
    ox_progress_manager_phase* find(const std::string& name) const;

    /// Appends a phase to the children of `parent`, to the top level when that is null. No phase
    /// may have its name. Returns it.
    ox_progress_manager_phase* append(const std::string& name, ox_progress_manager_phase* parent,
                                      double weight);

    /// Tiles the interval of `parent` with its children, and theirs in turn; the whole tree from
    /// `[0, 1]` when that is null.
    void tile_children(ox_progress_manager_phase* parent);

    /// Gives every phase with children the sum of their durations.
    void sum_durations();

    /// All phases, each before its children, siblings in the order they were added.
    std::vector<ox_progress_manager_phase*> in_preorder() const;

private:
    std::vector<std::unique_ptr<ox_progress_manager_phase>> phases; ///< parents before children
    std::vector<ox_progress_manager_phase*> top_level;
    std::unordered_map<std::string, ox_progress_manager_phase*> by_name;
};

} // namespace ox::internal

#endif
