#ifndef OX_EXAMPLES_BUILDING_OBJ_FILE_H
#define OX_EXAMPLES_BUILDING_OBJ_FILE_H

#include <examples/building/assembly.h>

namespace building {

/// Writes the triangles of all elements as a Wavefront OBJ file, one group per element. Throws
/// `std::runtime_error` when the file cannot be written.
void write_obj(const std::string& path, std::vector<element>& elements);

} // namespace building

#endif
