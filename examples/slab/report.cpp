#include <examples/slab/report.h>
#include <examples/support/utf8.h>

#include <ox/io/ox_csv.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <stdexcept>

namespace slab {

namespace {

/// Of the slab's weight. Ten times what the lines of the sweep may miss.
constexpr double largest_difference = 0.01;

/// kN/m, a beam each.
std::vector<double> line_loads(const description& d, const sharing& shares) {
    std::vector<double> result;
    for (std::size_t i = 0; i < d.beams.size(); ++i) {
        result.push_back(shares.loads[i] / d.beams[i].length());
    }
    return result;
}

} // namespace

bool report(const description& d, const sharing& shares) {
    const std::vector<double> per_metre = line_loads(d, shares);
    std::printf("%-16s %10s %10s %10s\n", "beam", "length m", "load kN", "kN/m");
    for (std::size_t i = 0; i < d.beams.size(); ++i) {
        std::printf("%s %10.2f %10.2f %10.2f\n", ox_examples::padded(d.beams[i].name, 16).c_str(),
                    d.beams[i].length(), shares.loads[i], per_metre[i]);
    }
    const double weight = shares.area * d.weight;
    const double ratio = shares.total() / weight;
    std::printf("\nsum of the beams        %10.2f kN\n", shares.total());
    std::printf("area x weight           %10.2f kN = %.2f m2 x %g kN/m2\n", weight, shares.area,
                d.weight);
    std::printf("ratio                   %10.4f\n", ratio);
    if (std::abs(ratio - 1) > largest_difference) {
        std::printf("^ off: the beams do not carry the whole slab\n");
        return false;
    }
    return true;
}

void write_table(const std::string& path, const description& d, const sharing& shares) {
    const std::vector<double> per_metre = line_loads(d, shares);
    ox::ox_list<std::string> names;
    ox::ox_list<float> lengths;
    ox::ox_list<float> loads;
    ox::ox_list<float> loads_per_metre;
    for (std::size_t i = 0; i < d.beams.size(); ++i) {
        names.push_right(d.beams[i].name);
        lengths.push_right(static_cast<float>(d.beams[i].length()));
        loads.push_right(static_cast<float>(shares.loads[i]));
        loads_per_metre.push_right(static_cast<float>(per_metre[i]));
    }
    ox::ox_csv table;
    table.add_column("beam", names);
    table.add_column("length m", lengths, 2);
    table.add_column("load kN", loads, 2);
    table.add_column("kN/m", loads_per_metre, 2);
    const bool opened = table.write_file(path);
    std::error_code error;
    if (!opened || std::filesystem::file_size(path, error) != table.write_string().size()) {
        throw std::runtime_error(path + ": the table cannot be written");
    }
}

} // namespace slab
