#pragma once

#include <cstdint>
#include <cstdio>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/Export.h"

namespace coregui {

/// How the bytes of a text file are read.
enum class TextEncoding { utf8, utf16LittleEndian, utf16BigEndian };

/// What a reader met in a file that a user may want to know.
struct TextReadTally {
  std::uint64_t cutLines = 0;       ///< lines longer than asked for, whose rest was left out
  std::uint64_t nulCharacters = 0;  ///< NUL characters, kept out of the text
  std::uint64_t foreignBytes = 0;   ///< bytes that were not UTF-8 and were read as Windows-1252
  bool readError = false;           ///< the system could not read on
};

/// Reads a text file line by line, in blocks, as fast as bulk reading needs it.
///
/// LF, CR LF and CR alone all end a line; a last line without a line end counts. The text is UTF-8, or UTF-16
/// where a byte-order mark says so; the mark is no part of the text. Bytes that are not UTF-8 are read as
/// Windows-1252, sequence by sequence, so that one bad byte spoils nothing else. What is left out (NUL
/// characters, the rest of a line that is too long) and the first byte that is not UTF-8 is written to the
/// status output with file, line and column; from the twentieth place on only the number is given, at the end
/// of the file. Columns count characters from 1.
class COREGUI_API TextReader {
 public:
  static constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();

  TextReader() = default;
  ~TextReader() { Close(); }
  TextReader(const TextReader&) = delete;
  TextReader& operator=(const TextReader&) = delete;

  /// Opens a file, closing the one before. False, with errno saying why, for what is no readable regular
  /// file.
  bool Open(const wchar_t* path);
  /// Reads from a stream that stays the caller's and must outlive the reading; `name` stands for it in
  /// reports.
  void Attach(std::FILE* stream, std::wstring name);
  /// Writes what remains to be reported and lets go of the file.
  void Close();

  /// Sets `line` to the next line without its end, at most `maxCharacters` of it; the rest is left out.
  /// False at the end of the file, and when the system cannot read on (see `readError`).
  bool ReadLine(std::wstring& line, std::size_t maxCharacters = kNoLimit);

  /// The number of the line that ReadLine gave last, from 1.
  std::uint64_t LineNumber() const { return m_line; }
  /// How many bytes of the file are used up.
  std::uint64_t Position() const { return m_blockStart + m_next; }
  /// Forgets what was read ahead; the stream stands at `position` now, where a line begins.
  void Restart(std::uint64_t position);
  /// Known once the file is open: the mark at the start is looked at then.
  TextEncoding Encoding() const { return m_encoding; }
  const TextReadTally& Tally() const { return m_tally; }

 private:
  struct StreamCloser {
    void operator()(std::FILE* stream) const { std::fclose(stream); }
  };
  struct Character {
    char32_t value;
    std::size_t length;  ///< in bytes; 0 at the end of the file
    bool isForeign = false;
  };

  void DetectEncoding();
  bool Fill();
  bool Have(std::size_t bytes);
  bool ReadPlainLine(std::wstring& line, std::size_t maxCharacters);
  bool ReadAnyLine(std::wstring& line, std::size_t maxCharacters);
  Character Peek();
  Character PeekUtf8();
  Character PeekUtf16();
  void NoteNul();
  void NoteForeignByte();
  void NoteCut(std::size_t maxCharacters);
  void ReportPlace(std::size_t column, const std::wstring& what) const;
  void ReportRest();

  std::unique_ptr<std::FILE, StreamCloser> m_owned;
  std::FILE* m_stream = nullptr;  ///< m_owned, or borrowed from the caller of Attach
  std::wstring m_name;
  std::vector<char> m_block;
  std::uint64_t m_blockStart = 0;  ///< position in the file of the block's first byte
  std::size_t m_next = 0;          ///< index of the first unused byte of the block
  std::size_t m_end = 0;           ///< how many bytes of the block are filled
  TextEncoding m_encoding = TextEncoding::utf8;
  std::uint64_t m_plainFrom = 0;  ///< position up to which the quick way is known to be of no use
  bool m_atEnd = true;
  bool m_skipLineFeed = false;  ///< the line before ended in CR: an LF that follows belongs to it
  std::uint64_t m_line = 0;
  std::size_t m_column = 0;  ///< of the character taken last
  TextReadTally m_tally;
  bool m_restReported = false;
};

}  // namespace coregui
