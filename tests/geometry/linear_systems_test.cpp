#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <ox/core/ox_log.h>
#include <ox/core/ox_random.h>
#include <ox/ox_functions.h>
#include <string>
#include <tests/core/fresh_process.h>
#include <tests/reference/plain_system.h>
#include <tests/support/generator.h>
#include <vector>

namespace {

using ox::ox_list;

ox_list<float> numbers(std::initializer_list<float> values) {
    ox_list<float> list;
    for (const float value : values) {
        list.push_right(value);
    }
    return list;
}

std::vector<float> items(const ox_list<float>& list) {
    return std::vector<float>(list.begin(), list.end());
}

TEST(OxSolveSystem, OfOrderOneDividesAndRefusesOnlyZero) {
    EXPECT_EQ(items(ox_solve_system(numbers({2}), numbers({4}))), std::vector<float>{2});
    EXPECT_EQ(ox_solve_system(numbers({0}), numbers({1})).size(), 0);
    EXPECT_EQ(items(ox_solve_system(numbers({1e-20f}), numbers({1e-20f}))), std::vector<float>{1});
}

TEST(OxSolveSystem, FirstColumnBelowTheThresholdIsRejectedEvenIfSolvable) {
    EXPECT_EQ(ox_solve_system(numbers({5e-5f, 1, 0, 1}), numbers({1, 1})).size(), 0);
    EXPECT_EQ(ox_solve_system(numbers({1e-4f, 1, 0, 1}), numbers({1, 1})).size(), 0);
    EXPECT_EQ(ox_solve_system(numbers({1.01e-4f, 1, 0, 1}), numbers({1, 1})).size(), 2);
}

TEST(OxSolveSystem, LastPivotMayBeAsSmallAsItLikes) {
    EXPECT_EQ(items(ox_solve_system(numbers({1, 0, 0, 1e-20f}), numbers({1, 1e-20f}))),
              (std::vector<float>{1, 1}));
    EXPECT_EQ(ox_solve_system(numbers({1, 2, 1, 2}), numbers({1, 1})).size(), 0);
}

TEST(OxSolveSystem, RowsAreExchangedForTheLargestPivot) {
    EXPECT_EQ(items(ox_solve_system(numbers({0, 2, 4, 0}), numbers({6, 8}))),
              (std::vector<float>{2, 3}));
}

TEST(OxSolveSystem, MismatchedAndEmptySizesGiveAnEmptyList) {
    EXPECT_EQ(ox_solve_system(numbers({}), numbers({})).size(), 0);
    EXPECT_EQ(ox_solve_system(numbers({1, 2, 3}), numbers({1, 2})).size(), 0);
    EXPECT_EQ(ox_solve_system(numbers({1}), numbers({1, 2})).size(), 0);
    EXPECT_EQ(ox_solve_system(ox_list<float>(-4), ox_list<float>(-2)).size(), 0);
    EXPECT_EQ(ox_solve_system(ox_list<float>(4), ox_list<float>(-2)).size(), 0);
}

TEST(OxSolveSystem, NotANumberIsNeverAPivotBeforeTheLast) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(ox_solve_system(numbers({nan, 0, nan, 1}), numbers({1, 1})).size(), 0);
    const ox_list<float> x = ox_solve_system(numbers({1, 0, 0, nan}), numbers({1, 1}));
    ASSERT_EQ(x.size(), 2);
    EXPECT_TRUE(std::isnan(x[1]));
}

TEST(OxSolveSystem, EarlierOfTwoEqualPivotsIsTaken) {
    // with the first row as pivot x[0] is lost to rounding, with the second it would be kept
    const ox_list<float> x = ox_solve_system(numbers({1, 1e10f, 1, 1}), numbers({1e10f, 2}));
    EXPECT_EQ(items(x), reference::solve_system({{1, 1e10f}, {1, 1}}, {1e10f, 2}));
    EXPECT_NE(items(x), reference::solve_system({{1, 1}, {1, 1e10f}}, {2, 1e10f}));
}

TEST(OxSolveSystem, LeavesItsArgumentsAsTheyWere) {
    const ox_list<float> a = numbers({0, 2, 4, 0});
    const ox_list<float> b = numbers({6, 8});
    ox_solve_system(a, b);
    ox_reverse_matrix(a);
    EXPECT_EQ(items(a), (std::vector<float>{0, 2, 4, 0}));
    EXPECT_EQ(items(b), (std::vector<float>{6, 8}));
}

TEST(OxSolveSystem, AgreesWithThePlainVersionBitForBit) {
    support::generator random(6);
    int solved = 0;
    for (int round = 0; round < 10000; ++round) {
        const int n = random.between(1, 10);
        const float tiny = random.one_in(4) ? 1e-4f : 1.f;
        std::vector<std::vector<float>> rows;
        std::vector<float> b;
        ox_list<float> a;
        ox_list<float> right_side;
        for (int r = 0; r < n; ++r) {
            rows.emplace_back();
            for (int c = 0; c < n; ++c) {
                rows.back().push_back(random.one_in(3) ? 0.f : random.grid(-3, 3) * tiny);
                a.push_right(rows.back().back());
            }
            b.push_back(random.grid(-3, 3));
            right_side.push_right(b.back());
        }
        const std::vector<float> expected = reference::solve_system(rows, b);
        ASSERT_EQ(items(ox_solve_system(a, right_side)), expected) << "round " << round;
        solved += expected.empty() ? 0 : 1;
    }
    EXPECT_GT(solved, 3000);
    EXPECT_LT(solved, 9000);
}

TEST(OxReverseMatrix, OfFiveNumbersIsEmptyAndOfTheIdentityTheIdentity) {
    EXPECT_EQ(ox_reverse_matrix(numbers({1, 2, 3, 4, 5})).size(), 0);
    EXPECT_EQ(items(ox_reverse_matrix(numbers({1, 0, 0, 1}))), (std::vector<float>{1, 0, 0, 1}));
}

TEST(OxReverseMatrix, ZeroFirstRowIsRejected) {
    EXPECT_EQ(ox_reverse_matrix(numbers({0, 0, 1, 2})).size(), 0);
    EXPECT_EQ(ox_reverse_matrix(numbers({0, 0, 0, 1, 2, 3, 4, 5, 7})).size(), 0);
}

TEST(OxReverseMatrix, OfNothingIsEmpty) {
    EXPECT_EQ(ox_reverse_matrix(numbers({})).size(), 0);
    EXPECT_EQ(ox_reverse_matrix(ox_list<float>(-1)).size(), 0);
}

// The library eliminates once for all columns; the plain way solves one system per column.
TEST(OxReverseMatrix, IsColumnByColumnTheSolutionForAUnitVectorBitForBit) {
    support::generator random(5);
    for (int round = 0; round < 2000; ++round) {
        const int n = random.between(1, 9);
        ox_list<float> a(n * n);
        for (float& element : a) {
            element = random.one_in(4) ? 0.0f : random.grid(-2, 2);
        }
        const ox_list<float> inverse = ox_reverse_matrix(a);
        for (int c = 0; c < n; ++c) {
            ox_list<float> unit(n);
            for (int r = 0; r < n; ++r) {
                unit[r] = r == c ? 1.0f : 0.0f;
            }
            const ox_list<float> column = ox_solve_system(a, unit);
            ASSERT_EQ(column.size() == 0, inverse.size() == 0);
            for (int r = 0; r < column.size(); ++r) {
                ASSERT_EQ(std::memcmp(&column[r], &inverse[r * n + c], sizeof(float)), 0);
            }
        }
    }
}

ox_list<float> draws(ox::ox_random& random, int n) {
    ox_list<float> list(n);
    for (float& number : list) {
        number = random.dice_0_1();
    }
    return list;
}

/// The product of an 8 x 8 matrix and one of `columns` columns.
std::vector<float> product(const ox_list<float>& a, const ox_list<float>& b, int columns) {
    std::vector<float> result;
    for (int r = 0; r < 8; ++r) {
        for (int c = 0; c < columns; ++c) {
            float sum = 0;
            for (int k = 0; k < 8; ++k) {
                sum = sum + a[r * 8 + k] * b[k * columns + c];
            }
            result.push_back(sum);
        }
    }
    return result;
}

/// What a self-check logs about one trial; counts it when it passed.
std::string trial_report(const ox_list<float>& a, const ox_list<float>& x,
                         const std::vector<float>& expected, const std::string& what,
                         const std::string& number, int& passed) {
    if (x.size() == 0) {
        return (what == "system" ? "system " : "matrix ") + number + " is not inversible\n";
    }
    const std::vector<float> computed = product(a, x, static_cast<int>(expected.size()) / 8);
    std::string report = what + " " + number + " is wrong\n";
    bool wrong = false;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        wrong = wrong || !(std::fabs(computed[i] - expected[i]) <= 0.001f);
        char line[128];
        std::snprintf(line, sizeof line, "\t %f != %f\n", static_cast<double>(computed[i]),
                      static_cast<double>(expected[i]));
        report += line;
    }
    passed += wrong ? 0 : 1;
    return wrong ? report : "";
}

std::string log_text() {
    std::ifstream file("ox_log.txt");
    return std::string(std::istreambuf_iterator<char>(file), {});
}

TEST(OxLinearSystems, SelfCheckOfTheInverseLogsExactlyItsFindings) {
    fresh_process::run([] {
        ox::ox_random random(54873);
        std::string expected = "oxut_reverse_matrix\n";
        std::vector<float> identity;
        for (int i = 0; i < 64; ++i) {
            identity.push_back(i % 9 == 0 ? 1.0f : 0.0f);
        }
        int passed = 0;
        for (int t = 0; t < 100; ++t) {
            const ox_list<float> a = draws(random, 64);
            expected += trial_report(a, ox_reverse_matrix(a), identity, "reverse matrix",
                                     std::to_string(t), passed);
        }
        expected += "result : " + std::to_string(passed) + " / 100\n";
        EXPECT_EQ(oxut_reverse_matrix(), passed == 100);
        EXPECT_EQ(log_text(), expected);
    });
}

TEST(OxLinearSystems, SelfCheckOfTheSolutionLogsExactlyItsFindings) {
    fresh_process::run([] {
        ox::ox_random random(54873);
        std::string expected = "oxut_solve_system\n";
        int passed = 0;
        for (int t = 0; t < 100; ++t) {
            const ox_list<float> a = draws(random, 64);
            const ox_list<float> b = draws(random, 8);
            expected += trial_report(a, ox_solve_system(a, b), items(b), "system",
                                     std::to_string(t), passed);
        }
        expected += "result : " + std::to_string(passed) + " / 100\n";
        EXPECT_EQ(oxut_solve_system(), passed == 100);
        EXPECT_EQ(log_text(), expected);
    });
}

} // namespace
