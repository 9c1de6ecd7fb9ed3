#include <ox/display/ox_debug.h>

#include <algorithm>
#include <new>

namespace ox {

ox_debug::ox_debug() = default;
ox_debug::ox_debug(const ox_debug& source) = default;
ox_debug& ox_debug::operator=(const ox_debug& source) = default;

/// Moves the children of `node` onto the stack `pending`, the first one on top. When there is no
/// memory for that, the children stay where they are and the node's own destructor deletes them.
static void detach_children(ox_debug& node, ox_list<ox_debug*>& pending) {
    const int count_before = pending.size();
    try {
        for (int i = node.children.size() - 1; i >= 0; --i) {
            pending.push_right(node.children[i]);
        }
        node.children.clear();
    } catch (const std::bad_alloc&) {
        pending.set_size(count_before);
    }
}

// Deleting the children one inside the other would need a stack as deep as the tree, so the list of
// children serves as the stack of the nodes still to be deleted: a parent goes before its children
// and siblings go in their order.
ox_debug::~ox_debug() {
    std::reverse(children.begin(), children.end());
    while (children.size() > 0) {
        ox_debug* node = children[children.size() - 1];
        children.remove_right();
        if (node != nullptr) {
            detach_children(*node, children);
            delete node;
        }
    }
}

} // namespace ox
