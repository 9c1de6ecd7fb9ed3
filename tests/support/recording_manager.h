#ifndef OX_TESTS_SUPPORT_RECORDING_MANAGER_H
#define OX_TESTS_SUPPORT_RECORDING_MANAGER_H

#include <ox/progress/ox_progress_manager.h>
#include <vector>

/// Keeps what it is told, and asks to stop at the report of a given number, counted from 0.
class recording_manager : public ox::ox_progress_manager {
public:
    explicit recording_manager(int stopping_report = -1) : stop_at(stopping_report) {}

    bool set_progress(double progress) override {
        reports.push_back(progress);
        return static_cast<int>(reports.size()) - 1 != stop_at;
    }

    std::vector<double> reports;

private:
    int stop_at;
};

#endif
