#include <bench/peers/eigen.h>

namespace {

constexpr char eigen_name[] = "Eigen PartialPivLU";

} // namespace

#ifdef OX_BENCH_HAS_EIGEN

#include <Eigen/Dense>

namespace peers {
namespace {

using row_matrix = Eigen::Matrix<float, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

struct solving {
    std::vector<Eigen::MatrixXf> matrices;
    std::vector<Eigen::VectorXf> right_sides;
    double sum = 0.0;
};

solving make_solving(const linear_systems& systems) {
    const int n = systems.order;
    solving made;
    for (std::size_t i = 0; i < systems.matrices.size(); ++i) {
        made.matrices.emplace_back(Eigen::Map<const row_matrix>(systems.matrices[i].data(), n, n));
        made.right_sides.emplace_back(
            Eigen::Map<const Eigen::VectorXf>(systems.right_sides[i].data(), n));
    }
    return made;
}

void solve(solving& s, long count) {
    for (long i = 0; i < count; ++i) {
        const std::size_t k = static_cast<std::size_t>(i) % s.matrices.size();
        const Eigen::PartialPivLU<Eigen::MatrixXf> decomposed(s.matrices[k]);
        const Eigen::VectorXf unknowns = decomposed.solve(s.right_sides[k]);
        for (const float unknown : unknowns) {
            s.sum += static_cast<double>(unknown);
        }
    }
}

} // namespace

bench::contestant eigen_solve(std::shared_ptr<const linear_systems> systems, long count) {
    return bench::make_contestant(
        eigen_name, [=] { return make_solving(*systems); }, [=](solving& s) { solve(s, count); },
        [](const solving& s) {
            return std::vector<bench::fact>{{"sum of unknowns", s.sum, 1e-4}};
        });
}

} // namespace peers

#else

namespace peers {

bench::contestant eigen_solve(std::shared_ptr<const linear_systems>, long) {
    return bench::absent(eigen_name);
}

} // namespace peers

#endif
