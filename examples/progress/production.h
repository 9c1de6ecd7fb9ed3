#ifndef OX_EXAMPLES_PROGRESS_PRODUCTION_H
#define OX_EXAMPLES_PROGRESS_PRODUCTION_H

#include <examples/progress/arguments.h>
#include <examples/progress/reporter.h>

namespace progress_example {

/// What came of a run, stopped or not.
struct product {
    int nb_planned = 0;           // panels
    int nb_finished = 0;          // panels that the mesh holds, each whole
    unsigned int nb_corners = 0;  // vertices before welding
    unsigned int nb_vertices = 0; // and after
    unsigned int nb_triangles = 0;
};

/// Adds the phases to the reporter. Without experience all are thought to take the same time.
void add_phases(reporter& progress);

/// Plans the tower, cuts its panels, welds their triangles and writes them to the file `path`,
/// unless there are none. Throws `std::runtime_error` when the file cannot be written.
product produce(const arguments& wanted, const std::string& path, reporter& progress);

} // namespace progress_example

#endif
