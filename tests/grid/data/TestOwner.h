#pragma once

#include <numeric>
#include <vector>

#include "grid/data/CGridSourceOwner.h"

/// A control of some size whose columns show the data columns of the same number until told otherwise.
class TestOwner : public coregui::CGridSourceOwner {
 public:
  TestOwner(int cols, long rows) : translations(static_cast<std::size_t>(cols)), numberRows(rows) {
    std::iota(translations.begin(), translations.end(), 0);
  }
  int GetNumberCols() const override { return static_cast<int>(translations.size()); }
  long GetNumberRows() const override { return numberRows; }
  int GetColTranslation(int col) const override { return translations[static_cast<std::size_t>(col)]; }
  void SetColTranslation(int col, int dataColumn) override {
    translations[static_cast<std::size_t>(col)] = dataColumn;
  }

  std::vector<int> translations;
  long numberRows;
};
