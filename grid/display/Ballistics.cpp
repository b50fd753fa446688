#include "grid/display/Ballistics.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace coregui {
namespace {

constexpr double kMostLines = std::numeric_limits<std::int32_t>::max();

int NotZero(int lineSize) {
  return std::max(lineSize, 1);
}

}  // namespace

long BallisticStep(double factor, int mode) {
  return static_cast<long>(std::min(std::trunc(std::pow(factor, mode)), kMostLines));
}

double FactorBefore(int position, int lineSize) {
  const int lines = position / NotZero(lineSize);
  return 1 - lines;
}

double FactorRightOf(int position, int gridWidth, int lineSize) {
  return static_cast<double>(position - gridWidth) / NotZero(lineSize) + 1;
}

double FactorBelow(int position, int gridHeight, int lineSize) {
  const int lines = (position - gridHeight) / NotZero(lineSize);
  return lines + 1;
}

KeyPace PaceKey(int count, int mode, int delay) {
  if (mode <= 0) return {};
  const int keyDowns = count / mode;
  const double n = keyDowns;
  const double step = std::min(n * n * n + 1, kMostLines);
  return {static_cast<long>(step), keyDowns == 0 && count > 1 && delay > 0};
}

}  // namespace coregui
