#include <ox/display/ox_debug.h>

#include <algorithm>
#include <new>

namespace ox {

ox_debug::ox_debug() = default;
ox_debug::ox_debug(const ox_debug& source) = default;
ox_debug& ox_debug::operator=(const ox_debug& source) = default;
ox_debug::ox_debug(ox_debug&& source) = default;
ox_debug& ox_debug::operator=(ox_debug&& source) = default;

namespace {

/// The nodes that the destructor of the root of a tree still has to delete in this thread, the next
/// one last. Null outside of such a destructor.
thread_local ox_list<ox_debug*>* pending_nodes = nullptr;

/// Puts `children` onto the stack, the first one on top. False when there is no memory for that.
bool hand_over(const ox_list<ox_debug*>& children, ox_list<ox_debug*>& pending) {
    const int count_before = pending.size();
    try {
        for (int i = children.size() - 1; i >= 0; --i) {
            pending.push_right(children.at(i));
        }
    } catch (const std::bad_alloc&) {
        pending.set_size(count_before);
        return false;
    }
    return true;
}

} // namespace

/// Deleting the children one inside the other would need a stack as deep as the tree, so the list
/// of the root's children serves as the stack of the nodes still to be deleted: a parent goes
/// before its children and siblings go in their order. Without memory for that, the children go
/// from here.
ox_debug::~ox_debug() {
    if (pending_nodes != nullptr && hand_over(children, *pending_nodes)) {
        return;
    }
    ox_list<ox_debug*>* const outer = pending_nodes;
    pending_nodes = &children;
    std::reverse(children.begin(), children.end());
    while (children.size() > 0) {
        ox_debug* const node = children[children.size() - 1];
        children.remove_right();
        delete node;
    }
    pending_nodes = outer;
}

} // namespace ox
