#pragma once

#include <array>
#include <cstdint>

namespace coregui {

/// A number's magnitude in decimal: what stands before the point, and twenty places behind it.
struct DecimalDigits {
  static constexpr int PLACES = 20;
  /// The places behind the point in groups of 8, 8 and 4.
  static constexpr std::array<int, 3> GROUPS{8, 8, 4};

  std::uint64_t whole = 0;
  std::array<std::uint64_t, 3> groups{};

  bool IsWhole() const { return (groups[0] | groups[1] | groups[2]) == 0; }
};

/// Rounds the exact value to `decimals` places (0 to PLACES), a tie to the even digit as the C library does;
/// the places after them are 0. False for what is no number and for magnitudes of 2^63 and more.
bool SplitNumber(double number, int decimals, DecimalDigits& digits);

}  // namespace coregui
