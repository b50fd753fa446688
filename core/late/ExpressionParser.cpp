#include "core/late/ExpressionParser.h"

#include <muParser.h>

#include <cmath>
#include <numbers>
#include <stdexcept>

namespace {

double Evaluate(const std::string& expression) {
  mu::Parser parser;
  parser.DefineConst("pi", std::numbers::pi);
  parser.DefineConst("e", std::numbers::e);
  parser.SetExpr(expression);
  int results = 0;
  const mu::value_type* values = parser.Eval(results);
  if (results != 1) throw std::domain_error("More than one value; the decimal sign is a point.");
  if (!std::isfinite(values[0])) throw std::domain_error("The result is not a finite number.");
  return values[0];
}

}  // namespace

extern "C" __attribute__((visibility("default"))) double coregui_evaluate_expression(
    const std::string& expression) {
  try {
    return Evaluate(expression);
  } catch (const mu::ParserError& error) {
    throw std::domain_error(error.GetMsg());
  }
}
