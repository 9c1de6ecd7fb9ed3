#ifndef OX_SOLID_INTERNAL_BOOLEAN_BOOLEAN_TRACE_H
#define OX_SOLID_INTERNAL_BOOLEAN_BOOLEAN_TRACE_H

#include <cstdio>

namespace ox::internal {

/// The lines that a boolean prints to standard output: its progress only where that is asked for.
struct boolean_trace {
    bool is_verbose;

    void print_progress(const char* phase, int done, int count) const {
        if (is_verbose) {
            std::printf("%s faces (%d / %d)\n", phase, done, count);
        }
    }
    void print_end() const {
        if (is_verbose) {
            std::printf("done\n");
        }
    }
    void print_divergence(int piece) const { std::printf("Merge divergence for %d\n", piece); }
};

} // namespace ox::internal

#endif
