#ifndef TESTS_REFERENCE_PLAIN_INTEGER_H
#define TESTS_REFERENCE_PLAIN_INTEGER_H

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace reference {

/// A whole number of any size, as it is done on paper: a sign and digits of 16 bits, least first.
class plain_integer {
public:
    plain_integer(std::int64_t value = 0) : is_negative(value < 0) {
        auto rest = static_cast<std::uint64_t>(value);
        rest = is_negative ? ~rest + 1 : rest;
        for (; rest != 0; rest >>= 16) {
            digits.push_back(static_cast<std::uint32_t>(rest & 0xffffu));
        }
    }

    /// -1, 0 or 1.
    int sign() const { return digits.empty() ? 0 : (is_negative ? -1 : 1); }

    plain_integer operator-() const {
        plain_integer result = *this;
        result.is_negative = !is_negative && !digits.empty();
        return result;
    }

    friend plain_integer operator+(const plain_integer& a, const plain_integer& b) {
        if (a.is_negative == b.is_negative) {
            return make(sum(a.digits, b.digits), a.is_negative);
        }
        return is_smaller(a.digits, b.digits) ? make(difference(b.digits, a.digits), b.is_negative)
                                              : make(difference(a.digits, b.digits), a.is_negative);
    }

    friend plain_integer operator-(const plain_integer& a, const plain_integer& b) {
        return a + (-b);
    }

    friend plain_integer operator*(const plain_integer& a, const plain_integer& b) {
        number product(a.digits.size() + b.digits.size() + 1, 0);
        for (std::size_t i = 0; i < a.digits.size(); ++i) {
            std::uint64_t carry = 0;
            for (std::size_t k = 0; k < b.digits.size() || carry != 0; ++k) {
                const std::uint64_t digit = k < b.digits.size() ? b.digits[k] : 0;
                carry += product[i + k] + std::uint64_t{a.digits[i]} * digit;
                product[i + k] = static_cast<std::uint32_t>(carry & 0xffffu);
                carry >>= 16;
            }
        }
        return make(product, a.is_negative != b.is_negative);
    }

    friend bool operator==(const plain_integer& a, const plain_integer& b) {
        return (a - b).sign() == 0;
    }

private:
    using number = std::vector<std::uint32_t>;

    static plain_integer make(number digits, bool is_negative) {
        while (!digits.empty() && digits.back() == 0) {
            digits.pop_back();
        }
        plain_integer result;
        result.is_negative = is_negative && !digits.empty();
        result.digits = std::move(digits);
        return result;
    }

    static bool is_smaller(const number& a, const number& b) {
        return a.size() != b.size()
                   ? a.size() < b.size()
                   : std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
    }

    static number sum(const number& a, const number& b) {
        number result;
        std::uint32_t carry = 0;
        for (std::size_t i = 0; i < std::max(a.size(), b.size()) || carry != 0; ++i) {
            carry += (i < a.size() ? a[i] : 0) + (i < b.size() ? b[i] : 0);
            result.push_back(carry & 0xffffu);
            carry >>= 16;
        }
        return result;
    }

    /// a - b where a is not the smaller one.
    static number difference(const number& a, const number& b) {
        number result;
        std::uint32_t borrow = 0;
        for (std::size_t i = 0; i < a.size(); ++i) {
            const std::uint32_t taken = borrow + (i < b.size() ? b[i] : 0);
            borrow = a[i] < taken ? 1 : 0;
            result.push_back((a[i] + (borrow << 16)) - taken);
        }
        return result;
    }

    bool is_negative = false;
    number digits;
};

} // namespace reference

#endif
