// Builds trees of phases, moves through them and lists them.

#include <set>
#include <string>

#include <fuzz/byte_reader.h>
#include <fuzz/require.h>
#include <ox/core/ox_log.h>
#include <ox/progress/ox_progress_manager.h>

namespace {

using fuzz::byte_reader;
using ox::ox_list;
using ox::ox_progress_manager;

/// One of few names, so that phases are met again.
std::string name_of(byte_reader& bytes) {
    const int name = bytes.below(24);
    return name == 0 ? std::string() : std::string(1, static_cast<char>('a' + name));
}

void require_listed(ox_progress_manager& manager, const std::set<std::string>& known) {
    ox_list<std::string> names;
    ox_list<std::string> parents;
    ox_list<double> weights;
    ox_list<double> durations;
    manager.get_all_phases(names, parents, weights, durations);
    fuzz::require(std::set<std::string>(names.begin(), names.end()) == known);
    fuzz::require(names.size() == static_cast<int>(known.size()));
    fuzz::require(parents.size() == names.size() && weights.size() == names.size());
    fuzz::require(durations.size() == names.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ox_log_set(false);
    byte_reader bytes(data, size);
    ox_progress_manager manager;
    std::set<std::string> known;
    for (int step = 0; step < 60 && bytes.has_more(); ++step) {
        const std::string name = name_of(bytes);
        if (bytes.below(3) == 0) {
            manager.set_current_phase(name);
            fuzz::require(manager.get_current_phase() == (known.count(name) > 0 ? name : ""));
        } else {
            const std::string parent = name_of(bytes);
            manager.add_phase(name, parent, static_cast<double>(bytes.coordinate()));
            known.insert(name);
        }
        manager.compute_phase_progress(static_cast<double>(bytes.coordinate()));
    }
    require_listed(manager, known);
    manager.finalize();
    return 0;
}
