#ifndef OX_BENCH_SUPPORT_CONTESTANT_H
#define OX_BENCH_SUPPORT_CONTESTANT_H

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace bench {

/// A number that a run came to (a volume, an area, a count). `tolerance` is how far another
/// contestant's number of that name may be from it, as a fraction of the larger one.
struct fact {
    std::string name;
    double value = 0.0;
    double tolerance = 0.0;
};

/// A part of a run that is timed for itself.
struct phase {
    std::string name;
    double seconds = 0.0;
};

/// One run of a contestant on input made for it: the construction and the destruction are not
/// timed, `run` is.
class trial {
public:
    virtual ~trial() = default;
    virtual void run() = 0;
    virtual std::vector<fact> facts() = 0;
    virtual std::vector<phase> phases() { return {}; }
};

/// The library or a peer, ready to run one workload at one size. One whose package is not
/// installed has no `prepare` and is left out.
struct contestant {
    std::string name;
    std::function<std::unique_ptr<trial>()> prepare;

    bool is_present() const { return prepare != nullptr; }
};

/// A contestant that is not installed.
inline contestant absent(std::string name) {
    return {std::move(name), nullptr};
}

/// Makes a contestant of three functions. `make()` returns a fresh state (input and room for the
/// result), `run(state)` is timed, and `facts_of(state)` tells what came out.
template <class make_state, class run_state, class facts_of_state>
contestant make_contestant(std::string name, make_state make, run_state run,
                           facts_of_state facts_of) {
    using state_type = decltype(make());
    class state_trial : public trial {
    public:
        state_trial(const make_state& make, run_state run_with, facts_of_state facts_with)
            : state(make()), run_function(std::move(run_with)),
              facts_function(std::move(facts_with)) {}
        void run() override { run_function(state); }
        std::vector<fact> facts() override { return facts_function(state); }

    private:
        state_type state;
        run_state run_function;
        facts_of_state facts_function;
    };
    return {std::move(name),
            [=] { return std::unique_ptr<trial>(new state_trial(make, run, facts_of)); }};
}

} // namespace bench

#endif
