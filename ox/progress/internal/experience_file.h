#ifndef OX_PROGRESS_INTERNAL_EXPERIENCE_FILE_H
#define OX_PROGRESS_INTERNAL_EXPERIENCE_FILE_H

#include <string>
#include <utility>
#include <vector>

namespace ox::internal {

/// A phase's name and the seconds it lasts.
using phase_experience = std::pair<std::string, double>;

/// Reads the lines of an experience file up to the first that is broken or has a name longer than
/// 255 bytes; a number that is not finite is passed over. False when the file cannot be opened.
bool read_experience(const std::string& path, std::vector<phase_experience>& experience);

/// Replaces the file; nothing happens when it cannot be opened.
void write_experience(const std::string& path, const std::vector<phase_experience>& experience);

} // namespace ox::internal

#endif
