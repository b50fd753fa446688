#include "grid/control/CGridDrawHint.h"

#include <algorithm>
#include <tuple>

namespace {

void Widen(CGridDrawHint::Range& range, int startCol, long startRow, int endCol, long endRow) {
  range.startCol = std::min(range.startCol, startCol);
  range.startRow = std::min(range.startRow, startRow);
  range.endCol = std::max(range.endCol, endCol);
  range.endRow = std::max(range.endRow, endRow);
}

}  // namespace

void CGridDrawHint::AddHint(int startCol, long startRow, int endCol, long endRow) {
  if (m_invalid.empty()) {
    m_box = {startCol, startRow, endCol, endRow};
  } else {
    Widen(m_box, startCol, startRow, endCol, endRow);
  }
  m_invalid.push_back({startCol, startRow, endCol, endRow});
}

void CGridDrawHint::AddToHint(int startCol, long startRow, int endCol, long endRow) {
  if (m_invalid.empty()) {
    AddHint(startCol, startRow, endCol, endRow);
  } else {
    Widen(m_invalid.front(), startCol, startRow, endCol, endRow);
  }
}

void CGridDrawHint::ClearHints() {
  m_invalid.clear();
  m_valid.clear();
}

int CGridDrawHint::IsInvalid(int col, long row) const {
  if (m_invalid.empty() || !m_box.Contains(col, row)) {
    return 0;
  }
  return std::any_of(m_invalid.begin(), m_invalid.end(),
                     [&](const Range& r) { return r.Contains(col, row); });
}

int CGridDrawHint::IsValid(int col, long row) const {
  return std::find(m_valid.begin(), m_valid.end(), Cell{row, col}) != m_valid.end();
}

void CGridDrawHint::SetAsValid(int col, long row) {
  m_valid.push_back({row, col});
}

int CGridDrawHint::GetTotalRange(int* startCol, long* startRow, int* endCol, long* endRow) const {
  Range total;
  if (!m_invalid.empty()) {
    total = m_invalid.front();
    for (const Range& r : m_invalid) {
      Widen(total, r.startCol, r.startRow, r.endCol, r.endRow);
    }
  }
  *startCol = total.startCol;
  *startRow = total.startRow;
  *endCol = total.endCol;
  *endRow = total.endRow;
  return m_invalid.empty() ? 0 : 1;
}

void CGridDrawHint::NoteDrawnAsOne(const Range& range) {
  const auto at =
      std::lower_bound(m_asOne.begin(), m_asOne.end(), range, [](const Range& one, const Range& other) {
        return std::tie(one.startRow, one.startCol) < std::tie(other.startRow, other.startCol);
      });
  if (at != m_asOne.end() && at->startRow == range.startRow && at->startCol == range.startCol) {
    Widen(*at, range.startCol, range.startRow, range.endCol, range.endRow);
  } else {
    m_asOne.insert(at, range);
  }
}

bool CGridDrawHint::IsDrawnAsOne(const Range& range) const {
  return std::any_of(m_asOne.begin(), m_asOne.end(), [&](const Range& one) { return one.Touches(range); });
}

void CGridDrawHint::SpreadHints() {
  Range total;
  if (m_asOne.empty() || GetTotalRange(&total.startCol, &total.startRow, &total.endCol, &total.endRow) == 0) {
    return;
  }
  const auto hinted = static_cast<std::ptrdiff_t>(m_invalid.size());
  std::erase_if(m_asOne, [&](const Range& one) {
    const auto isHinted = [&](auto... how) {
      return std::any_of(m_invalid.begin(), m_invalid.begin() + hinted, how...);
    };
    if (!one.Touches(total) || !isHinted([&](const Range& r) { return r.Touches(one); })) {
      return false;
    }
    if (!isHinted([&](const Range& r) { return r.Contains(one); })) {
      AddHint(one.startCol, one.startRow, one.endCol, one.endRow);
    }
    return true;
  });
}
