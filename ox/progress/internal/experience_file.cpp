#include <ox/progress/internal/experience_file.h>

#include <cmath>
#include <cstdio>
#include <cstring>

#include <ox/internal/open_path.h>
#include <ox/internal/plain_numbers.h>

namespace ox::internal {

namespace {

constexpr std::size_t longest_name = 255;

} // namespace

bool read_experience(const std::string& path, std::vector<phase_experience>& experience) {
    const open_file file = open_path(path, "r");
    if (file == nullptr) {
        return false;
    }
    const plain_numbers with_a_point;
    char name[longest_name + 2]; // room for one character too many, and the NUL
    double seconds = 0.0;
    while (std::fscanf(file.get(), "%256s %lf", name, &seconds) == 2 &&
           std::strlen(name) <= longest_name) {
        if (std::isfinite(seconds)) {
            experience.emplace_back(name, seconds);
        }
    }
    return true;
}

void write_experience(const std::string& path, const std::vector<phase_experience>& experience) {
    const open_file file = open_path(path, "w");
    if (file == nullptr) {
        return;
    }
    const plain_numbers with_a_point;
    for (const phase_experience& line : experience) {
        std::fprintf(file.get(), "%s %lf\n", line.first.c_str(), line.second);
    }
}

} // namespace ox::internal
