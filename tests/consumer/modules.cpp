#include <coregui/coregui.h>

#include <iostream>

/// What the library loads when it is asked for: arithmetic, and drawings as SVG files.
int main(int /*count*/, char** arguments) {
  double value = 0;
  if (!coreEvaluateExpression(L"2*(3+sqrt(16))", value)) return 1;
  CPrinterDC dc(PrintOutput::svg, CString::FromUtf8(arguments[1]));
  if (!dc.StartDoc(L"Plan") || !dc.StartPage()) return 1;
  dc.LineTo(100, 100);
  if (!dc.EndDoc()) return 1;
  std::cout << value << " drawn\n";
}
