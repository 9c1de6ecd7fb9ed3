#ifndef OX_CORE_OX_HASH_H
#define OX_CORE_OX_HASH_H

#include <memory>
#include <utility>

#include <ox/core/ox_list.h>

namespace ox {

/// A map from keys to values, ordered by key.
///
/// Representation: a virtual table, then `root`, `count` and `unchanged` in that order. Despite its
/// name it is no table of buckets but a binary search tree without balance of its own, which is
/// rebuilt perfectly balanced after every `set` and `remove` that leaves a multiple of 1000
/// entries, whether it changed anything or not. So in a table that grows, entries in sorted order
/// cost at most 1000 steps more than in random order; calls on a table that rests on such a size
/// cost O(n) each. A table that is used as a queue (the next key in, the oldest out) and never
/// meets such a size becomes a chain, in which a call costs O(n), too.
///
/// Invariants: every key is in the tree once; smaller keys are to the left of a node, greater ones
/// to its right; `count` is the number of nodes.
///
/// Degenerate input:
/// - removing or looking up an absent key, or any key of an empty table: nothing changes, but
///   removing rebuilds the tree at a multiple of 1000 entries;
/// - keys that do not equal themselves (NaN): each `set` adds one, which is never found again;
/// - a key or value that is part of the table itself: its value at the call counts;
/// - trees as deep as a list are walked, copied, rebuilt and destroyed without recursion.
///
/// Ownership: the table owns copies of keys and values, never what pointer values point to. Copies
/// are deep. An allocation that fails leaves the table as it was, or with the new entry but not yet
/// rebuilt, and reaches the caller as `std::bad_alloc`.
///
/// `K` needs `==`, `<=`, a copy constructor and, for `get_keys`, a default constructor and copy
/// assignment; `V` a copy constructor and copy assignment.
///
///     ox::ox_hash<int, float> heights;
///     heights.set(7, 2.5f);
///     float height = 0;
///     if (heights.get(7, height)) { ... } // height is 2.5
template <typename K, typename V>
class ox_hash {
public:
    /// An empty table. Allocates nothing.
    ox_hash() = default;

    /// A deep copy with a tree of the same shape. O(n).
    ox_hash(const ox_hash& other) : count(other.count), unchanged(other.unchanged) {
        copied_tree copy(other.root);
        root = copy.release();
    }

    /// Becomes a deep copy of `other`; nothing happens when it is the same table. O(n).
    ox_hash& operator=(const ox_hash& other) {
        if (this != &other) {
            ox_hash copy(other);
            swap(copy);
        }
        return *this;
    }

    /// Takes the entries of `other`, which becomes empty. O(1).
    ox_hash(ox_hash&& other) noexcept { swap(other); }

    /// Exchanges the contents with those of `other`. O(1).
    ox_hash& operator=(ox_hash&& other) noexcept {
        swap(other);
        return *this;
    }

    /// Exchanges the contents with those of `other`. O(1).
    void swap(ox_hash& other) noexcept {
        std::swap(root, other.root);
        std::swap(count, other.count);
        std::swap(unchanged, other.unchanged);
    }

    /// Frees every entry. O(n).
    virtual ~ox_hash() { free_tree(root); }

    /// Gives `key` the value `value`, adding the key when it is absent. O(depth), O(n) when the
    /// tree is rebuilt: at 1000, 2000, ... entries, updates included.
    void set(const K& key, const V& value) {
        oxp_hash** const link = link_of(key);
        if (*link != nullptr) {
            (*link)->value = value;
        } else {
            *link = new oxp_hash{key, value, nullptr, nullptr};
            ++count;
            unchanged = false;
        }
        rebalance_if_due();
    }

    /// Removes `key`; nothing is removed when it is absent. Its left subtree takes its place and
    /// carries the right one below its greatest key. O(depth), O(n) when the tree is rebuilt: at
    /// 1000, 2000, ... entries, whether the key was there or not.
    void remove(const K& key) {
        oxp_hash** const link = link_of(key);
        if (*link != nullptr) {
            const std::unique_ptr<oxp_hash> removed(*link);
            *link = joined(removed->left, removed->right);
            --count;
            unchanged = false;
        }
        rebalance_if_due();
    }

    /// Looks `key` up: copies its value to `value` and returns true, or returns false and leaves
    /// `value` untouched. O(depth).
    bool get(const K& key, V& value) const {
        const oxp_hash* const node = node_of(key);
        if (node == nullptr) {
            return false;
        }
        value = node->value;
        return true;
    }

    /// All keys in ascending order. O(n).
    ox_list<K> get_keys() const {
        ox_list<K> keys;
        for (const oxp_hash* node : nodes_in_order()) {
            keys.push_right(node->key);
        }
        return keys;
    }

    /// The number of entries.
    unsigned int size() const { return count; }

    /// Removes every entry. O(n).
    void clear() {
        free_tree(root);
        root = nullptr;
        count = 0;
        unchanged = true;
    }

    /// Rebuilds the tree perfectly balanced: of every run of keys the middle one, or the left one
    /// of two, is on top. O(n), with a temporary list of n pointers.
    void rebalance() {
        const ox_list<oxp_hash*> nodes = nodes_in_order();
        if (nodes.size() > 0) {
            root = balanced(nodes, 0, nodes.size() - 1);
        }
    }

private:
    struct oxp_hash {
        K key;
        V value;
        oxp_hash* left;  ///< smaller keys
        oxp_hash* right; ///< greater keys
    };

    /// A tree under construction, freed unless released: allocations may fail half-way.
    class copied_tree {
    public:
        explicit copied_tree(const oxp_hash* source) {
            ox_list<task> tasks;
            tasks.push_right(task{source, &copy});
            while (tasks.size() > 0) {
                const task next = tasks[tasks.size() - 1];
                tasks.remove_right();
                if (next.source != nullptr) {
                    *next.link =
                        new oxp_hash{next.source->key, next.source->value, nullptr, nullptr};
                    tasks.push_right(task{next.source->right, &(*next.link)->right});
                    tasks.push_right(task{next.source->left, &(*next.link)->left});
                }
            }
        }
        copied_tree(const copied_tree&) = delete;
        copied_tree& operator=(const copied_tree&) = delete;
        ~copied_tree() { free_tree(copy); }

        oxp_hash* release() { return std::exchange(copy, nullptr); }

    private:
        struct task {
            const oxp_hash* source;
            oxp_hash** link;
        };
        oxp_hash* copy = nullptr;
    };

    static constexpr unsigned int rebalancing_interval = 1000;

    static oxp_hash*& child_towards(oxp_hash& node, const K& key) {
        return node.key <= key ? node.right : node.left;
    }

    /// The link that holds the node of `key`, or the empty one where it would be added.
    oxp_hash** link_of(const K& key) {
        oxp_hash** link = &root;
        while (*link != nullptr && !((*link)->key == key)) {
            link = &child_towards(**link, key);
        }
        return link;
    }

    /// The node of `key`, null when there is none.
    const oxp_hash* node_of(const K& key) const {
        oxp_hash* node = root;
        while (node != nullptr && !(node->key == key)) {
            node = child_towards(*node, key);
        }
        return node;
    }

    /// One tree of two whose keys do not overlap.
    static oxp_hash* joined(oxp_hash* smaller, oxp_hash* greater) {
        if (smaller == nullptr) {
            return greater;
        }
        oxp_hash* rightmost = smaller;
        while (rightmost->right != nullptr) {
            rightmost = rightmost->right;
        }
        rightmost->right = greater;
        return smaller;
    }

    void rebalance_if_due() {
        if (count % rebalancing_interval == 0 && root != nullptr) {
            rebalance();
        }
    }

    ox_list<oxp_hash*> nodes_in_order() const {
        ox_list<oxp_hash*> nodes;
        ox_list<oxp_hash*> ancestors; ///< those whose left subtree is being walked
        oxp_hash* node = root;
        while (node != nullptr || ancestors.size() > 0) {
            for (; node != nullptr; node = node->left) {
                ancestors.push_right(node);
            }
            node = ancestors[ancestors.size() - 1];
            ancestors.remove_right();
            nodes.push_right(node);
            node = node->right;
        }
        return nodes;
    }

    /// Links the nodes [low, high] to a balanced tree; the depth of recursion is its height.
    static oxp_hash* balanced(const ox_list<oxp_hash*>& nodes, int low, int high) {
        if (low > high) {
            return nullptr;
        }
        const int middle = low + (high - low) / 2;
        nodes[middle]->left = balanced(nodes, low, middle - 1);
        nodes[middle]->right = balanced(nodes, middle + 1, high);
        return nodes[middle];
    }

    /// Frees a tree of any depth without memory of its own: left children are rotated up until
    /// there is none, then the top goes.
    static void free_tree(oxp_hash* node) {
        while (node != nullptr) {
            if (oxp_hash* const left = node->left) {
                node->left = left->right;
                left->right = node;
                node = left;
            } else {
                const std::unique_ptr<oxp_hash> freed(node);
                node = node->right;
            }
        }
    }

    oxp_hash* root = nullptr;
    unsigned int count = 0;
    bool unchanged = true;
};

/// Exchanges the contents of two tables. O(1).
template <typename K, typename V>
void swap(ox_hash<K, V>& a, ox_hash<K, V>& b) noexcept {
    a.swap(b);
}

} // namespace ox

#endif
