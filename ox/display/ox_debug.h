#ifndef OX_DISPLAY_OX_DEBUG_H
#define OX_DISPLAY_OX_DEBUG_H

#include <string>

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>
#include <ox/display/ox_opengl_shapes.h>

namespace ox {

/// A node of debugging information: two texts, child nodes and shapes to look at.
///
/// The library gives the two texts no meaning of their own: they are free text for the host.
///
/// Ownership: a node owns its children, which must come from `new`, and deletes them when it is
/// destroyed. Copies share them: copying copies the pointers, never the children. Exactly one node
/// may be left as the owner; empty the `children` list of every other one (`children.clear()`
/// deletes nothing) before it is destroyed, or the children are deleted twice. The shapes are
/// copied deeply.
///
/// Degenerate input:
/// - null children are allowed and skipped;
/// - trees of any depth are destroyed without deep recursion.
///
/// Nodes must not be used from two threads at once.
///
/// Example:
///
///     ox_debug root;
///     root.title = "cut";
///     ox_debug* step = new ox_debug;
///     step->text = "first plane";
///     root.children.push_right(step); // root deletes it
class OX_EXPORT ox_debug {
public:
    /// Makes a node with empty texts, no children and no shapes.
    ox_debug();

    /// Copies the texts and the shapes; the children are shared with `source` (see above).
    ox_debug(const ox_debug& source);

    /// Copies the texts and the shapes; the children are shared with `source` (see above). The
    /// children held so far are let go without being deleted, as another node may share them.
    /// Assigning a node to itself changes nothing.
    ox_debug& operator=(const ox_debug& source);

    /// Takes the texts, children and shapes of `source`, which is left without them: this node is
    /// now the owner.
    ox_debug(ox_debug&& source);

    /// Takes the texts, children and shapes of `source`, which is left without children. The
    /// children held so far are let go without being deleted, as another node may share them.
    ox_debug& operator=(ox_debug&& source);

    /// Deletes every child that is not null, in order, and with it all that it owns. O(n) in the
    /// number of nodes of the tree. The destructor of a derived class still finds its children;
    /// inside a larger tree they are deleted as soon as it has ended.
    virtual ~ox_debug();

    std::string title;           ///< free text of the host
    std::string text;            ///< free text of the host
    ox_list<ox_debug*> children; ///< owned child nodes; null entries are skipped
    ox_opengl_shapes shapes;     ///< points and lines to look at
};

} // namespace ox

#endif
