#ifndef OX_TESTS_SUPPORT_DUMP_H
#define OX_TESTS_SUPPORT_DUMP_H

#include <string>

#include <ox/polygon/ox_polygon.h>
#include <ox/solid/ox_solid.h>

namespace support {

/// Writes the triangles of a solid as `SUITE.TEST-NAME.obj` into the folder that the environment
/// variable OX_DUMP names; a later one of the same name takes its place. Returns the file's path,
/// an empty text without that variable or where the file cannot be written.
std::string dump(ox::ox_solid& solid, const std::string& name);

/// The same for the contours of a polygon, as `SUITE.TEST-NAME.svg`, seen against its normal.
std::string dump(ox::ox_polygon& polygon, const std::string& name);

/// What a failing test says about an object, for the message of an expectation: all its
/// coordinates, and the file that it was written to.
std::string seen(ox::ox_solid& solid, const std::string& name);
std::string seen(ox::ox_polygon& polygon, const std::string& name);

/// Writes two objects that were to be the same, when the test has failed so far.
template <typename Object>
void dump_where_different(Object& first, Object& second, bool failed) {
    if (failed) {
        dump(first, "first");
        dump(second, "second");
    }
}

} // namespace support

#endif
