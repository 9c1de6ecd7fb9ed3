// What debuggers need to know to show the library's objects: the layouts of its classes and of the
// records behind them. Programs do not have them, since the classes with virtual functions are
// described only where these are. So this source alone is compiled with debug information in every
// build type; it makes no code.
#include <ox/io/internal/ox_csv_state.h>
#include <ox/ox_utilities.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/solid/internal/ox_csg_state.h>
#include <ox/solid/internal/ox_solid_state.h>

namespace ox::internal {

struct described_layouts {
    ox_csg* combination;
    ox_csg_state* combination_record;
    ox_csv* table;
    ox_csv_state* table_record;
    ox_polygon* polygon;
    ox_polygon_data* polygon_record;
    ox_solid* solid;
    ox_solid_state* solid_record;
    ox_triangle_set* triangles;
};

/// Never read: the compiler describes what some variable has.
described_layouts layouts;

} // namespace ox::internal
