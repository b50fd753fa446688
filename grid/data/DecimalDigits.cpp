#include "grid/data/DecimalDigits.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

namespace coregui {
namespace {

__extension__ using Wide = unsigned __int128;

constexpr int HALF_PLACES = DecimalDigits::PLACES / 2;

std::uint64_t PowerOfTen(int exponent) {
  static constexpr std::array<std::uint64_t, HALF_PLACES + 1> POWERS{
      1, 10, 100, 1000, 10'000, 100'000, 1'000'000, 10'000'000, 100'000'000, 1'000'000'000, 10'000'000'000};
  return POWERS[static_cast<std::size_t>(exponent)];
}

/// A number from 0 to 1 in units of 2^-128.
class Fraction {
 public:
  explicit Fraction(Wide units)
      : m_high(static_cast<std::uint64_t>(units >> 64U)), m_low(static_cast<std::uint64_t>(units)) {}
  /// Multiplies; keeps the fraction of the product and returns its whole part.
  std::uint64_t TakeDigits(std::uint64_t factor) {
    const Wide low = static_cast<Wide>(m_low) * factor;
    const Wide high = static_cast<Wide>(m_high) * factor + static_cast<std::uint64_t>(low >> 64U);
    m_low = static_cast<std::uint64_t>(low);
    m_high = static_cast<std::uint64_t>(high);
    return static_cast<std::uint64_t>(high >> 64U);
  }
  /// 1 when what is left rounds up a number of these digits, else 0. Each is as likely as the other, so there
  /// is no branch to guess.
  std::uint64_t RoundUp(std::uint64_t digits) const {
    constexpr std::uint64_t HALF = 1ULL << 63U;
    const auto above = static_cast<unsigned>(m_high > HALF);
    const auto tie = static_cast<unsigned>(m_high == HALF);
    return above | (tie & (static_cast<unsigned>(m_low != 0) | static_cast<unsigned>(digits & 1U)));
  }

 private:
  std::uint64_t m_high;
  std::uint64_t m_low;
};

/// Takes the decimals out of the fraction; `digits` has the whole part.
void TakeDecimals(Fraction fraction, int decimals, DecimalDigits& digits) {
  std::uint64_t* last = &digits.whole;
  std::uint64_t taken = digits.whole;
  std::uint64_t step = 1;
  if (decimals > 0) {
    const int places = std::min(decimals, HALF_PLACES);
    taken = fraction.TakeDigits(PowerOfTen(places));
    step = PowerOfTen(HALF_PLACES - places);
    digits.upper = taken * step;
    last = &digits.upper;
  }
  if (decimals > HALF_PLACES) {
    taken = fraction.TakeDigits(PowerOfTen(decimals - HALF_PLACES));
    step = PowerOfTen(DecimalDigits::PLACES - decimals);
    digits.lower = taken * step;
    last = &digits.lower;
  }
  *last += step * fraction.RoundUp(taken);
  if (digits.lower == DecimalDigits::HALF_UNIT) {
    digits.lower = 0;
    ++digits.upper;
  }
  if (digits.upper == DecimalDigits::HALF_UNIT) {
    digits.upper = 0;
    ++digits.whole;
  }
}

}  // namespace

bool SplitNumber(double number, int decimals, DecimalDigits& digits) {
  const auto bits = std::bit_cast<std::uint64_t>(number);
  const int exponentBits = static_cast<int>((bits >> 52U) & 0x7FFU);
  if (exponentBits >= 1023 + 63) return false;
  const std::uint64_t low = bits & ((1ULL << 52U) - 1);
  const std::uint64_t mantissa = exponentBits == 0 ? low : (low | (1ULL << 52U));
  const int exponent = (exponentBits == 0 ? 1 : exponentBits) - 1075;
  digits = {};
  if (exponent >= 0) {
    digits.whole = mantissa << static_cast<unsigned>(exponent);
    return true;
  }
  // The value is mantissa / 2^shift; the part below the point fits in 128 binary places, or is below 2^-75.
  const auto shift = static_cast<unsigned>(-exponent);
  if (shift > 128) return true;
  digits.whole = shift < 64 ? mantissa >> shift : 0;
  const std::uint64_t rest = shift < 64 ? mantissa & ((1ULL << shift) - 1) : mantissa;
  if (rest == 0) return true;
  TakeDecimals(Fraction(static_cast<Wide>(rest) << (128 - shift)), decimals, digits);
  return true;
}

}  // namespace coregui
