#include <coregui/coregui.h>

#include <iostream>

int main() {
  double level = 0.0;
  std::wstring reason;
  if (!coreEvaluateExpression(L"100 + 250 * sin(pi / 6)", level, &reason)) return 1;
  std::cout << CString::Formatted(L"Level %.3f", level).ToUtf8() << '\n';
}
