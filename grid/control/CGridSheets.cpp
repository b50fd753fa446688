#include "grid/control/CGridSheets.h"

#include <algorithm>
#include <set>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridMultiSelect.h"
#include "grid/data/CGridCell.h"
#include "grid/data/CGridMem.h"

namespace coregui {

CGridSheets::CGridSheets(CGridCtrl& control) : m_control(control), m_look(SystemLook::Read()) {
  SetCount(1);
}

void CGridSheets::SetCount(int count) {
  const auto wanted = static_cast<std::size_t>(count);
  while (m_sheets.size() < wanted) {
    auto sheet = std::make_unique<CGridInfo>();
    sheet->memory->SetOwner(&m_control);
    sheet->ownSelection->SetGridCtrl(&m_control);
    m_sheets.push_back(std::move(sheet));
  }
  m_sheets.resize(wanted);
  m_current = std::min(m_current, m_sheets.size() - 1);
}

CString CGridSheets::NameOf(int sheet) const {
  if (!At(sheet).name.IsEmpty()) {
    return At(sheet).name;
  }
  return CString::Formatted(L"Sheet%d", sheet + 1);
}

void CGridSheets::FollowSystemColours() {
  const SystemLook now = SystemLook::Read();
  std::set<const CGridCell*> replaced;  // once each: the new look may have a colour of the old one elsewhere
  for (const std::unique_ptr<CGridInfo>& sheet : m_sheets) {
    m_look.Replace(*sheet->gridDefault, now);
    m_look.Replace(*sheet->headingDefault, now);
    m_look.Replace(sheet->view.gridLinePen, now);
    for (long col = 0; col < sheet->columns.Count(); ++col) {
      CGridCell& defaults = *sheet->columns.At(col).defaults;
      if (replaced.insert(&defaults).second) {
        m_look.Replace(defaults, now);
      }
    }
  }
  m_look = now;
}

}  // namespace coregui
