#ifndef OX_TESTS_SUPPORT_FAILING_ALLOCATION_H
#define OX_TESTS_SUPPORT_FAILING_ALLOCATION_H

#include <new>

namespace support {

/// Lets the allocation of that number, counted from 1, fail once while it lives. Programs that use
/// it compile failing_allocation.cpp, which replaces `operator new` for the library as well.
class failing_allocation {
public:
    explicit failing_allocation(int number);
    failing_allocation(const failing_allocation&) = delete;
    failing_allocation& operator=(const failing_allocation&) = delete;
    ~failing_allocation();

    /// True once the allocation has failed.
    bool has_failed() const;
};

/// Runs `operation` on what `prepare` makes, with the first allocation failing, then the second,
/// and so on until none fails any more; `check` looks at the object after each failure. Returns the
/// number of failures.
template <typename Prepare, typename Operation, typename Check>
int fail_each_allocation(Prepare prepare, Operation operation, Check check) {
    for (int number = 1;; ++number) {
        auto object = prepare();
        bool has_thrown = false;
        {
            const failing_allocation failing(number);
            try {
                operation(object);
            } catch (const std::bad_alloc&) {
                has_thrown = true;
            }
            if (!failing.has_failed()) {
                return number - 1;
            }
        }
        check(object, has_thrown);
    }
}

} // namespace support

#endif
