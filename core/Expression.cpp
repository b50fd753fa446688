#include "core/Expression.h"

#include <muParser.h>

#include <cmath>
#include <cstddef>
#include <exception>
#include <numbers>
#include <stdexcept>

#include "core/Utf8.h"

namespace {

/// The parser copies the rest of the text at each number, so its cost grows with the square of the length.
constexpr std::size_t kLongestExpression = 4096;

double Evaluate(const std::wstring& expression) {
  if (expression.size() > kLongestExpression) throw std::length_error("The expression is too long.");
  mu::Parser parser;
  parser.DefineConst("pi", std::numbers::pi);
  parser.DefineConst("e", std::numbers::e);
  parser.SetExpr(coregui::ToUtf8(expression));
  int results = 0;
  const mu::value_type* values = parser.Eval(results);
  if (results != 1) throw std::domain_error("More than one value; the decimal sign is a point.");
  if (!std::isfinite(values[0])) throw std::domain_error("The result is not a finite number.");
  return values[0];
}

}  // namespace

bool coreEvaluateExpression(const wchar_t* expression, double& value, std::wstring* reason) {
  std::string failure;
  try {
    value = Evaluate(expression == nullptr ? L"" : expression);
    return true;
  } catch (const mu::ParserError& error) {
    failure = error.GetMsg();
  } catch (const std::exception& error) {
    failure = error.what();
  }
  if (reason != nullptr) *reason = coregui::FromUtf8(failure);
  return false;
}
