#include "grid/data/DecimalDigits.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

namespace coregui {
namespace {

__extension__ using Wide = unsigned __int128;

constexpr std::array<std::uint64_t, 9> POWERS{1,       10,        100,        1000,       10'000,
                                              100'000, 1'000'000, 10'000'000, 100'000'000};

/// What rounds up a number with these last digits: 1 when more than a half of its unit is left, or just a
/// half and the digits are odd. Each answer is as likely as the other, so there is no branch to guess.
std::uint64_t RoundUp(std::uint64_t left, bool more, std::uint64_t digits) {
  constexpr std::uint64_t HALF = 1ULL << 63U;
  const auto above = static_cast<unsigned>(left > HALF);
  const auto tie = static_cast<unsigned>(left == HALF);
  return above | (tie & (static_cast<unsigned>(more) | static_cast<unsigned>(digits & 1U)));
}

/// A number from 0 to 1 in units of 2^-64.
class Fraction {
 public:
  explicit Fraction(std::uint64_t units) : m_units(units) {}
  /// Multiplies; keeps the fraction of the product and returns its whole part.
  std::uint64_t TakeDigits(std::uint64_t factor) {
    const Wide product = static_cast<Wide>(m_units) * factor;
    m_units = static_cast<std::uint64_t>(product);
    return static_cast<std::uint64_t>(product >> 64U);
  }
  std::uint64_t RoundUp(std::uint64_t digits) const { return coregui::RoundUp(m_units, false, digits); }

 private:
  std::uint64_t m_units;
};

/// The same in units of 2^-128.
class FineFraction {
 public:
  explicit FineFraction(Wide units)
      : m_high(static_cast<std::uint64_t>(units >> 64U)), m_low(static_cast<std::uint64_t>(units)) {}
  std::uint64_t TakeDigits(std::uint64_t factor) {
    const Wide low = static_cast<Wide>(m_low) * factor;
    const Wide high = static_cast<Wide>(m_high) * factor + static_cast<std::uint64_t>(low >> 64U);
    m_low = static_cast<std::uint64_t>(low);
    m_high = static_cast<std::uint64_t>(high);
    return static_cast<std::uint64_t>(high >> 64U);
  }
  std::uint64_t RoundUp(std::uint64_t digits) const { return coregui::RoundUp(m_high, m_low != 0, digits); }

 private:
  std::uint64_t m_high;
  std::uint64_t m_low;
};

/// Takes the decimals out of the fraction; `digits` has the whole part and no decimals.
template <typename AnyFraction>
inline void TakeDecimals(AnyFraction fraction, int decimals, DecimalDigits& digits) {
  std::uint64_t* last = &digits.whole;
  std::uint64_t taken = digits.whole;
  std::uint64_t step = 1;
  std::size_t groups = 0;
  for (; groups < digits.groups.size() && decimals > 0; ++groups) {
    const int width = DecimalDigits::GROUPS[groups];
    const int places = std::min(decimals, width);
    taken = fraction.TakeDigits(POWERS[static_cast<std::size_t>(places)]);
    step = POWERS[static_cast<std::size_t>(width - places)];
    last = &digits.groups[groups];
    *last = taken * step;
    decimals -= places;
  }
  *last += step * fraction.RoundUp(taken);
  while (groups > 0 && digits.groups[groups - 1] == POWERS[DecimalDigits::GROUPS[groups - 1]]) {
    digits.groups[--groups] = 0;
    ++(groups == 0 ? digits.whole : digits.groups[groups - 1]);
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
  if (shift < 64) {
    digits.whole = mantissa >> shift;
    const Fraction fraction(mantissa << (64 - shift));
    // Told as a constant, the places that nearly all numbers are asked for need no loop.
    if (decimals == DecimalDigits::PLACES) {
      TakeDecimals(fraction, DecimalDigits::PLACES, digits);
    } else {
      TakeDecimals(fraction, decimals, digits);
    }
  } else if (shift <= 128) {
    TakeDecimals(FineFraction(static_cast<Wide>(mantissa) << (128 - shift)), decimals, digits);
  }
  return true;
}

}  // namespace coregui
