#ifndef OX_BENCH_PEAK_METER_H
#define OX_BENCH_PEAK_METER_H

#include <cstddef>

/// Measures the most memory that operator new held at once since its construction, in the whole
/// program, the library included.
class peak_meter {
public:
    peak_meter();

    double mebibytes() const;

private:
    std::size_t before;
};

#endif
