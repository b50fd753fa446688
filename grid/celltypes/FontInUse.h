#pragma once

#include "platform/CDC.h"

namespace coregui {

/// Selects a cell's font while it lives; none when the cell has none.
class FontInUse {
 public:
  FontInUse(CDC& dc, CFont* font) : m_dc(dc), m_used(font != nullptr) {
    if (m_used) m_before = dc.SelectObject(font);
  }
  ~FontInUse() {
    if (m_used) m_dc.SelectObject(m_before);
  }
  FontInUse(const FontInUse&) = delete;
  FontInUse& operator=(const FontInUse&) = delete;

 private:
  CDC& m_dc;
  bool m_used;
  CFont* m_before = nullptr;
};

}  // namespace coregui
