#include <examples/support/record_reader.h>

#include <examples/support/description_file.h>

namespace ox_examples {

void read_records(const std::string& path, const record_readers& readers) {
    int number = 0;
    for (const std::string& text : read_lines(path)) {
        line_reader line(path, ++number, text);
        if (line.at_end()) {
            continue;
        }
        const std::string keyword = line.word("keyword");
        const auto found = readers.find(keyword);
        if (found == readers.end()) {
            line.fail("unknown keyword " + quoted(keyword));
        }
        found->second(line);
        line.expect_end();
    }
}

std::string unique_names::take(line_reader& line) {
    const std::string name = line.name("name");
    if (!names.insert(name).second) {
        line.fail("duplicate name " + quoted(name));
    }
    return name;
}

} // namespace ox_examples
