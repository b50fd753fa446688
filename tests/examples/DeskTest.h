#pragma once

#include <string>

#include "DeskWindow.h"
#include "tests/support/FolderTest.h"

/// A desk with a folder of its own, which closes as a person closes it.
class DeskTest : public coregui::test::FolderTest {
 protected:
  DeskTest() { EXPECT_TRUE(window.CreateDesk(CSize(1000, 700))); }
  ~DeskTest() override {
    window.SendMessage(WM_CLOSE);
    EXPECT_FALSE(window.HasWindow());
  }
  std::wstring Path(const std::string& name) const { return Wide(name).Str(); }
  /// Writes a survey, of three rows unless others are given, and opens it.
  bool Open(const std::string& name, const std::string& bytes = kSurvey) {
    Write(name, bytes);
    return window.Open(Path(name));
  }
  /// A survey of so many rows, one in each `step` metres.
  static std::string Road(int rows, int step = 1) {
    std::string road = "Chainage,Ground level,Design level\n";
    for (int i = 0; i < rows; ++i) {
      road += std::to_string(i * step) + "," + std::to_string(100 + i % 7) + ",101\n";
    }
    return road;
  }
  CString Text(int col, long row) {
    CString text;
    window.Grid().QuickGetText(col, row, &text);
    return text;
  }

  static constexpr char kSurvey[] = "Chainage,Ground level,Design level\n0,100,101\n10,102,101\n20,101,101\n";
  desk::DeskWindow window;
};
