#include "platform/CStringList.h"

#include <algorithm>

int CStringList::Find(const CString& text, int start) const {
  if (start >= GetCount()) return -1;
  const auto found = std::find(m_items.begin() + std::max(start, 0), m_items.end(), text);
  return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}
