#ifndef OX_OX_UTILITIES_H
#define OX_OX_UTILITIES_H

/// @file
/// Every public header of the library.

#include <ox/core/ox_chrono.h>
#include <ox/core/ox_export.h>
#include <ox/core/ox_hash.h>
#include <ox/core/ox_list.h>
#include <ox/core/ox_log.h>
#include <ox/core/ox_mutex.h>
#include <ox/core/ox_random.h>
#include <ox/display/ox_camera.h>
#include <ox/display/ox_debug.h>
#include <ox/display/ox_opengl_shapes.h>
#include <ox/display/ox_snap.h>
#include <ox/geometry/ox_2dvector.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/geometry/ox_bezier.h>
#include <ox/geometry/ox_box.h>
#include <ox/geometry/ox_bspline.h>
#include <ox/geometry/ox_color.h>
#include <ox/geometry/ox_cubic_spline.h>
#include <ox/geometry/ox_matrix.h>
#include <ox/geometry/ox_polar.h>
#include <ox/io/ox_csv.h>
#include <ox/mesh/ox_mesh.h>
#include <ox/mesh/ox_triangle_set.h>
#include <ox/mesh/ox_vertex_optimizer.h>
#include <ox/ox_functions.h>
#include <ox/polygon/ox_polygon.h>
#include <ox/polygon/ox_polygon_pieces.h>
#include <ox/polygon/ox_polygon_projection.h>
#include <ox/progress/ox_progress_manager.h>
#include <ox/progress/ox_thread.h>
#include <ox/solid/ox_csg.h>
#include <ox/solid/ox_solid.h>
#include <ox/structure/ox_loadshare.h>

#endif
