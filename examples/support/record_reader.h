#ifndef OX_EXAMPLES_SUPPORT_RECORD_READER_H
#define OX_EXAMPLES_SUPPORT_RECORD_READER_H

#include <examples/support/line_reader.h>

#include <functional>
#include <map>
#include <set>
#include <string>

namespace ox_examples {

/// For each keyword what takes the rest of its line.
using record_readers = std::map<std::string, std::function<void(line_reader&)>>;

/// Reads the description at `path`, which has one record a line, each beginning with its keyword;
/// lines without words are left out. Throws `description_error` at the first thing that is wrong.
void read_records(const std::string& path, const record_readers& readers);

/// The names of a description's records, which must differ from each other.
class unique_names {
public:
    /// Takes a name from the line and refuses one that has been taken before.
    std::string take(line_reader& line);

private:
    std::set<std::string> names;
};

} // namespace ox_examples

#endif
