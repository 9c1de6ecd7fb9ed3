#ifndef OX_CORE_OX_RANDOM_H
#define OX_CORE_OX_RANDOM_H

#include <memory>
#include <ox/core/ox_export.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

struct oxp_random;

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
    std::unique_ptr<oxp_random> state;
};

} // namespace ox

#endif
