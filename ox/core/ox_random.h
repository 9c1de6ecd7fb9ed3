#ifndef OX_CORE_OX_RANDOM_H
#define OX_CORE_OX_RANDOM_H

#include <memory>

#include <ox/core/ox_export.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

struct ox_random_state;

/// A seeded source of random numbers: equal seeds give equal sequences on every platform.
///
/// Representation: one pointer to a private 32-bit Mersenne Twister (Matsumoto and Nishimura,
/// 1998). Copies are independent and continue the sequence from where the original stands. One
/// object must not be used by several threads without a lock.
///
///     ox::ox_random random(7);
///     int pips = random.dice(1, 6);
class OX_EXPORT ox_random {
public:
    /// A source whose sequence `seed` determines.
    explicit ox_random(int seed = 54873);

    /// An independent source that goes on with the same numbers as `other`.
    ox_random(const ox_random& other);

    /// Goes on with the same numbers as `other`.
    ox_random& operator=(const ox_random& other);

    /// Takes the sequence of `other`, which becomes a source with the default seed.
    ox_random(ox_random&& other);

    /// Exchanges the contents with those of `other`. O(1).
    ox_random& operator=(ox_random&& other) noexcept;

    /// Exchanges the contents with those of `other`. O(1).
    void swap(ox_random& other) noexcept;

    /// Deletes the state.
    ~ox_random();

    /// A whole number drawn uniformly from `[a, b]`, by rejection, so without bias. A range of one
    /// number consumes nothing of the sequence. When `b < a` the range runs upwards from `a`
    /// through the largest int and on from the smallest one to `b`.
    int dice(int a, int b);

    /// One of the 1000001 multiples of a millionth in `[0, 1]`, drawn uniformly; both ends occur.
    float dice_0_1();

    /// A unit vector whose direction is uniform on the sphere, by rejection of points outside the
    /// unit ball and of those too close to its centre.
    ox_3dvector dice_vector();

private:
    std::unique_ptr<ox_random_state> state;
};

/// Exchanges the contents of two sources. O(1).
inline void swap(ox_random& a, ox_random& b) noexcept {
    a.swap(b);
}

} // namespace ox

#endif
