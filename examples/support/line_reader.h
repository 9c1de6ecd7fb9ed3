#ifndef OX_EXAMPLES_SUPPORT_LINE_READER_H
#define OX_EXAMPLES_SUPPORT_LINE_READER_H

#include <examples/support/plan_point.h>

#include <cstddef>
#include <sstream>
#include <string>

namespace ox_examples {

/// Takes one line of a description apart, word by word, and refuses what does not fit. A `#` begins
/// a comment. What is refused throws `description_error`.
class line_reader {
public:
    line_reader(const std::string& file, int line, const std::string& text);

    /// Whether every word has been taken.
    bool at_end();

    /// The next word, which `what` names in the message when there is none.
    std::string word(const std::string& what);

    /// A name: letters of any alphabet in UTF-8, digits, `_` and `-`.
    std::string name(const std::string& what);

    /// The word `expected` and nothing else.
    void label(const std::string& expected);

    /// A number within `largest_number`.
    double number(const std::string& what);

    /// The word `label`, then a number.
    double labelled_number(const std::string& label);

    /// The word `label`, then a length of at least `smallest_size`.
    double labelled_size(const std::string& label);

    /// A whole number from 0 up.
    std::size_t index(const std::string& what);

    /// The word `label`, then the point `x y`.
    plan_point labelled_point(const std::string& label);

    /// The points `x y x y ...` up to the end of the line, at least three.
    plan_contour contour();

    /// Refuses words that are left over.
    void expect_end();

    /// Refuses the line.
    [[noreturn]] void fail(const std::string& reason) const;

    int get_line() const { return line; }

private:
    std::string file;
    int line;
    std::istringstream words;
};

/// `text` for a message: in quotes, with what cannot be printed replaced, and cut to a line.
std::string quoted(const std::string& text);

} // namespace ox_examples

#endif
