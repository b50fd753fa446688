#include "views/RulerScale.h"

#include <algorithm>
#include <cmath>

#include "platform/Locale.h"

namespace coregui {

namespace {

/// More ticks than a device has pixels are never meant.
constexpr double kMostTicks = 20000.0;

double RoundStepFrom(double least) {
  const double power = std::pow(10.0, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= least * (1.0 - 1e-9)) {
      return factor * power;
    }
  }
  return 10.0 * power;
}

/// The multiples of a step inside a range that are not multiples of `except` (0: of none).
std::vector<double> Multiples(double step, double from, double to, double except) {
  const double first = std::ceil(from / step - 1e-9);
  const double last = std::floor(to / step + 1e-9);
  std::vector<double> values;
  if (!(last - first < kMostTicks) || std::fabs(first) > 1e15) {
    return values;  // beyond what the numbers can tell apart
  }
  for (double i = first; i <= last; ++i) {
    const double value = i * step;
    const double ratio = except == 0.0 ? 0.5 : value / except;
    if (std::fabs(ratio - std::round(ratio)) > 1e-6) {
      values.push_back(value);
    }
  }
  return values;
}

int DecimalsOf(double step) {
  if (!(step > 0.0) || !std::isfinite(step)) {
    return 3;
  }
  return std::clamp(static_cast<int>(-std::floor(std::log10(step) + 1e-9)), 0, 12);
}

}  // namespace

RulerTicks ChooseTicks(double from, double to, double pixels, double gap, double minorGap) {
  RulerTicks ticks;
  const double low = std::min(from, to);
  const double high = std::max(from, to);
  const double perPixel = (high - low) / pixels;
  if (!std::isfinite(perPixel) || perPixel <= 0.0 || !std::isfinite(low) || !std::isfinite(high)) {
    return ticks;
  }
  ticks.step = RoundStepFrom(perPixel * std::max(gap, 1.0));
  ticks.labels = Multiples(ticks.step, low, high, 0.0);
  const double leading = ticks.step / std::pow(10.0, std::floor(std::log10(ticks.step) + 1e-9));
  const bool twos = std::fabs(leading - 2.0) < 0.1;
  for (const double parts : {twos ? 4.0 : 5.0, 2.0}) {
    if (ticks.step / parts >= perPixel * minorGap && (parts == 2.0 ? leading < 4.0 : true)) {
      ticks.minorStep = ticks.step / parts;
      ticks.minors = Multiples(ticks.minorStep, low, high, ticks.step);
      break;
    }
  }
  return ticks;
}

std::vector<double> MultiplesOf(double step, double from, double to, double pixels) {
  const double low = std::min(from, to);
  const double high = std::max(from, to);
  if (!(step > 0.0) || !std::isfinite(step) || !((high - low) / step <= pixels)) {
    return {};
  }
  return Multiples(step, low, high, 0.0);
}

CString FormatPlotNumber(double value, double step, PlotNumberFormat format, int decimals) {
  if (!std::isfinite(value)) {
    return {};
  }
  const int places = decimals >= 0 ? std::min(decimals, 12) : DecimalsOf(step);
  const double unit = std::pow(10.0, places);
  // Rounded as a whole before it is taken apart, so that 999.9996 is 1+000.000 and -0.0001 has no sign.
  const double magnitude = std::round(std::fabs(value) * unit) / unit;
  const wchar_t* sign = value < 0.0 && magnitude > 0.0 ? L"-" : L"";
  CString text;
  if (format == PlotNumberFormat::decimal || magnitude > 1e15) {
    text.Format(L"%s%.*f", sign, places, magnitude);
  } else {
    const double kilometres = std::floor(magnitude / 1000.0);
    const double metres = magnitude - kilometres * 1000.0;
    text.Format(L"%s%.0f+%0*.*f", sign, kilometres, places > 0 ? places + 4 : 3, places, metres);
  }
  text.Replace(L".", GetUserLocale().decimal);
  return text;
}

}  // namespace coregui
