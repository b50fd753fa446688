#pragma once

#include <memory>
#include <vector>

#include "grid/control/CGridInfo.h"
#include "grid/control/SystemLook.h"

class CGridCtrl;

namespace coregui {

/// The sheets of a grid, at least one, and which of them is current.
class CGridSheets {
 public:
  /// `control` owns the grid; it is what the memory stores and selections of new sheets report to.
  explicit CGridSheets(CGridCtrl& control);
  CGridInfo& Current() { return *m_sheets[m_current]; }
  const CGridInfo& Current() const { return *m_sheets[m_current]; }
  int Count() const { return static_cast<int>(m_sheets.size()); }
  int CurrentNumber() const { return static_cast<int>(m_current); }
  bool Has(int sheet) const { return sheet >= 0 && sheet < Count(); }
  /// A sheet from 0 to Count() - 1.
  CGridInfo& At(int sheet) { return *m_sheets[static_cast<std::size_t>(sheet)]; }
  const CGridInfo& At(int sheet) const { return *m_sheets[static_cast<std::size_t>(sheet)]; }
  /// Adds sheets in their initial state, or destroys the last ones. The current sheet stays, or becomes the
  /// last.
  void SetCount(int count);
  void SetCurrent(int sheet) { m_current = static_cast<std::size_t>(sheet); }
  /// The sheet's name, or "Sheet" and its number counted from 1.
  CString NameOf(int sheet) const;
  /// The system's colours have changed: the default cells that have them change too.
  void FollowSystemColours();

 private:
  CGridCtrl& m_control;
  std::vector<std::unique_ptr<CGridInfo>> m_sheets;
  std::size_t m_current = 0;
  SystemLook m_look;  ///< what the default cells have
};

}  // namespace coregui
