#pragma once

#include <vector>

#include "core/Export.h"
#include "platform/CString.h"

/// An ordered list of texts, addressed by index from 0.
class COREGUI_API CStringList {
 public:
  int GetCount() const { return static_cast<int>(m_items.size()); }
  bool IsEmpty() const { return m_items.empty(); }
  /// Appends; returns the new item's index.
  int AddTail(const CString& text) {
    m_items.push_back(text);
    return GetCount() - 1;
  }
  void AddHead(const CString& text) { m_items.insert(m_items.begin(), text); }
  const CString& GetAt(int index) const { return m_items[static_cast<std::size_t>(index)]; }
  void SetAt(int index, const CString& text) { m_items[static_cast<std::size_t>(index)] = text; }
  void RemoveAt(int index) { m_items.erase(m_items.begin() + index); }
  void RemoveAll() { m_items.clear(); }
  /// The index of the first equal text at or after `start`, or -1.
  int Find(const CString& text, int start = 0) const;
  auto begin() const { return m_items.begin(); }
  auto end() const { return m_items.end(); }

 private:
  std::vector<CString> m_items;
};
