#include "grid/data/SortKeys.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <numeric>
#include <string>

namespace coregui {
namespace {

bool ComparesByNumber(const CellCodec& codec, const CellSlot& cell) {
  if (!cell.Exists()) return false;
  const short type = codec.DataType(cell);
  return type == CELLDATA_NUMBER || type == CELLDATA_BOOL || type == CELLDATA_CURRENCY;
}

int CompareTexts(const StoredText& a, const StoredText& b) {
  const std::uint32_t common = std::min(a.length, b.length);
  for (std::uint32_t i = 0; i < common; ++i) {
    const wchar_t x = a.At(i);
    const wchar_t y = b.At(i);
    if (x != y) return x < y ? -1 : 1;
  }
  return a.length < b.length ? -1 : a.length > b.length ? 1 : 0;
}

/// The first 8 characters, for texts of one byte each.
std::uint64_t NarrowKey(const CellCodec& codec, const CellSlot& cell) {
  std::uint64_t key = 0;
  if (cell.Kind() == SlotKind::inlineText) {
    for (unsigned i = 0; i < 8; ++i) key |= static_cast<std::uint64_t>(cell.Characters()[i]) << (56 - 8 * i);
    return key;
  }
  const StoredText text = codec.TextField(cell);
  const std::uint32_t used = std::min<std::uint32_t>(text.length, 8);
  for (std::uint32_t i = 0; i < used; ++i) key |= static_cast<std::uint64_t>(text.At(i)) << (56 - 8 * i);
  return key;
}

/// The first 4 characters; those beyond U+FFFE are alike, and what follows one does not count.
std::uint64_t WideKey(const StoredText& text) {
  std::uint64_t key = 0;
  const std::uint32_t used = std::min<std::uint32_t>(text.length, 4);
  for (std::uint32_t i = 0; i < used; ++i) {
    const auto unit = std::min<std::uint32_t>(static_cast<std::uint32_t>(text.At(i)), 0xFFFF);
    key |= static_cast<std::uint64_t>(unit) << (48 - 16 * i);
    if (unit == 0xFFFF) break;
  }
  return key;
}

/// How a column's texts become keys.
struct TextForm {
  bool narrow = true;    ///< every text has characters of one byte
  bool complete = true;  ///< and 8 at most, so that the key is the text
};

TextForm FormOf(const CellCodec& codec, const KeyCells& cells) {
  TextForm form;
  for (const CellSlot& cell : cells) {
    if (cell.Kind() == SlotKind::inlineText || !codec.HasValue(cell)) continue;
    const StoredText text = codec.TextField(cell);
    if (text.width != 1 && text.length != 0) form.narrow = false;
    if (text.length > 8) form.complete = false;
  }
  if (!form.narrow) form.complete = false;
  return form;
}

/// Sorts the stretches of equal keys by the whole texts.
void RefineTexts(const CellCodec& codec, const KeyCells& cells, bool descending,
                 std::vector<KeyedRow>& entries) {
  const auto less = [&](const KeyedRow& a, const KeyedRow& b) {
    const int order = CompareTexts(codec.TextField(cells[a.row]), codec.TextField(cells[b.row]));
    return descending ? order > 0 : order < 0;
  };
  for (auto begin = entries.begin(); begin != entries.end();) {
    const auto end =
        std::find_if(begin, entries.end(), [&](const KeyedRow& entry) { return entry.key != begin->key; });
    if (end - begin > 1) std::stable_sort(begin, end, less);
    begin = end;
  }
}

/// The place of each row's text among those of the column, equal for equal texts. Only of rows with a text.
void RankTexts(const CellCodec& codec, const KeyCells& cells, std::vector<SortKey>& keys) {
  std::vector<std::wstring> texts(cells.size());
  std::vector<KeyedRow> rows;
  for (std::uint32_t row = 0; row < cells.size(); ++row) {
    if (!keys[row].hasText) continue;
    texts[row] = codec.ShownString(cells[row]);
    rows.push_back({WideKey(WideText(texts[row])), row});
  }
  SortByKey(rows);
  const auto keyChanges = [](const KeyedRow& a, const KeyedRow& b) { return a.key != b.key; };
  for (auto begin = rows.begin(); begin != rows.end();) {
    const auto end = std::adjacent_find(begin, rows.end(), keyChanges);
    const auto next = end == rows.end() ? end : end + 1;
    std::sort(begin, next,
              [&texts](const KeyedRow& a, const KeyedRow& b) { return texts[a.row] < texts[b.row]; });
    begin = next;
  }
  std::uint32_t rank = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i != 0 && texts[rows[i].row] != texts[rows[i - 1].row]) ++rank;
    keys[rows[i].row].rank = rank;
  }
}

KeyColumn MakeKeyColumn(const CellCodec& codec, const KeyCells& cells) {
  KeyColumn keys(cells.size());
  bool anyNumber = false;
  bool anyText = false;
  for (std::size_t row = 0; row < cells.size(); ++row) {
    const CellSlot& cell = cells[row];
    keys[row].byNumber = ComparesByNumber(codec, cell);
    keys[row].hasText = codec.HasValue(cell);
    anyNumber = anyNumber || keys[row].byNumber;
    anyText = anyText || (keys[row].hasText && !keys[row].byNumber);
  }
  for (std::size_t row = 0; anyNumber && row < cells.size(); ++row) {
    keys[row].number = codec.NumberValue(cells[row]);
  }
  if (anyText) RankTexts(codec, cells, keys);
  return keys;
}

}  // namespace

std::uint64_t NumberKey(double number) {
  const auto bits = std::bit_cast<std::uint64_t>(number == 0.0 ? 0.0 : number);
  constexpr std::uint64_t SIGN = 1ULL << 63U;
  return (bits & SIGN) != 0 ? ~bits : bits | SIGN;
}

/// By each byte that is not the same everywhere, from the last to the first.
void SortByKey(std::vector<KeyedRow>& rows) {
  std::array<std::array<std::size_t, 256>, 8> counts{};
  for (const KeyedRow& row : rows) {
    for (unsigned byte = 0; byte < 8; ++byte) ++counts[byte][(row.key >> (8 * byte)) & 0xFFU];
  }
  std::vector<KeyedRow> other(rows.size());
  for (unsigned byte = 0; byte < 8; ++byte) {
    auto& places = counts[byte];
    if (std::find(places.begin(), places.end(), rows.size()) != places.end()) continue;
    std::exclusive_scan(places.begin(), places.end(), places.begin(), std::size_t{0});
    for (const KeyedRow& row : rows) other[places[(row.key >> (8 * byte)) & 0xFFU]++] = row;
    rows.swap(other);
  }
}

bool IsBlankKey(const CellCodec& codec, const CellSlot& cell) {
  return !codec.HasValue(cell) && !ComparesByNumber(codec, cell);
}

bool IsConsistent(const CellCodec& codec, const KeyCells& cells) {
  bool numbers = false;
  bool texts = false;
  for (const CellSlot& cell : cells) {
    const bool byNumber = ComparesByNumber(codec, cell);
    (byNumber ? numbers : texts) = true;
    if (numbers && texts) return false;
    if (byNumber && std::isnan(codec.NumberValue(cell))) return false;
  }
  return true;
}

void SortByColumn(const CellCodec& codec, const KeyCells& cells, bool descending,
                  const std::vector<bool>& ended, std::vector<std::uint32_t>& order) {
  const TextForm form = FormOf(codec, cells);
  std::vector<KeyedRow> entries;
  std::vector<std::uint32_t> blank;
  entries.reserve(order.size());
  bool byNumber = false;
  for (const std::uint32_t row : order) {
    const CellSlot& cell = cells[row];
    if ((!ended.empty() && ended[row]) || IsBlankKey(codec, cell)) {
      blank.push_back(row);
      continue;
    }
    byNumber = ComparesByNumber(codec, cell);
    std::uint64_t key = 0;
    if (byNumber) {
      key = NumberKey(codec.NumberValue(cell));
    } else {
      key = form.narrow ? NarrowKey(codec, cell) : WideKey(codec.TextField(cell));
    }
    entries.push_back({descending ? ~key : key, row});
  }
  SortByKey(entries);
  if (!byNumber && !form.complete) RefineTexts(codec, cells, descending, entries);
  auto target = order.begin();
  if (descending) target = std::copy(blank.begin(), blank.end(), target);
  target =
      std::transform(entries.begin(), entries.end(), target, [](const KeyedRow& entry) { return entry.row; });
  if (!descending) std::copy(blank.begin(), blank.end(), target);
}

std::vector<KeyColumn> MakeSortKeys(const CellCodec& codec, const std::vector<KeyCells>& cells) {
  std::vector<KeyColumn> keys;
  keys.reserve(cells.size());
  for (const KeyCells& column : cells) keys.push_back(MakeKeyColumn(codec, column));
  return keys;
}

int CompareKeys(const SortKey& a, const SortKey& b, bool descending) {
  const SortKey& first = descending ? b : a;
  const SortKey& second = descending ? a : b;
  if (first.byNumber) return first.number < second.number ? -1 : first.number > second.number ? 1 : 0;
  if (!first.hasText) return 1;
  if (!second.hasText) return -1;
  return first.rank < second.rank ? -1 : first.rank > second.rank ? 1 : 0;
}

}  // namespace coregui
