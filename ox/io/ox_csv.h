#ifndef OX_IO_OX_CSV_H
#define OX_IO_OX_CSV_H

#include <memory>
#include <string>

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>

namespace ox {

class ox_progress_manager;
struct ox_csv_state;

/// A table of text cells in columns, read from and written as delimited text.
///
/// Representation: columns, each with header cells and value cells from top to bottom; columns may
/// differ in their numbers of both until the table is written. The cells stay in the text that was
/// read, and cells that it does not have take no memory, so that a table never takes more than a
/// multiple of that text.
///
/// Reading finds the separator (tab, comma or semicolon) and the number of header lines by itself.
/// Quotation marks have no meaning, NUL characters are kept. Every `\n` and every `\r` ends a line,
/// so a file with `\r\n` ends has a row with one empty cell after every row. A last cell that no
/// separator or line break follows is not read.
///
/// Writing uses the column separator, which reading sets to the one it found. Numbers become text
/// when they are added, with the float separator in place of the point, and are read back with the
/// point, whatever the float separator: the cell `3,50` reads as 3. Numbers are written and read in
/// the same way whatever locale the process has chosen.
///
/// Degenerate input:
/// - an empty text: one column without cells;
/// - a text without line breaks: its cells form one header line, or one value line when they are
///   numbers;
/// - cells that are not numbers where numbers are asked for: 0;
/// - lists with a negative count: no cells;
/// - a separator that also occurs in cells: written as it is, nothing is quoted.
///
/// Ownership: copies are deep, but share the progress manager, which belongs to the caller and must
/// outlive every `write_...` call.
///
/// \code
/// ox::ox_csv table;
/// ox::ox_list<float> heights;
/// heights.push_right(2.5f);
/// table.add_column("height", heights, 2);
/// table.write_file("walls.csv");          // "height\n2,50\n"
///
/// ox::ox_list<std::string> cells;
/// table.read_file("walls.csv");
/// table.get_column(0, cells);             // height, 2,50
/// \endcode
class OX_EXPORT ox_csv {
public:
    /// What happens to cells when they are written.
    enum encoding : int {
        encoding_as_held = 0, ///< they are written as held
        encoding_ansi = 1     ///< header cells pass through `ox_to_ansi`, value cells do not
    };

    /// An empty table with the column separator `;`, the float separator `,`, the encoding as held
    /// and no progress manager.
    ox_csv();

    /// A deep copy.
    ox_csv(const ox_csv& other);

    /// Becomes a deep copy of `other`.
    ox_csv& operator=(const ox_csv& other);

    /// Takes the columns and settings of `other`, which becomes a new table.
    ox_csv(ox_csv&& other);

    /// Exchanges the contents with those of `other`. O(1).
    ox_csv& operator=(ox_csv&& other) noexcept;

    /// Exchanges the contents with those of `other`. O(1).
    void swap(ox_csv& other) noexcept;

    /// Deletes the columns; the progress manager is left alone.
    virtual ~ox_csv();

    // Reading

    /// Reads the file `path` as `read_string` reads a text. False, and the table stays as it is,
    /// when the file cannot be opened or read, as a path with a NUL in it, or has more than
    /// 2^31 - 1 bytes. A pipe is read until its last writer closes it; a device that is no terminal
    /// and gives more than 256 KiB has no end and cannot be read.
    bool read_file(const std::string& path);

    /// Replaces all columns by those of `text`; always true. O(n) for n bytes.
    ///
    /// Separator: with L line breaks and n occurrences of a candidate, the mean is n / L (0 when n
    /// is 0) and the deviation the square root of the sum of the squared differences between the
    /// mean and the number in each line, for texts with `\r\n` pairs of that sum divided by L. The
    /// largest mean - deviation wins, if it is not negative; of equal ones the last of tab, comma,
    /// semicolon. Otherwise it is the tab. The log tells the scores.
    ///
    /// Header: t is the last line with a text character (any but blanks, digits, `,.-eE`, the
    /// separator and line breaks) in the column that the LAST line ends in, the first column when a
    /// line break ends the text; 0 when that column has none. The lines up to t are header lines
    /// when there are text characters at all and t is at most 10 and at most L / 2, otherwise there
    /// is no header. The log tells their number.
    bool read_string(const std::string& text);

    // Writing

    /// Writes `write_string()` to the file `path`, in text mode, and logs "csv file writen with
    /// success". The file ends before the first NUL character. False when the file cannot be
    /// opened. Later failures, a full disk for one, are not reported; stopped writing leaves an
    /// empty file.
    bool write_file(const std::string& path);

    /// The table as text: first all columns are filled up with empty cells to the same numbers of
    /// header and value cells, for good; then every row becomes a line, ended by `\n`. Empty when
    /// the progress manager asks to stop, which it may after each of the V value lines r, when
    /// `min + r * (max - min) / V` is reported. O(n) for n cells, empty ones included.
    ///
    /// With `encoding_ansi`, a header cell that is not UTF-8 throws `std::range_error` ("bad
    /// conversion"). A table whose text does not fit the memory fails as an allocation does.
    std::string write_string();

    // Columns. Adding one costs O(n) for its n cells.

    /// Appends a column of whole numbers under one header cell.
    void add_column(const std::string& header, const ox_list<int>& values);

    /// Appends a column of whole numbers under several header cells.
    void add_column(const ox_list<std::string>& headers, const ox_list<int>& values);

    /// Appends a column of numbers with `precision` decimals under one header cell. As in the C
    /// library, a negative precision means 6; above 1000 it means 1000.
    void add_column(const std::string& header, const ox_list<float>& values, int precision);

    /// Appends a column of numbers with `precision` decimals under several header cells.
    void add_column(const ox_list<std::string>& headers, const ox_list<float>& values,
                    int precision);

    /// Appends a column of texts under one header cell.
    void add_column(const std::string& header, const ox_list<std::string>& values);

    /// Appends a column of texts under several header cells.
    void add_column(const ox_list<std::string>& headers, const ox_list<std::string>& values);

    /// Appends a column of `1` for true and `0` for false under one header cell.
    void add_column(const std::string& header, const ox_list<bool>& values);

    /// Appends a column of `1` for true and `0` for false under several header cells.
    void add_column(const ox_list<std::string>& headers, const ox_list<bool>& values);

    /// Replaces `cells` by the header cells of column `index`, then its value cells. False, and
    /// `cells` stays as it is, when there is no such column. O(n).
    bool get_column(int index, ox_list<std::string>& cells);

    /// Replaces `headers` by the header cells of column `index` and `values` by its value cells as
    /// the C library's `atof` reads them (0 for texts). False, and both stay as they are, when
    /// there is no such column. O(n).
    bool get_column(int index, ox_list<std::string>& headers, ox_list<float>& values);

    /// The number of columns.
    int get_nb_columns();

    /// Discards all columns; separators, encoding and progress manager stay.
    void clear();

    // Settings

    /// The character between columns.
    char get_column_separator() const;

    /// Sets the character between columns, for writing.
    void set_column_separator(char separator);

    /// The character between the whole and the decimal digits of numbers.
    char get_float_separator() const;

    /// Sets the character between the whole and the decimal digits of numbers added from now on.
    void set_float_separator(char separator);

    /// What happens to cells when they are written.
    encoding get_encoding();

    /// Sets what happens to cells when they are written.
    void set_encoding(encoding value);

    /// Sets the manager that writing reports to (null for none) and the share `[min, max]` of its
    /// bar.
    void set_progress_manager(ox_progress_manager* manager, double min, double max);

private:
    std::unique_ptr<ox_csv_state> state;
};

/// Exchanges the contents of two tables. O(1).
inline void swap(ox_csv& a, ox_csv& b) noexcept {
    a.swap(b);
}

} // namespace ox

#endif
