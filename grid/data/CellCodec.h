#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

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
  std::wstring text;
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
StoredText WideText(std::wstring_view text);

/// What a column's cells mostly are, by the tag of the one read last. It is at hand before the next one's tag
/// has come from memory: the guess which way the read goes on is right, or put right, without waiting.
struct UsualCell {
  std::uint32_t tag = 0;
  SlotKind kind = SlotKind::none;
  const CellLook* look = nullptr;  // borrowed from the table of looks
};

/// Turns cells into slots and back. Its slots' blocks come from the store's pool, their looks from its table.
class CellCodec {
 public:
  explicit CellCodec(CellPool& pool) : m_pool(pool) {}
  /// A slot with what a stored cell keeps of `cell`: mask and set properties. As in every merge, a cell
  /// without extra memory loses its pointer.
  CellSlot Make(CGridCell& cell);
  /// Merges the stored cell over `cell`. `usual` is what the cells of its column mostly are.
  void MergeInto(CellSlot slot, UsualCell& usual, CGridCell& cell) const {
    if (slot.Tag() != usual.tag) usual = {slot.Tag(), slot.Kind(), &Look(slot)};
    Merge(slot, usual, cell);
  }
  void Release(const CellSlot& slot);
  void Clear();

  const CellLook& Look(const CellSlot& slot) const { return m_looks.Get(slot.Look()); }
  bool HasValue(const CellSlot& slot) const {
    if (slot.Kind() == SlotKind::box) return (Look(slot).flags & CELLPROP_TEXT) != 0;
    return slot.Kind() > SlotKind::noValue;
  }
  short DataType(const CellSlot& slot) const;
  /// The number field.
  double NumberField(const CellSlot& slot) const;
  /// The text as stored; for a number that is not what it shows. Short ones live in the slot itself.
  StoredText TextField(const CellSlot& slot) const;
  StoredText TextField(CellSlot&&) const = delete;
  /// What GetText of the stored cell gives; `scratch` keeps characters that had to be made. Empty without a
  /// value.
  StoredText ShownText(const CellSlot& slot, CellText& scratch) const;
  StoredText ShownText(CellSlot&&, CellText&) const = delete;
  std::wstring ShownString(const CellSlot& slot) const;
  /// What GetNumber of the stored cell gives.
  double NumberValue(const CellSlot& slot) const;

  const LookTable& Looks() const { return m_looks; }
  /// Whether the slot is well formed.
  bool Check(const CellSlot& slot) const;

 private:
  CellSlot MakeValue(const CGridCell& cell, std::uint32_t look);
  CellSlot MakeBox(const CGridCell& cell, std::uint32_t look);
  CellSlot MakeText(std::wstring_view text, double number, std::uint32_t look);
  void Merge(CellSlot slot, const UsualCell& kind, CGridCell& cell) const;
  void MergeValue(CellSlot slot, SlotKind kind, CGridCell& cell) const;
  static void MergeBox(const CellBox& box, DWORD flags, CGridCell& cell);
  void ReleasePayload(const CellSlot& slot);
  static void ReadText(const StoredText& text, CellText& target);

  CellPool& m_pool;
  LookTable m_looks;
};

}  // namespace coregui
