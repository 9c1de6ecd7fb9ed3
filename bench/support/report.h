#ifndef OX_BENCH_SUPPORT_REPORT_H
#define OX_BENCH_SUPPORT_REPORT_H

#include <fstream>
#include <string>
#include <vector>

#include "measurement.h"
#include "workload.h"

namespace bench {

/// Prints measurements as a table and appends them to a file, one JSON object a line, for
/// `bench/write_report.py`.
class report {
public:
    /// Writes rows for `program` to `rows_path`; an empty path writes none.
    report(std::string program, const std::string& rows_path, bool quick, clock_kind clock);

    /// Adds one size of a workload.
    void add_row(const workload& measured, long size, const contest& rules,
                 const measurement& made);

    /// Adds how the library's time grew: `seconds[i]` was needed at `sizes[i]`. Nothing for fewer
    /// than three sizes.
    void add_growth(const workload& measured, const std::vector<long>& sizes,
                    const std::vector<double>& seconds);

private:
    void write(const std::string& object);

    std::string program;
    std::ofstream rows;
};

/// The slope of log(seconds) over log(size), fitted by least squares.
double growth_exponent(const std::vector<long>& sizes, const std::vector<double>& seconds);

} // namespace bench

#endif
