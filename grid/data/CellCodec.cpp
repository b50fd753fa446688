#include "grid/data/CellCodec.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <new>

#include "grid/data/NumberText.h"

namespace coregui {
namespace {

constexpr DWORD OWN_PROPERTIES =
    CELLPROP_MASK | CELLPROP_LABEL | CELLPROP_PARAM | CELLPROP_EXTRAMEM | CELLPROP_JOIN;
constexpr std::size_t INLINE_CAPACITY = 8;
constexpr std::size_t LONGEST_BLOCK = 1U << 28U;

bool IsPositiveZero(double number) {
  return std::bit_cast<std::uint64_t>(number) == 0;
}

std::size_t BlockSize(const TextBlock& block) {
  return sizeof(TextBlock) + (block.hasNumber != 0 ? sizeof(double) : 0) +
         static_cast<std::size_t>(block.length) * block.width;
}

unsigned char* Characters(TextBlock& block) {
  return reinterpret_cast<unsigned char*>(&block + 1) + (block.hasNumber != 0 ? sizeof(double) : 0);
}

/// The least width that every character fits in.
std::uint16_t WidthFor(std::wstring_view text) {
  std::uint32_t all = 0;
  for (const wchar_t character : text) all |= static_cast<std::uint32_t>(character);
  return all <= 0xFF ? 1 : all <= 0xFFFF ? 2 : 4;
}

template <typename Unit>
void Pack(std::wstring_view text, unsigned char* target) {
  for (const wchar_t character : text) {
    const auto unit = static_cast<Unit>(character);
    std::memcpy(target, &unit, sizeof unit);
    target += sizeof unit;
  }
}

void Pack(std::wstring_view text, std::uint16_t width, unsigned char* target) {
  if (width == 1) return Pack<std::uint8_t>(text, target);
  if (width == 2) return Pack<std::uint16_t>(text, target);
  Pack<std::uint32_t>(text, target);
}

bool NeedsExtras(const CellLook& look, const std::shared_ptr<CGridCell>& initial) {
  return (look.flags & (CELLPROP_MASK | CELLPROP_LABEL | CELLPROP_EXTRAMEM)) != 0 || initial != nullptr;
}

}  // namespace

StoredText WideText(std::wstring_view text) {
  static_assert(sizeof(wchar_t) == 4);
  return {reinterpret_cast<const unsigned char*>(text.data()), static_cast<std::uint32_t>(text.size()), 4};
}

wchar_t StoredText::At(std::uint32_t index) const {
  if (width == 1) return static_cast<wchar_t>(characters[index]);
  if (width == 2) {
    std::uint16_t unit = 0;
    std::memcpy(&unit, characters + std::size_t{2} * index, sizeof unit);
    return static_cast<wchar_t>(unit);
  }
  wchar_t unit = 0;
  std::memcpy(&unit, characters + std::size_t{4} * index, sizeof unit);
  return unit;
}

CellSlot CellCodec::Make(CGridCell& cell) {
  const std::uint32_t look = m_looks.Acquire(cell.m_look);
  const bool own = (cell.m_look.flags & OWN_PROPERTIES) != 0 || cell.m_initial != nullptr;
  if (!cell.Has(CELLPROP_EXTRAMEM)) cell.m_extra.pointer = nullptr;
  return own ? MakeBox(cell, look) : MakeValue(cell, look);
}

CellSlot CellCodec::MakeValue(const CGridCell& cell, std::uint32_t look) {
  if (!cell.Has(CELLPROP_TEXT)) return {SlotKind::noValue, look};
  const std::wstring_view text = cell.m_text.View();
  if (text.empty()) return {SlotKind::number, look, std::bit_cast<std::uint64_t>(cell.m_number)};
  if (text.size() > LONGEST_BLOCK) return MakeBox(cell, look);
  return MakeText(text, cell.m_number, look);
}

CellSlot CellCodec::MakeText(std::wstring_view text, double number, std::uint32_t look) {
  const std::uint16_t width = WidthFor(text);
  const bool hasNumber = !IsPositiveZero(number);
  if (width == 1 && !hasNumber && text.size() <= INLINE_CAPACITY) {
    unsigned char characters[INLINE_CAPACITY] = {};
    Pack<std::uint8_t>(text, characters);
    return {SlotKind::inlineText, look, std::bit_cast<std::uint64_t>(characters)};
  }
  const TextBlock header{static_cast<std::uint32_t>(text.size()), width,
                         static_cast<std::uint16_t>(hasNumber)};
  auto* const block = ::new (m_pool.Allocate(BlockSize(header))) TextBlock(header);
  if (hasNumber) std::memcpy(block + 1, &number, sizeof number);
  Pack(text, width, Characters(*block));
  return {SlotKind::heapText, look, reinterpret_cast<std::uintptr_t>(block)};
}

CellSlot CellCodec::MakeBox(const CGridCell& cell, std::uint32_t look) {
  auto* const box = ::new (m_pool.Allocate(sizeof(CellBox))) CellBox;
  if (cell.Has(CELLPROP_TEXT)) {
    box->text = cell.m_text.View();
    box->number = cell.m_number;
  }
  if (cell.Has(CELLPROP_PARAM)) box->param = cell.m_param;
  if (cell.Has(CELLPROP_JOIN)) box->join = cell.m_join;
  if (NeedsExtras(cell.m_look, cell.m_initial)) {
    box->extras = std::make_unique<CellBox::Extras>();
    if (cell.Has(CELLPROP_LABEL)) box->extras->label = cell.m_label;
    if (cell.Has(CELLPROP_MASK)) box->extras->mask = cell.m_mask;
    if (cell.Has(CELLPROP_EXTRAMEM)) box->extras->memory = cell.m_extra;
    box->extras->initial = cell.m_initial;
  }
  return {SlotKind::box, look, reinterpret_cast<std::uintptr_t>(box)};
}

void CellCodec::Merge(CellSlot slot, const UsualCell& kind, CGridCell& cell) const {
  const CellLook& look = *kind.look;
  cell.m_look.flags |= look.flags;
  cell.m_look.CopySetFieldsFrom(look);
  MergeValue(slot, kind.kind, cell);
  if (kind.kind == SlotKind::box) {
    MergeBox(*slot.Pointer<CellBox>(), look.flags, cell);
  } else {
    cell.m_extra.pointer = nullptr;
    if (cell.m_initial != nullptr) cell.m_initial.reset();
  }
}

void CellCodec::MergeValue(CellSlot slot, SlotKind kind, CGridCell& cell) const {
  if (kind == SlotKind::number) {
    cell.m_text.Clear();
    cell.m_number = slot.Number();
  } else if (kind == SlotKind::inlineText) {
    // A fixed number of steps: all at once.
    std::copy_n(slot.Characters(), INLINE_CAPACITY, cell.m_text.Open(INLINE_CAPACITY));
    cell.m_text.Close(slot.Length());
    cell.m_number = 0.0;
  } else if (HasValue(slot)) {
    ReadText(TextField(slot), cell.m_text);
    cell.m_number = NumberField(slot);
  }
}

void CellCodec::MergeBox(const CellBox& box, DWORD flags, CGridCell& cell) {
  const auto has = [flags](long bit) { return (flags & static_cast<DWORD>(bit)) != 0; };
  if (has(CELLPROP_PARAM)) cell.m_param = box.param;
  if (has(CELLPROP_JOIN)) cell.m_join = box.join;
  const CellBox::Extras* const extras = box.extras.get();
  if (has(CELLPROP_LABEL)) cell.m_label = extras->label;
  if (has(CELLPROP_MASK)) cell.m_mask = extras->mask;
  if (has(CELLPROP_EXTRAMEM)) {
    cell.m_extra = extras->memory;
  } else {
    cell.m_extra.pointer = nullptr;
  }
  cell.m_initial = extras != nullptr ? extras->initial : nullptr;
}

void CellCodec::Release(const CellSlot& slot) {
  ReleasePayload(slot);
  m_looks.Release(slot.Look());
}

void CellCodec::ReleasePayload(const CellSlot& slot) {
  if (slot.Kind() == SlotKind::heapText) {
    auto* const block = slot.Pointer<TextBlock>();
    m_pool.Release(block, BlockSize(*block));
  } else if (slot.Kind() == SlotKind::box) {
    auto* const box = slot.Pointer<CellBox>();
    box->~CellBox();
    m_pool.Release(box, sizeof(CellBox));
  }
}

void CellCodec::Clear() {
  m_looks.Clear();
}

short CellCodec::DataType(const CellSlot& slot) const {
  const CellLook& look = Look(slot);
  return (look.flags & CELLPROP_DATATYPE) != 0 ? look.dataType : CELLDATA_TEXT;
}

double CellCodec::NumberField(const CellSlot& slot) const {
  if (slot.Kind() == SlotKind::number) return slot.Number();
  if (slot.Kind() == SlotKind::box) return slot.Pointer<CellBox>()->number;
  double number = 0.0;
  if (slot.Kind() == SlotKind::heapText) {
    const auto* const block = slot.Pointer<TextBlock>();
    if (block->hasNumber != 0) std::memcpy(&number, block + 1, sizeof number);
  }
  return number;
}

StoredText CellCodec::TextField(const CellSlot& slot) const {
  if (slot.Kind() == SlotKind::inlineText) return {slot.Characters(), slot.Length(), 1};
  if (slot.Kind() == SlotKind::heapText) {
    auto* const block = slot.Pointer<TextBlock>();
    return {Characters(*block), block->length, block->width};
  }
  if (slot.Kind() == SlotKind::box) return WideText(slot.Pointer<CellBox>()->text);
  return {};
}

StoredText CellCodec::ShownText(const CellSlot& slot, CellText& scratch) const {
  if (!HasValue(slot)) return {};
  if (DataType(slot) != CELLDATA_NUMBER) return TextField(slot);
  const CellLook& look = Look(slot);
  const NumberForm form{(look.flags & CELLPROP_DECIMALS) != 0, look.decimals,
                        (look.flags & CELLPROP_NOLOCALEFORMAT) == 0};
  WriteNumber(NumberField(slot), form, scratch);
  return WideText(scratch.View());
}

std::wstring CellCodec::ShownString(const CellSlot& slot) const {
  CellText scratch;
  CellText shown;
  ReadText(ShownText(slot, scratch), shown);
  return std::wstring(shown.View());
}

double CellCodec::NumberValue(const CellSlot& slot) const {
  if (!HasValue(slot)) return 0.0;
  const short type = DataType(slot);
  if (type == CELLDATA_NUMBER || type == CELLDATA_TIME || type == CELLDATA_CURRENCY) return NumberField(slot);
  CellText text;
  ReadText(TextField(slot), text);
  return ReadNumber(text.View());
}

void CellCodec::ReadText(const StoredText& text, CellText& target) {
  wchar_t* const characters = target.Open(text.length);
  for (std::uint32_t i = 0; i < text.length; ++i) characters[i] = text.At(i);
  target.Close(text.length);
}

bool CellCodec::Check(const CellSlot& slot) const {
  if (!slot.Exists() || slot.Kind() > SlotKind::box || slot.Look() >= m_looks.Size() ||
      m_looks.Count(slot.Look()) == 0)
    return false;
  const bool hasValue = (Look(slot).flags & CELLPROP_TEXT) != 0;
  return slot.Kind() == SlotKind::box || hasValue == (slot.Kind() != SlotKind::noValue);
}

}  // namespace coregui
