#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Export.h"

/// One entry of a list that a dialog offers: what the user reads, and the number that the program knows it
/// by.
struct COREGUI_API UI_ELEMENT {
  std::wstring text;
  int id = 0;
};

/// An ordered list of entries that it owns, as dialogs fill their lists and combo boxes from. Positions count
/// from 0.
class COREGUI_API UI_LIST {
 public:
  static constexpr int kNotFound = -1;

  int Count() const { return static_cast<int>(m_elements.size()); }
  /// The entry at a position from 0 to Count() - 1; valid until the list changes.
  const UI_ELEMENT& At(int position) const { return m_elements[static_cast<std::size_t>(position)]; }
  void Add(std::wstring text, int id) { m_elements.push_back({std::move(text), id}); }
  /// Inserts before `position`; one outside the list means its nearer end.
  void Insert(int position, std::wstring text, int id) {
    m_elements.insert(m_elements.begin() + Clamped(position), {std::move(text), id});
  }
  /// False when there is no such position.
  bool Remove(int position) {
    if (position < 0 || position >= Count()) return false;
    m_elements.erase(m_elements.begin() + position);
    return true;
  }
  void Clear() { m_elements.clear(); }
  /// The position of the first entry with this number or text, or kNotFound.
  int FindId(int id) const {
    return Find([id](const UI_ELEMENT& element) { return element.id == id; });
  }
  int FindText(std::wstring_view text) const {
    return Find([text](const UI_ELEMENT& element) { return element.text == text; });
  }
  auto begin() const { return m_elements.begin(); }
  auto end() const { return m_elements.end(); }

 private:
  int Clamped(int position) const { return position < 0 ? 0 : position > Count() ? Count() : position; }
  template <typename Matches>
  int Find(Matches matches) const {
    for (int position = 0; position < Count(); ++position) {
      if (matches(At(position))) return position;
    }
    return kNotFound;
  }

  std::vector<UI_ELEMENT> m_elements;
};
