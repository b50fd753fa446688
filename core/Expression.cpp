#include "core/Expression.h"

#include <cstddef>
#include <exception>
#include <stdexcept>

#include "core/LateModule.h"
#include "core/Utf8.h"
#include "core/late/ExpressionParser.h"

namespace {

/// The parser copies the rest of the text at each number, so its cost grows with the square of the length.
constexpr std::size_t kLongestExpression = 4096;

double Evaluate(const std::wstring& expression) {
  if (expression.size() > kLongestExpression) throw std::length_error("The expression is too long.");
  static const auto evaluate = reinterpret_cast<decltype(&coregui_evaluate_expression)>(
      coregui::LateFunction("expressions", "coregui_evaluate_expression"));
  if (evaluate == nullptr) throw std::runtime_error("The module for expressions is not installed.");
  return evaluate(coregui::ToUtf8(expression));
}

}  // namespace

bool coreEvaluateExpression(const wchar_t* expression, double& value, std::wstring* reason) {
  std::string failure;
  try {
    value = Evaluate(expression == nullptr ? L"" : expression);
    return true;
  } catch (const std::exception& error) {
    failure = error.what();
  }
  if (reason != nullptr) *reason = coregui::FromUtf8(failure);
  return false;
}
