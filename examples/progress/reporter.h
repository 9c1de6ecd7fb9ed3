#ifndef OX_EXAMPLES_PROGRESS_REPORTER_H
#define OX_EXAMPLES_PROGRESS_REPORTER_H

#include <examples/progress/pace.h>
#include <examples/support/progress_bar.h>

#include <ox/core/ox_chrono.h>
#include <ox/progress/ox_progress_manager.h>

#include <string>

namespace progress_example {

/// Shows the progress as a bar and hands Ctrl-C to the work: from then on `set_progress` answers
/// false, until a phase that could be ended accepts the stop. The phases after it go on with what
/// there is.
class reporter : public ox::ox_progress_manager {
public:
    /// Learns the durations of the phases, which are to be added from now on, in the given file.
    explicit reporter(const std::string& experience_file);

    /// Moves the bar. False when Ctrl-C was pressed and no phase has accepted it.
    bool set_progress(double progress) override;

    /// Ends the phase at hand and begins `phase`.
    void begin(const std::string& phase);

    /// The phase at hand is over because of Ctrl-C.
    void accept_stop();

    /// Ends the last phase. A run that was not stopped teaches the next one.
    void finish();

    /// The first phase that accepted a stop, empty when there was none.
    const std::string& stopped_in() const { return stopped_phase; }

    /// How evenly the bar moved.
    const pace& get_pace() const { return measured; }

private:
    ox_examples::progress_bar bar;
    ox::ox_chrono clock;
    pace measured;
    std::string stopped_phase;
};

} // namespace progress_example

#endif
