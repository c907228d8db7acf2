// A matrix of exact fractions and its reduced row echelon form.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include "base/message_reporter.h"
#include "chemistry/fraction.h"

namespace orvane {

template <class Integer>
class FractionMatrix {
 public:
  // All entries are zero.
  FractionMatrix(std::size_t rows, std::size_t columns)
      : rows_(rows), columns_(columns), entries_(rows * columns) {}

  std::size_t Rows() const { return rows_; }
  std::size_t Columns() const { return columns_; }
  Fraction<Integer>& At(std::size_t row, std::size_t column) { return entries_[row * columns_ + column]; }
  const Fraction<Integer>& At(std::size_t row, std::size_t column) const {
    return entries_[row * columns_ + column];
  }

  // The column of the row's first entry that equals one: of its pivot, in reduced row echelon form.
  std::optional<std::size_t> FirstOne(std::size_t row) const {
    for (std::size_t column = 0; column < columns_; ++column) {
      if (At(row, column).IsOne()) return column;
    }
    return std::nullopt;
  }

  // Brings the matrix to reduced row echelon form by Gaussian elimination. The pivot is the first entry that
  // is not zero, leftmost column first, topmost row first; its size does not matter to exact numbers.
  void Reduce(MessageReporter& reporter) {
    std::size_t column = 0;
    for (std::size_t row = 0; row < rows_; ++row) {
      // Left of the last pivot the remaining rows hold zeros only.
      const std::optional<std::size_t> pivotRow = FindPivot(row, column);
      if (!pivotRow) break;
      if (*pivotRow != row) SwapRows(*pivotRow, row);
      NormaliseRow(row, column, reporter);
      for (std::size_t below = row + 1; below < rows_; ++below) {
        if (At(below, column).IsZero()) continue;
        AddMultiple(below, column, row, column + 1, reporter);
        At(below, column) = {};
      }
      ++column;
    }
    SubstituteBack(reporter);
  }

 private:
  // The topmost row from `row` on with an entry in the leftmost possible column from `column` on, which is
  // set to it.
  std::optional<std::size_t> FindPivot(std::size_t row, std::size_t& column) const {
    for (; column < columns_; ++column) {
      for (std::size_t candidate = row; candidate < rows_; ++candidate) {
        if (!At(candidate, column).IsZero()) return candidate;
      }
    }
    return std::nullopt;
  }

  void SwapRows(std::size_t a, std::size_t b) {
    std::swap_ranges(&At(a, 0), &At(a, 0) + columns_, &At(b, 0));
  }

  // Multiplies the row by the pivot's reciprocal, whose numerator carries the sign.
  void NormaliseRow(std::size_t row, std::size_t column, MessageReporter& reporter) {
    const Fraction<Integer> pivot = At(row, column);
    At(row, column) = {1, 1};
    if (pivot.IsOne()) return;
    Fraction<Integer> reciprocal{pivot.denominator, pivot.numerator};
    fraction_detail::MoveSignUp(reciprocal.numerator, reciprocal.denominator);
    for (std::size_t k = column + 1; k < columns_; ++k) {
      Fraction<Integer>& entry = At(row, k);
      if (!entry.IsZero()) FractMul(entry, reciprocal.numerator, reciprocal.denominator, reporter);
    }
  }

  // Adds to the row, from column `first` on, that multiple of the pivot's row that would make its entry in
  // the pivot's column zero. The factor is read before the row changes.
  void AddMultiple(std::size_t row, std::size_t pivotColumn, std::size_t pivotRow, std::size_t first,
                   MessageReporter& reporter) {
    const Fraction<Integer> entry = At(row, pivotColumn);
    const Fraction<Integer> factor{-entry.numerator, entry.denominator};
    for (std::size_t k = first; k < columns_; ++k) {
      const Fraction<Integer>& source = At(pivotRow, k);
      Fraction<Integer>& dest = At(row, k);
      if (source.IsZero()) {
        // All that adding zero does: see FractAdd.
        fraction_detail::MoveSignUp(dest.numerator, dest.denominator);
        continue;
      }
      Fraction<Integer> product = factor;
      FractMul(product, source.numerator, source.denominator, reporter);
      FractAdd(dest, product.numerator, product.denominator);
    }
  }

  void SubstituteBack(MessageReporter& reporter) {
    for (std::size_t row = rows_; row-- > 0;) {
      const std::optional<std::size_t> pivot = FirstOne(row);
      if (!pivot) continue;
      for (std::size_t above = row; above-- > 0;) {
        if (!At(above, *pivot).IsZero()) AddMultiple(above, *pivot, row, 0, reporter);
      }
    }
  }

  std::size_t rows_;
  std::size_t columns_;
  std::vector<Fraction<Integer>> entries_;
};

}  // namespace orvane
