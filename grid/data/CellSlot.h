#pragma once

#include <bit>
#include <cstdint>

namespace coregui {

/// What a slot's payload holds.
enum class SlotKind : std::uint32_t {
  none,        ///< there is no cell
  noValue,     ///< nothing
  inlineText,  ///< a text of at most 8 characters up to U+00FF, followed by zeros
  number,      ///< the number; the text is empty
  heapText,    ///< a pointer to a TextBlock
  box,         ///< a pointer to a CellBox: properties of this cell alone
};

/// One stored cell: its value, and its tag, which says what the value is and which look the cell has. Moved
/// about as bytes; the store releases what it points to.
class CellSlot {
 public:
  /// No cell.
  CellSlot() = default;
  CellSlot(std::uint64_t payload, std::uint32_t tag) : m_payload(payload), m_tag(tag) {}
  CellSlot(SlotKind kind, std::uint32_t look, std::uint64_t payload = 0)
      : m_payload(payload), m_tag(static_cast<std::uint32_t>(kind) | (look << KIND_BITS)) {}

  bool Exists() const { return m_tag != 0; }
  SlotKind Kind() const { return static_cast<SlotKind>(m_tag & KIND_MASK); }
  std::uint32_t Look() const { return m_tag >> KIND_BITS; }
  std::uint64_t Payload() const { return m_payload; }
  std::uint32_t Tag() const { return m_tag; }

  /// An inline text's characters. They live in the slot.
  const unsigned char* Characters() const { return reinterpret_cast<const unsigned char*>(&m_payload); }
  std::uint32_t Length() const {
    const int zeros = std::endian::native == std::endian::little ? std::countl_zero(m_payload)
                                                                 : std::countr_zero(m_payload);
    return 8U - static_cast<std::uint32_t>(zeros) / 8U;
  }
  /// Whether the payload points to a block of the pool.
  bool HasBlock() const { return Kind() >= SlotKind::heapText; }
  double Number() const { return std::bit_cast<double>(m_payload); }
  template <typename Target>
  Target* Pointer() const {
    return reinterpret_cast<Target*>(static_cast<std::uintptr_t>(m_payload));
  }

  static constexpr std::uint32_t MAX_LOOKS = 1U << 28U;

 private:
  static constexpr std::uint32_t KIND_BITS = 4;
  static constexpr std::uint32_t KIND_MASK = (1U << KIND_BITS) - 1;

  std::uint64_t m_payload = 0;
  std::uint32_t m_tag = 0;
};

}  // namespace coregui
