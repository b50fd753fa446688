#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace coregui {

/// A cell's text. It has room for most texts in itself and keeps what it had to take for a longer one:
/// reading cell after cell into one record allocates nothing.
class CellText {
 public:
  static constexpr std::size_t OWN_ROOM = 39;  ///< characters

  CellText() {
    m_characters = m_own.data();
    Clear();
  }
  CellText(const CellText& other) : CellText() { Assign(other.View()); }
  CellText& operator=(const CellText& other) {
    if (this != &other) Assign(other.View());
    return *this;
  }

  bool IsEmpty() const { return m_size == 0; }
  std::size_t Size() const { return m_size; }
  /// Followed by a zero.
  const wchar_t* Characters() const { return m_characters; }
  std::wstring_view View() const { return {m_characters, m_size}; }

  void Clear() { Close(0); }
  /// `text` may be a part of this very text.
  void Assign(std::wstring_view text) { Replace(0, text); }
  /// Appends, of this very text too.
  void Append(std::wstring_view text) { Replace(m_size, text); }
  /// Room for `room` characters of no certain value, in place of the text; Close ends it.
  wchar_t* Open(std::size_t room) {
    if (room > m_room) Grow(room, 0);
    return m_characters;
  }
  /// The text is the first `size` characters of what was opened.
  void Close(std::size_t size) {
    m_size = size;
    m_characters[size] = L'\0';
  }

 private:
  void Replace(std::size_t from, std::wstring_view text) {
    const std::unique_ptr<wchar_t[]> before =
        from + text.size() > m_room ? Grow(from + text.size(), from) : nullptr;
    std::char_traits<wchar_t>::move(m_characters + from, text.data(), text.size());
    Close(from + text.size());
  }
  /// Takes more room and keeps the first `kept` characters; returns the room before.
  std::unique_ptr<wchar_t[]> Grow(std::size_t room, std::size_t kept) {
    room = std::max(room, 2 * m_room);
    auto taken = std::make_unique_for_overwrite<wchar_t[]>(room + 1);
    std::copy_n(m_characters, kept, taken.get());
    m_room = room;
    m_characters = taken.get();
    m_taken.swap(taken);
    return taken;
  }

  std::array<wchar_t, OWN_ROOM + 1> m_own;
  wchar_t* m_characters = nullptr;  ///< its own, or what was taken
  std::size_t m_size = 0;
  std::size_t m_room = OWN_ROOM;
  std::unique_ptr<wchar_t[]> m_taken;
};

}  // namespace coregui
