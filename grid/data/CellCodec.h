#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "grid/data/CGridCell.h"
#include "grid/data/CellPool.h"
#include "grid/data/CellSlot.h"
#include "grid/data/LookTable.h"

namespace coregui {

/// A text that does not fit in a slot: the header, then the number when there is one, then the characters at
/// the width of the widest.
struct TextBlock {
  std::uint32_t length;
  std::uint16_t width;
  std::uint16_t hasNumber;
};

/// Properties that a cell does not share with others.
struct CellBox {
  struct Extras {
    CString label;
    CString mask;
    CellExtraMemory memory;
    std::shared_ptr<CGridCell> initial;
  };
  double number = 0.0;
  CString text;
  int param = -1;
  CellJoin join;
  std::unique_ptr<Extras> extras;  // null when a cell has none of them
};

/// A stored cell's text, as it is kept.
struct StoredText {
  const unsigned char* characters = nullptr;
  std::uint32_t length = 0;
  std::uint16_t width = 1;  ///< bytes of a character: 1, 2 or 4
  wchar_t At(std::uint32_t index) const;
};
/// A text's characters; valid until it changes.
StoredText WideText(const CString& text);

/// Turns cells into slots and back. Its slots' blocks come from its pool, their looks from its table.
class CellCodec {
 public:
  /// Makes the slot hold what a stored cell keeps of `cell`: mask and set properties. As in every merge, a
  /// cell without extra memory loses its pointer. `slot` holds a cell before, or `isNew`.
  void Store(CGridCell& cell, CellSlot& slot, bool isNew);
  /// Merges the stored cell over `cell`.
  void MergeInto(const CellSlot& slot, CGridCell& cell) const;
  void Release(CellSlot& slot);
  void Clear();

  const CellLook& Look(const CellSlot& slot) const { return m_looks.Get(slot.Look()); }
  bool HasValue(const CellSlot& slot) const { return (Look(slot).flags & CELLPROP_TEXT) != 0; }
  short DataType(const CellSlot& slot) const;
  /// The number field.
  double NumberField(const CellSlot& slot) const;
  /// The text as stored; for a number that is not what it shows.
  StoredText TextField(const CellSlot& slot) const;
  /// What GetText of the stored cell gives; `scratch` keeps characters that had to be made. Empty without a
  /// value.
  StoredText ShownText(const CellSlot& slot, CString& scratch) const;
  CString ShownString(const CellSlot& slot) const;
  /// What GetNumber of the stored cell gives.
  double NumberValue(const CellSlot& slot) const;

  const LookTable& Looks() const { return m_looks; }
  std::size_t BlocksInUse() const { return m_pool.InUse(); }
  /// Whether the slot is well formed.
  bool Check(const CellSlot& slot) const;

 private:
  void StoreValue(const CGridCell& cell, CellSlot& slot, std::uint32_t look);
  void StoreBox(const CGridCell& cell, CellSlot& slot, std::uint32_t look);
  void StoreText(const std::wstring& text, double number, CellSlot& slot, std::uint32_t look);
  void ReleasePayload(CellSlot& slot);
  static void ReadText(const StoredText& text, CString& target);

  CellPool m_pool;
  LookTable m_looks;
};

}  // namespace coregui
