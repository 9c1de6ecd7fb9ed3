#ifndef OX_POLYGON_INTERNAL_CHANGE_WATCH_H
#define OX_POLYGON_INTERNAL_CHANGE_WATCH_H

namespace ox::internal {

/// Tells who keeps something found out about a record that the record changes, so that nobody has
/// to compare it with what it was. It tells one change and is then set on nothing.
///
/// It belongs to the one record that it is a part of: copies of that are watched by nobody.
class change_watch {
public:
    change_watch() = default;
    change_watch(const change_watch&) noexcept {}
    change_watch& operator=(const change_watch&) = delete;
    ~change_watch() { tell(); }

    /// Makes `*changed` true with the next change, null for no watch. It must live until then.
    void set(bool* changed_flag) noexcept { changed = changed_flag; }

    /// To be called with every change.
    void tell() noexcept {
        if (changed != nullptr) {
            *changed = true;
            changed = nullptr;
        }
    }

private:
    bool* changed = nullptr;
};

} // namespace ox::internal

#endif
