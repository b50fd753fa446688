#pragma once

#include <cstdint>

namespace coregui {

/// A number's magnitude in decimal: what stands before the point, and twenty places behind it.
struct DecimalDigits {
  static constexpr int PLACES = 20;
  static constexpr std::uint64_t HALF_UNIT = 10'000'000'000ULL;  ///< the first or the last ten places at most

  std::uint64_t whole = 0;
  std::uint64_t upper = 0;  ///< the first ten places
  std::uint64_t lower = 0;  ///< the last ten

  bool IsWhole() const { return upper == 0 && lower == 0; }
};

/// Rounds the exact value to `decimals` places (0 to PLACES), a tie to the even digit as the C library does;
/// the places after them are 0. False for what is no number and for magnitudes of 2^63 and more.
bool SplitNumber(double number, int decimals, DecimalDigits& digits);

}  // namespace coregui
