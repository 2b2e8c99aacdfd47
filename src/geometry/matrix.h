// Square matrices, stored column by column.
#pragma once

#include <array>
#include <utility>

#include "base/number.h"

namespace quorvel::geometry {

template <class R, int n>
struct SquareMatrix {
    std::array<R, std::size_t{n} * n> elements;  // the row varies fastest

    constexpr R& operator()(int row, int column) noexcept { return elements[index(row, column)]; }
    constexpr R operator()(int row, int column) const noexcept {
        return elements[index(row, column)];
    }

  private:
    static constexpr std::size_t index(int row, int column) noexcept {
        return static_cast<std::size_t>(row + n * column);
    }
};

struct Pivot {
    int row, column;
};

// The largest element by magnitude among those from (k, k) on; the first of equals.
template <class R, int n>
Pivot largest_from(const SquareMatrix<R, n>& a, int k) noexcept {
    Pivot largest{k, k};
    for (int column = k; column < n; ++column)
        for (int row = k; row < n; ++row)
            if (absolute(a(row, column)) > absolute(a(largest.row, largest.column)))
                largest = {row, column};
    return largest;
}

template <class R, int n>
constexpr void exchange_rows(SquareMatrix<R, n>& a, int i, int k) noexcept {
    for (int column = 0; column < n; ++column) std::swap(a(i, column), a(k, column));
}

template <class R, int n>
constexpr void exchange_columns(SquareMatrix<R, n>& a, int j, int k) noexcept {
    for (int row = 0; row < n; ++row) std::swap(a(row, j), a(row, k));
}

// One step of the Gauss-Jordan elimination: unknown k and right-hand side k change places.
template <class R, int n>
constexpr void exchange_unknown(SquareMatrix<R, n>& a, int k) noexcept {
    const R pivot = a(k, k);
    for (int i = 0; i < n; ++i) {
        if (i == k) continue;
        a(i, k) /= -pivot;
        for (int j = 0; j < n; ++j)
            if (j != k) a(i, j) += a(i, k) * a(k, j);
    }
    for (int j = 0; j < n; ++j)
        if (j != k) a(k, j) /= pivot;
    a(k, k) = R{1} / pivot;
}

// The inverse, in place, by Gauss-Jordan elimination with full pivoting; infinite or not a number
// for a singular matrix.
template <class R, int n>
SquareMatrix<R, n> inverse(SquareMatrix<R, n> a) noexcept {
    std::array<Pivot, n> pivots{};
    for (int k = 0; k < n; ++k) {
        const Pivot pivot = pivots[static_cast<std::size_t>(k)] = largest_from(a, k);
        exchange_rows(a, pivot.row, k);
        exchange_columns(a, pivot.column, k);
        exchange_unknown(a, k);
    }
    // The inverse of a matrix with columns exchanged has rows exchanged, and conversely.
    for (int k = n - 1; k >= 0; --k) {
        const Pivot pivot = pivots[static_cast<std::size_t>(k)];
        exchange_columns(a, pivot.row, k);
        exchange_rows(a, pivot.column, k);
    }
    return a;
}

}  // namespace quorvel::geometry
