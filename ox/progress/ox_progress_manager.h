#ifndef OX_PROGRESS_OX_PROGRESS_MANAGER_H
#define OX_PROGRESS_OX_PROGRESS_MANAGER_H

#include <memory>
#include <string>

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>

namespace ox {

struct ox_progress_manager_state;

/// Turns the progress of a long computation into one number between 0 and 1, and carries the
/// caller's wish to stop back to the computation.
///
/// The computation is divided into named phases, arranged as a tree. The phases of one parent tile
/// its interval in the order they were added, each with a length in proportion to its weight; those
/// at the top tile `[0, 1]`. An application derives a class, overrides `set_progress` to move its
/// progress bar, and returns false from it to stop the work. Workers (`ox_thread`, `ox_csv`) are
/// given the manager together with their share of the bar.
///
/// Learning: with an experience file the seconds spent in each phase are measured, blended with
/// what the file held and written back by `finalize`; from the next run on they are the weights, so
/// that the bar moves at a steady pace. The file has one line `name seconds` per phase, written and
/// read by the C library in the process's locale. A name with blanks, or an empty one, can be
/// written but not read back: the reading ends there.
///
/// Degenerate input (nothing is reported but where it says so):
/// - siblings whose weights have a sum that is not positive, not finite or too small to be divided
///   by: they keep the intervals they had, `[0, 0]` when new;
/// - negative weights in a positive sum: the intervals overlap, as the proportion says;
/// - an unknown parent: the phase goes to the top; an unknown current phase: there is none then;
/// - an experience file that cannot be read: "Could not read from experience file" is logged and
///   the given weights count;
/// - an experience line that is broken, whose number is not finite or whose name is longer than 255
///   bytes: the lines before it count, the rest is not read.
///
/// Ownership: copies share one set of phases, which goes with the last of them; what one changes
/// the others see. One manager, its copies included, belongs to one thread at a time.
///
/// \code
/// class bar : public ox::ox_progress_manager {
///     bool set_progress(double progress) override { return draw(progress) && !cancelled; }
/// };
///
/// bar progress;
/// progress.set_experience_learning_file("durations.txt");
/// progress.add_phase("load", "", 1.0);
/// progress.add_phase("compute", "", 3.0);
/// progress.set_current_phase("load");                             // reports 0
/// progress.set_progress(progress.compute_phase_progress(0.5));    // 0.125 in the first run
/// progress.set_current_phase("compute");                          // reports 0.25
/// progress.finalize();                                            // reports 1, writes the file
/// \endcode
class OX_EXPORT ox_progress_manager {
public:
    /// No phases, no current phase, no experience file.
    ox_progress_manager();

    /// Shares everything with `other`.
    ox_progress_manager(const ox_progress_manager& other);

    /// Shares everything with `other` from now on.
    ox_progress_manager& operator=(const ox_progress_manager& other);

    /// Lets go of the phases, which go with their last owner.
    virtual ~ox_progress_manager();

    // Reporting

    /// Receives the overall progress in `[0, 1]`; the result false asks the computation to stop.
    /// To be overridden: this one ignores the value and returns true.
    virtual bool set_progress(double progress);

    /// Maps the fraction (0 to 1) of the current phase's work to the overall progress:
    /// `start + (end - start) * fraction`, or `fraction` itself without a current phase. O(1).
    double compute_phase_progress(double fraction);

    // Phases

    /// Adds the phase `name` under the phase `parent`, or at the top when `parent` is empty or
    /// unknown, and tiles the parent's interval anew. A phase that exists stays where it is and
    /// gets the weight, and the whole tree is tiled anew. A weight learnt under that name takes the
    /// place of `weight`. O(n) in the phases that are tiled.
    void add_phase(const std::string& name, const std::string& parent, double weight);

    /// Ends the current phase, whose duration becomes the time since it became current (earlier
    /// stays are forgotten), and makes the phase `name` current, none when there is no such phase.
    /// Starts its stopwatch and reports its start, ignoring the answer.
    void set_current_phase(const std::string& name);

    /// The name of the current phase, empty when there is none.
    std::string get_current_phase() const;

    /// Seconds since the current phase became current, 0 when there is none.
    double get_current_phase_duration() const;

    /// Lists every phase, each before its children: its name, its parent's name (empty at the top),
    /// its weight and its duration in seconds. The duration of a phase with children is the sum of
    /// theirs, which replaces its own. `names`, `parents` and `weights` are emptied first;
    /// `durations` is not, its new entries follow what it holds. O(n).
    void get_all_phases(ox_list<std::string>& names, ox_list<std::string>& parents,
                        ox_list<double>& weights, ox_list<double>& durations);

    // Learning

    /// Forgets what was learnt and reads the experience file `path`, whose seconds become the
    /// weights of the phases added from now on. `finalize` will write the file, also when it cannot
    /// be read now. An empty path ends the learning (and logs that it cannot be read).
    void set_experience_learning_file(const std::string& path);

    /// Ends the run: reports 1, ends the current phase and, with an experience file, replaces it by
    /// the durations of all phases in the order of `get_all_phases`. A phase that the file knew
    /// gets 0.9 of the seconds learnt before and 0.1 of those measured now; others are written as
    /// measured. A file that cannot be written is left out silently.
    void finalize();

private:
    std::shared_ptr<ox_progress_manager_state> state;
};

} // namespace ox

#endif
