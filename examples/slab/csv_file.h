#ifndef OX_EXAMPLES_SLAB_CSV_FILE_H
#define OX_EXAMPLES_SLAB_CSV_FILE_H

#include <ox/core/ox_list.h>

#include <string>
#include <vector>

namespace slab {

/// A table that is filled column by column and written as text: a line of headers, then the values,
/// with semicolons between the cells and decimal commas, as spreadsheets in most of Europe read it.
class csv_file {
public:
    void add_column(const std::string& header, const ox::ox_list<std::string>& values);

    /// A column of numbers with `precision` decimals.
    void add_column(const std::string& header, const ox::ox_list<float>& values, int precision);

    /// False when the file cannot be written. All columns must be equally long.
    bool write_file(const std::string& path) const;

private:
    std::vector<std::string> lines;
};

} // namespace slab

#endif
