#include "grid/control/CGridInfo.h"

#include "grid/control/CGridMultiSelect.h"
#include "grid/data/CGridCell.h"
#include "grid/data/CGridMem.h"
#include "grid/data/CGridPtrList.h"
#include "platform/System.h"

CGridInfo::CGridInfo()
    : gridDefault(std::make_unique<CGridCell>()),
      headingDefault(std::make_unique<CGridCell>()),
      memory(std::make_unique<CGridMem>()),
      ownSelection(std::make_unique<CGridMultiSelect>()),
      objects(std::make_unique<CGridPtrList>()) {
  headingDefault->SetBackColor(GetSysColor(COLOR_BTNFACE));
  headingDefault->SetBorder(0x2000);
  headingDefault->SetAlignment(36);
  defaultSource = memory.get();
  selection = ownSelection.get();
}

CGridInfo::~CGridInfo() = default;
