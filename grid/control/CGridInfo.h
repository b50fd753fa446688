#pragma once

#include <memory>

#include "core/Export.h"
#include "grid/control/CGridColumns.h"
#include "grid/control/CGridHeadings.h"
#include "grid/control/CGridRows.h"
#include "grid/control/CGridViewState.h"
#include "platform/CObject.h"
#include "platform/CString.h"

class CGridCell;
class CGridDataSource;
class CGridMem;
class CGridMultiSelect;
class CGridPtrList;

/// The state of one sheet of a grid, in named groups. The control owns one per sheet; nobody keeps a pointer
/// to it across calls, as the current sheet may change in any notification.
class COREGUI_API CGridInfo : public CObject {
 public:
  CGridInfo();
  ~CGridInfo() override;
  CGridInfo(const CGridInfo&) = delete;
  CGridInfo& operator=(const CGridInfo&) = delete;

  coregui::CGridColumns columns;
  coregui::CGridRows rows;
  coregui::CGridHeadings headings;
  coregui::CGridViewState view;

  CString name;                               ///< on the sheet's tab; empty: "Sheet" and its number
  std::unique_ptr<CGridCell> gridDefault;     ///< what every column's default cell starts from
  std::unique_ptr<CGridCell> headingDefault;  ///< under every heading cell
  int defaultSourceIndex = 0;                 ///< 0: the memory store
  CGridDataSource* defaultSource = nullptr;   ///< borrowed: the memory store or a registered source
  std::unique_ptr<CGridMem> memory;
  CGridMultiSelect* selection = nullptr;  ///< borrowed: ownSelection or the application's
  std::unique_ptr<CGridMultiSelect> ownSelection;
  std::unique_ptr<CGridPtrList> objects;  ///< free for the application's objects of the sheet
};
