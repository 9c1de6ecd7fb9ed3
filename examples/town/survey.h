#ifndef OX_EXAMPLES_TOWN_SURVEY_H
#define OX_EXAMPLES_TOWN_SURVEY_H

#include <ox/solid/ox_solid.h>

#include <string>
#include <vector>

namespace town {

/// A surveyed building: its name and its boundary as it was measured.
struct surveyed {
    std::string name;
    ox::ox_solid solid;
};

/// Reads the buildings of a text file (tests/data/README.md describes it). Every ring becomes a
/// contour with its own points: nothing is rounded or repaired. Throws `std::runtime_error` when
/// there is none.
std::vector<surveyed> read_survey(const std::string& path);

} // namespace town

#endif
