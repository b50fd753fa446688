#include "core/TextReader.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>

#include "core/Status.h"
#include "core/Utf8.h"

namespace coregui {

namespace {

constexpr std::size_t kBlockSize = std::size_t{256} * 1024;
constexpr std::uint64_t kReportedPlaces = 20;

/// Widens bytes into `line` and tells whether each of them stands for itself: ASCII, and neither CR nor NUL.
/// One pass without a branch, which compilers turn into vector code.
bool WidenPlain(const char* bytes, std::size_t count, std::wstring& line) {
  line.resize(count);
  wchar_t* out = line.data();
  unsigned special = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    special |= static_cast<unsigned>(byte >= 0x80) | static_cast<unsigned>(byte == 0) |
               static_cast<unsigned>(byte == '\r');
    out[i] = static_cast<wchar_t>(byte);
  }
  return special == 0;
}

}  // namespace

bool TextReader::Open(const wchar_t* path) {
  Close();
  const std::string name = ToFileName(path == nullptr ? L"" : path);
  struct stat status {};
  if (::stat(name.c_str(), &status) != 0) return false;
  if (!S_ISREG(status.st_mode)) {
    errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
    return false;
  }
  std::unique_ptr<std::FILE, StreamCloser> stream(std::fopen(name.c_str(), "rb"));
  if (!stream) return false;
  Attach(stream.get(), path);
  m_owned = std::move(stream);
  return true;
}

void TextReader::Attach(std::FILE* stream, std::wstring name) {
  Close();
  m_stream = stream;
  m_name = std::move(name);
  m_line = 0;
  m_tally = {};
  m_restReported = false;
  m_encoding = TextEncoding::utf8;
  Restart(0);
  DetectEncoding();
}

void TextReader::Close() {
  ReportRest();
  m_stream = nullptr;
  m_owned.reset();
  m_atEnd = true;
}

void TextReader::Restart(std::uint64_t position) {
  m_blockStart = position;
  m_next = 0;
  m_end = 0;
  m_plainFrom = 0;
  m_atEnd = m_stream == nullptr;
  m_skipLineFeed = false;
}

void TextReader::DetectEncoding() {
  Have(3);
  const std::string_view start(m_block.data(), m_end);
  if (start.starts_with("\xEF\xBB\xBF")) {
    m_next = 3;
  } else if (start.starts_with("\xFF\xFE")) {
    m_encoding = TextEncoding::utf16LittleEndian;
    m_next = 2;
  } else if (start.starts_with("\xFE\xFF")) {
    m_encoding = TextEncoding::utf16BigEndian;
    m_next = 2;
  }
}

/// Moves the unused bytes to the front of the block and reads on behind them. False when nothing came.
bool TextReader::Fill() {
  if (m_atEnd) return false;
  if (m_block.empty()) m_block.resize(kBlockSize);
  m_end -= m_next;
  std::memmove(m_block.data(), m_block.data() + m_next, m_end);
  m_blockStart += m_next;
  m_next = 0;
  const std::size_t wanted = m_block.size() - m_end;
  const std::size_t got = std::fread(m_block.data() + m_end, 1, wanted, m_stream);
  m_end += got;
  if (got < wanted) {
    m_atEnd = true;
    if (std::ferror(m_stream) != 0) {
      m_tally.readError = true;
      const std::string reason = std::system_category().message(errno);
      coreStatusOut(
          (m_name + L": reading stops after line " + std::to_wstring(m_line) + L": " + FromUtf8(reason))
              .c_str());
    }
  }
  return got > 0;
}

/// True when that many unused bytes stand in the block, which is filled if need be.
bool TextReader::Have(std::size_t bytes) {
  return m_end - m_next >= bytes || (Fill() && m_end - m_next >= bytes);
}

bool TextReader::ReadLine(std::wstring& line, std::size_t maxCharacters) {
  if (m_skipLineFeed) {
    m_skipLineFeed = false;
    const Character character = Peek();
    if (character.value == U'\n') m_next += character.length;
  }
  if (!Have(1)) {
    line.clear();
    ReportRest();
    return false;
  }
  ++m_line;
  return ReadPlainLine(line, maxCharacters) || ReadAnyLine(line, maxCharacters);
}

/// The quick way, for a line of plain ASCII that stands whole in the block. False, with nothing used up, for
/// others. Where it fails, it is not tried again before the line feed it looked at: lines that end in CR
/// would make it quadratic.
bool TextReader::ReadPlainLine(std::wstring& line, std::size_t maxCharacters) {
  if (m_encoding != TextEncoding::utf8 || Position() < m_plainFrom) return false;
  const auto findEnd = [this] { return std::memchr(m_block.data() + m_next, '\n', m_end - m_next); };
  const void* found = findEnd();
  if (found == nullptr && Fill()) found = findEnd();
  if (found == nullptr) {
    m_plainFrom = m_blockStart + m_end;
    return false;
  }
  const char* start = m_block.data() + m_next;
  const auto whole = static_cast<std::size_t>(static_cast<const char*>(found) - start);
  const std::size_t count = whole > 0 && start[whole - 1] == '\r' ? whole - 1 : whole;
  if (count > maxCharacters || !WidenPlain(start, count, line)) {
    m_plainFrom = Position() + whole + 1;
    return false;
  }
  m_next += whole + 1;
  return true;
}

/// The thorough way, character by character.
bool TextReader::ReadAnyLine(std::wstring& line, std::size_t maxCharacters) {
  line.clear();
  m_column = 0;
  std::size_t count = 0;
  while (true) {
    const Character character = Peek();
    if (character.length == 0) break;
    m_next += character.length;
    if (character.value == U'\n') break;
    if (character.value == U'\r') {
      m_skipLineFeed = true;
      break;
    }
    ++m_column;
    if (character.isForeign) NoteForeignByte();
    if (character.value == 0) {
      NoteNul();
    } else if (count++ < maxCharacters) {
      AppendCharacter(line, character.value);
    }
  }
  if (count > maxCharacters) NoteCut(maxCharacters);
  return true;
}

/// Looks at the next character without using it up.
TextReader::Character TextReader::Peek() {
  return m_encoding == TextEncoding::utf8 ? PeekUtf8() : PeekUtf16();
}

TextReader::Character TextReader::PeekUtf8() {
  Have(4);
  if (m_next == m_end) return {0, 0};
  const DecodedCharacter decoded = DecodeUtf8(std::string_view(m_block.data() + m_next, m_end - m_next));
  return {decoded.value, decoded.length, !decoded.isUtf8};
}

TextReader::Character TextReader::PeekUtf16() {
  Have(4);
  constexpr char32_t replacement = 0xFFFD;
  const std::size_t bytes = m_end - m_next;
  if (bytes < 2) return {replacement, bytes};  // half a unit at the very end
  const auto unit = [this](std::size_t at) {
    const auto first = static_cast<unsigned char>(m_block[m_next + at]);
    const auto second = static_cast<unsigned char>(m_block[m_next + at + 1]);
    return static_cast<char32_t>(m_encoding == TextEncoding::utf16LittleEndian ? first | (second << 8)
                                                                               : (first << 8) | second);
  };
  const char32_t high = unit(0);
  if (high < 0xD800 || high > 0xDFFF) return {high, 2};
  const char32_t low = high < 0xDC00 && bytes >= 4 ? unit(2) : 0;
  if (low < 0xDC00 || low > 0xDFFF) return {replacement, 2};
  return {0x10000 + ((high - 0xD800) << 10U) + (low - 0xDC00), 4};
}

void TextReader::NoteNul() {
  if (++m_tally.nulCharacters <= kReportedPlaces) ReportPlace(m_column, L"a NUL character is left out");
}

void TextReader::NoteForeignByte() {
  if (++m_tally.foreignBytes == 1) ReportPlace(m_column, L"not UTF-8; such bytes are read as Windows-1252");
}

void TextReader::NoteCut(std::size_t maxCharacters) {
  if (++m_tally.cutLines > kReportedPlaces) return;
  ReportPlace(maxCharacters + 1, L"the line is longer than " + std::to_wstring(maxCharacters) +
                                     L" characters; the rest is left out");
}

void TextReader::ReportPlace(std::size_t column, const std::wstring& what) const {
  coreStatusOut(
      (m_name + L": line " + std::to_wstring(m_line) + L", column " + std::to_wstring(column) + L": " + what)
          .c_str());
}

/// Gives the numbers of what was met too often to be reported place by place. Once for a file.
void TextReader::ReportRest() {
  if (m_stream == nullptr || m_restReported) return;
  m_restReported = true;
  const auto report = [this](std::uint64_t count, const wchar_t* what) {
    if (count > kReportedPlaces) coreStatusOut((m_name + L": " + std::to_wstring(count) + what).c_str());
  };
  report(m_tally.nulCharacters, L" NUL characters in all are left out");
  report(m_tally.cutLines, L" lines in all are cut off");
}

}  // namespace coregui
