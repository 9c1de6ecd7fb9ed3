#include <cmath>
#include <cstdio>
#include <ox/internal/open_file.h>
#include <ox/progress/internal/experience_file.h>

namespace ox {

bool read_experience(const std::string& path, std::vector<phase_experience>& experience) {
    const open_file file(std::fopen(path.c_str(), "r"));
    if (file == nullptr) {
        return false;
    }
    char name[256];
    double seconds = 0.0;
    while (std::fscanf(file.get(), "%255s %lf", name, &seconds) == 2 && std::isfinite(seconds)) {
        experience.emplace_back(name, seconds);
    }
    return true;
}

void write_experience(const std::string& path, const std::vector<phase_experience>& experience) {
    const open_file file(std::fopen(path.c_str(), "w"));
    if (file == nullptr) {
        return;
    }
    for (const phase_experience& line : experience) {
        std::fprintf(file.get(), "%s %lf\n", line.first.c_str(), line.second);
    }
}

} // namespace ox
