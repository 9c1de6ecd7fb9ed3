#ifndef OX_EXAMPLES_SUPPORT_PICTURES_H
#define OX_EXAMPLES_SUPPORT_PICTURES_H

#include <examples/support/image.h>
#include <examples/support/output_folder.h>

#include <functional>
#include <string>

namespace ox_examples {

/// The pictures of a run. Where nothing can draw, on a machine without an OpenGL driver, they are
/// left out, which is told once on standard error: the other files of the run are still of use.
class pictures {
public:
    explicit pictures(output_folder& target) : folder(target) {}

    /// Draws a picture and adds it to the folder as `name`.
    void add(const std::string& name, const std::function<image()>& draw);

    /// Whether none had to be left out.
    bool complete() const { return !left_out; }

private:
    output_folder& folder;
    bool left_out = false;
};

} // namespace ox_examples

#endif
