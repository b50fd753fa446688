#pragma once

#include <cstdint>
#include <cstring>

namespace coregui {

/// What a slot's payload holds. The values 1 to 8 are the length of a text of characters up to U+00FF in the
/// payload itself.
enum class SlotKind : std::uint32_t {
  noValue = 0,
  inlineTextMax = 8,
  number = 9,     ///< the number; the text is empty
  heapText = 10,  ///< a pointer to a TextBlock
  box = 11,       ///< a pointer to a CellBox: properties of this cell alone
};

/// One stored cell: its value, and which look it has. A plain record that the store moves as bytes; the store
/// releases what it points to.
class CellSlot {
 public:
  SlotKind Kind() const { return static_cast<SlotKind>(m_tag & KIND_MASK); }
  bool IsInlineText() const { return Kind() != SlotKind::noValue && Kind() <= SlotKind::inlineTextMax; }
  std::uint32_t Look() const { return m_tag >> KIND_BITS; }
  void SetTag(SlotKind kind, std::uint32_t look) {
    m_tag = static_cast<std::uint32_t>(kind) | (look << KIND_BITS);
  }

  const unsigned char* Bytes() const { return m_payload; }
  unsigned char* Bytes() { return m_payload; }
  std::uint32_t InlineLength() const { return m_tag & KIND_MASK; }
  double Number() const { return Load<double>(); }
  void SetNumber(double number) { Store(number); }
  template <typename Target>
  Target* Pointer() const {
    return Load<Target*>();
  }
  void SetPointer(void* pointer) { Store(pointer); }

  static constexpr std::uint32_t MAX_LOOKS = 1U << 28U;

 private:
  static constexpr std::uint32_t KIND_BITS = 4;
  static constexpr std::uint32_t KIND_MASK = (1U << KIND_BITS) - 1;

  template <typename Value>
  Value Load() const {
    Value value;
    std::memcpy(&value, m_payload, sizeof value);
    return value;
  }
  template <typename Value>
  void Store(Value value) {
    std::memcpy(m_payload, &value, sizeof value);
  }

  unsigned char m_payload[8];
  std::uint32_t m_tag;
};
static_assert(sizeof(CellSlot) == 12);

}  // namespace coregui
