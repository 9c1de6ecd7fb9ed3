#include <tests/reliability/failures/scenario.h>

#include <fstream>

#include <ox/progress/ox_progress_manager.h>
#include <ox/progress/ox_thread.h>

namespace failures {

namespace {

using ox::ox_list;
using ox::ox_progress_manager;

const char* const experience_path = "failing_memory_experience_with_a_long_name.txt";

ox_progress_manager phases() {
    ox_progress_manager manager;
    manager.add_phase("a phase whose name is longer than a string object holds", "", 1.0);
    manager.add_phase("second", "", 3.0);
    return manager;
}

std::string contents_of(ox_progress_manager& manager) {
    ox_list<std::string> names;
    ox_list<std::string> parents;
    ox_list<double> weights;
    ox_list<double> durations;
    manager.get_all_phases(names, parents, weights, durations);
    return told(names, parents, weights, manager.get_current_phase());
}

template <typename Act>
scenario on_phases(const std::string& name, Act act) {
    return on(name, phases, act, contents_of);
}

void write_experience() {
    std::ofstream(experience_path) << "third 2.5\n";
}

/// Ten steps, added up.
class sum : public ox::ox_thread {
public:
    bool run(unsigned int step, unsigned int) override {
        total += step < 10 ? step : 0;
        return step < 10;
    }

    unsigned int total = 0;
};

} // namespace

std::vector<scenario> progress_scenarios() {
    std::vector<scenario> all;
    all.push_back(on_phases("ProgressGainsAPhase", [](ox_progress_manager& manager) {
        manager.add_phase("third, with a name that is longer than a string object holds", "second",
                          2.0);
        return std::string();
    }));
    all.push_back(on_phases("ProgressEntersAPhase", [](ox_progress_manager& manager) {
        manager.set_current_phase("second");
        return told(manager.compute_phase_progress(0.5));
    }));
    all.push_back(on_phases("ProgressListsItsPhases",
                            [](ox_progress_manager& manager) { return contents_of(manager); }));
    all.push_back(on_phases("ExperienceIsRead", [](ox_progress_manager& manager) {
                      write_experience();
                      manager.set_experience_learning_file(experience_path);
                      manager.add_phase("third", "", 1.0);
                      return std::string();
                  }).with(promise::some_of_it));
    all.push_back(on_phases("ExperienceIsWritten", [](ox_progress_manager& manager) {
                      manager.set_experience_learning_file(experience_path);
                      manager.finalize();
                      return std::string();
                  }).with(promise::some_of_it));
    all.push_back(on(
        "ThreadRunsOnItsCaller", [] { return sum(); },
        [](sum& work) {
            work.total = 0;
            work.start(1);
            return told(work.total);
        },
        [](sum&) { return std::string(); }));
    return all;
}

} // namespace failures
