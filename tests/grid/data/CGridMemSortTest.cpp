#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <iterator>
#include <list>
#include <random>

#include "grid/data/CGridCell.h"
#include "grid/data/CGridMem.h"
#include "platform/Locale.h"
#include "tests/grid/data/TestOwner.h"

namespace {

using Row = std::vector<CGridCell>;  // the key cells; a missing one has no property set

/// The required insertion, told over a list of rows and one at a time as it is worded.
class InsertionModel {
 public:
  InsertionModel(coregui::CGridSourceOwner& owner, int flags) : m_owner(owner), m_flags(flags) {}

  std::vector<int> Sort(std::vector<Row>& rows) {
    m_rows = &rows;
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) Insert(row);
    return {m_run.begin(), m_run.end()};
  }

 private:
  int Compare(int row, int other, std::size_t key) {
    return m_owner.OnSortEvaluate(&(*m_rows)[static_cast<std::size_t>(row)][key],
                                  &(*m_rows)[static_cast<std::size_t>(other)][key], m_flags);
  }
  bool GoesBefore(int row, int other) {
    for (std::size_t key = 0; key < (*m_rows)[0].size(); ++key) {
      const int result = Compare(row, other, key);
      if (result != 0) return result < 0;
    }
    return false;
  }
  std::list<int>::iterator Start(int row) {
    if (Compare(row, *m_hint, 0) < 1) {
      if (--m_count == -2) {
        if (m_hint != m_run.begin()) --m_hint;
        m_count = 0;
      }
      return m_run.begin();
    }
    const auto start = m_hint;
    if (++m_count == 2) {
      if (std::next(m_hint) != m_run.end()) ++m_hint;
      m_count = 0;
    }
    return start;
  }
  void Insert(int row) {
    if (m_run.empty()) {
      m_run.push_back(row);
      m_hint = m_run.begin();
      return;
    }
    auto at = Start(row);
    auto remembered = m_run.end();
    bool leaping = true;
    while (at != m_run.end()) {
      if (GoesBefore(row, *at)) {
        if (!leaping || remembered == m_run.end()) break;
        at = std::next(remembered);
        leaping = false;
        continue;
      }
      if (!leaping) {
        ++at;
        continue;
      }
      remembered = at;
      auto landing = at;
      int left = 100;
      while (left > 0 && landing != m_run.end()) {
        ++landing;
        --left;
      }
      if (landing == m_run.end()) {
        leaping = false;
        at = std::next(remembered);
      } else {
        at = landing;
      }
    }
    m_run.insert(at, row);
  }

  coregui::CGridSourceOwner& m_owner;
  int m_flags;
  std::vector<Row>* m_rows = nullptr;
  std::list<int> m_run;
  std::list<int>::iterator m_hint;
  int m_count = 0;
};

/// Compares lengths of texts, and forwards where one has no text: half an order of its own.
class LengthOwner : public TestOwner {
 public:
  using TestOwner::TestOwner;
  int OnSortEvaluate(CGridCell* a, CGridCell* b, int flags) override {
    if (a->GetText() == nullptr || b->GetText() == nullptr) return TestOwner::OnSortEvaluate(a, b, flags);
    const int order = a->GetTextLength() - b->GetTextLength();
    return (flags & coregui::SORT_DESCENDING) != 0 ? -order : order;
  }
};

class ConsistentOwner : public LengthOwner {
 public:
  using LengthOwner::LengthOwner;
  coregui::SortOrder GetSortOrder() const override { return coregui::SortOrder::consistent; }
};

enum class Mix {
  texts,
  longTexts,
  wideTexts,
  numbers,
  textsAndBlanks,
  numbersAndBlanks,
  depths,
  zerosAndTexts,
  notNumbers,
  everything
};

/// A cell of the mix; null for a missing one.
std::unique_ptr<CGridCell> RandomCell(Mix mix, std::mt19937& random) {
  const auto pick = [&random](int high) { return static_cast<int>(random() % static_cast<unsigned>(high)); };
  const auto number = [&] { return (pick(400) - 200) / 4.0; };
  auto cell = std::make_unique<CGridCell>();
  cell->SetPropertyFlags(0);
  CString text;
  text.Format(L"%d", pick(300));
  if (mix == Mix::everything) mix = static_cast<Mix>(pick(6));
  const bool mayMiss = mix == Mix::textsAndBlanks || mix == Mix::numbersAndBlanks;
  if (mayMiss && pick(4) == 0) {
    if (pick(2) == 0) return nullptr;
    cell->SetBorder(1);  // stored, without a value
    return cell;
  }
  switch (mix) {
    case Mix::numbers:
    case Mix::numbersAndBlanks:
      cell->SetNumber(number());
      if (pick(5) == 0) cell->SetBool(pick(2));
      break;
    case Mix::depths:  // below a level: an empty row counts as the level itself
      cell->SetNumber(-std::fabs(number()));
      break;
    case Mix::zerosAndTexts:
      if (pick(8) != 0)
        cell->SetNumber(0);
      else
        cell->SetText(L"t");
      break;
    case Mix::notNumbers:
      cell->SetNumber(pick(7) == 0 ? std::numeric_limits<double>::quiet_NaN() : number());
      break;
    case Mix::longTexts:
      cell->SetText(L"a common start " + text);
      break;
    case Mix::wideTexts:
      cell->SetText(CString(pick(2) == 0 ? L"\x20AC\x10FFFE" : L"\x20AC\x10FFFF") + text);
      break;
    default:
      cell->SetText(text);
  }
  return cell;
}

struct Case {
  Mix mix;
  int rows;
  int keys;
  int flags;
  int gapEvery = 0;  // how many rows, more or less, stand between runs of empty ones; 0: there are none
};

/// The numbers in column 5 of the first rows; -1 where there is none.
std::vector<int> Names(CGridMem& store, std::size_t rows) {
  std::vector<int> names(rows, -1);
  CGridCell name;
  for (std::size_t row = 0; row < rows; ++row)
    if (store.GetCell(5, static_cast<long>(row), &name) == 0) names[row] = static_cast<int>(name.GetNumber());
  return names;
}

/// Fills a store and the model's rows alike, sorts both, and compares the order by a number that each row
/// carries; empty rows carry none.
void ExpectRequiredOrder(coregui::CGridSourceOwner& owner, const Case& test, unsigned seed) {
  std::mt19937 random(seed);
  CGridMem store;
  store.SetOwner(&owner);
  CGridCell blank;
  blank.SetPropertyFlags(0);
  std::vector<Row> rows;
  std::vector<int> names;
  for (int row = 0; row < test.rows; ++row) {
    if (test.gapEvery > 0 && random() % static_cast<unsigned>(test.gapEvery) == 0) {
      const unsigned longest = std::array{9U, 150U, 330U, 900U}[random() % 4];
      rows.resize(rows.size() + 1 + random() % longest, Row(static_cast<std::size_t>(test.keys), blank));
    }
    const auto at = static_cast<long>(rows.size());
    names.resize(rows.size(), -1);
    names.push_back(row);
    Row cells;
    for (int key = 0; key < test.keys; ++key) {
      const auto cell = RandomCell(test.mix, random);
      cells.push_back(cell != nullptr ? *cell : blank);
      if (cell != nullptr) store.SetCell(key, at, cell.get());
    }
    rows.push_back(cells);
    CGridCell name;
    name.SetNumber(row);
    store.SetCell(5, at, &name);
  }
  std::vector<int> cols(static_cast<std::size_t>(test.keys));
  std::iota(cols.begin(), cols.end(), 0);
  const std::vector<int> wanted = InsertionModel(owner, test.flags).Sort(rows);
  std::vector<int> order = names;
  // Whoever watches gives up ever later, and at last not at all.
  for (int patience = 0, result = 1; result != 0; patience = 2 * patience + 1) {
    int asked = 0;
    double reached = 0.0;
    store.SetWatch([&](double part) {
      EXPECT_GE(part, reached);
      EXPECT_LE(part, 1.0);
      reached = part;
      return asked++ < patience;
    });
    result = store.SortBy(cols.data(), test.keys, test.flags);
    ASSERT_EQ(asked > patience ? 1 : 0, result);
    ASSERT_TRUE(store.Check());
    for (std::size_t row = 0; result == 0 && row < rows.size(); ++row)
      order[row] = names[static_cast<std::size_t>(wanted[row])];
    ASSERT_EQ(order, Names(store, rows.size()))
        << "mix " << static_cast<int>(test.mix) << ", " << test.rows << " rows, " << test.keys
        << " keys, flags " << test.flags << ", seed " << seed << ", patience " << patience;
  }
}

TEST(CGridMemSort, EveryMixOfCellsComesInTheOrderOfTheRequiredInsertion) {
  TestOwner owner(6, 1000);
  ASSERT_EQ(coregui::SortOrder::standard, owner.GetSortOrder());
  unsigned seed = 1;
  for (int mix = 0; mix <= static_cast<int>(Mix::everything); ++mix) {
    for (const int rows : {1, 2, 40, 650}) {
      for (const int keys : {1, 3}) {
        for (const int flags : {0, coregui::SORT_DESCENDING}) {
          ExpectRequiredOrder(owner, {static_cast<Mix>(mix), rows, keys, flags}, seed++);
        }
      }
    }
  }
}

TEST(CGridMemSort, RunsOfEmptyRowsGoWhereTheRequiredInsertionTakesEachOfThem) {
  TestOwner owner(6, 1000);
  for (unsigned seed = 1; seed <= 360; ++seed) {
    const auto mix = static_cast<Mix>(seed % (static_cast<unsigned>(Mix::everything) + 1));
    const int flags = seed / 11 % 2 == 0 ? 0 : coregui::SORT_DESCENDING;
    const int few = static_cast<int>(3 + seed % 5);
    ExpectRequiredOrder(owner, {mix, few, seed % 4 == 0 ? 2 : 1, flags, 1}, seed);
    // A text between some that are alike turns the empty rows on both sides.
    ExpectRequiredOrder(owner, {Mix::zerosAndTexts, 3 * few, 1, flags, 7}, seed);
    if (seed % 40 == 0) ExpectRequiredOrder(owner, {mix, 200, 1, flags, 20}, seed);
  }
}

TEST(CGridMemSort, AnOwnersComparisonDecidesBySameInsertion) {
  LengthOwner owner(6, 1000);
  ASSERT_EQ(coregui::SortOrder::unknown, owner.GetSortOrder());
  for (unsigned seed = 1; seed < 6; ++seed) {
    ExpectRequiredOrder(owner, {Mix::everything, 650, 2, static_cast<int>(seed % 2) * 2}, seed);
  }
  ConsistentOwner consistent(6, 1000);
  ExpectRequiredOrder(consistent, {Mix::longTexts, 650, 2, 0}, 9);
}

std::string TextAt(CGridMem& store, long row) {
  CGridCell cell;
  cell.SetPropertyFlags(0);
  return store.GetCell(0, row, &cell) == 0 ? CString(cell.GetText()).ToUtf8() : "";
}

TEST(CGridMemSort, RowsAboveTheFirstStayAndFarRowsMoveAsOne) {
  CGridMem store;
  CGridCell cell;
  cell.SetText(L"heading");
  store.SetCell(0, -2, &cell);
  cell.SetText(L"b");
  store.SetCell(0, 0, &cell);
  cell.SetText(L"a");
  store.SetCell(0, 2'000'000'000, &cell);
  EXPECT_EQ(0, store.SortBy(0, 0));
  EXPECT_TRUE(store.Check());
  EXPECT_EQ(2'000'000'000, store.GetNumRows());
  EXPECT_EQ("a", TextAt(store, 0));
  EXPECT_EQ("b", TextAt(store, 1));
  EXPECT_EQ("heading", TextAt(store, -2));
  EXPECT_EQ(1, store.GetCell(0, 2, &cell));
  CGridMem empty;
  EXPECT_EQ(1, empty.SortBy(0, 0));
}

/// A column of mixed cells has no consistent order: empty rows go where the insertion takes each of them.
TEST(CGridMemSort, EmptyRowsBeforeFarOnesTakeNoRoomInAMixedColumn) {
  constexpr long kFar = 2'000'000'000;
  TestOwner owner(1, 4);
  for (const int flags : {0, coregui::SORT_DESCENDING}) {
    CGridMem store;
    CGridCell cell;
    cell.SetText(L"Level");
    store.SetCell(0, 0, &cell);
    for (const auto& [row, number] :
         {std::pair(1L, 9), std::pair(2L, 8), std::pair(3L, 7), std::pair(kFar / 2, 4), std::pair(kFar, 2)}) {
      cell.SetNumber(number);
      store.SetCell(0, row, &cell);
    }
    ASSERT_EQ(0, store.SortBy(0, flags));
    EXPECT_TRUE(store.Check());
    EXPECT_EQ(kFar, store.GetNumRows());
    EXPECT_EQ("Level", TextAt(store, 0));
    CString wanted = L"4";
    int col = 0;
    long found = 0;
    EXPECT_EQ(0, store.FindFirst(&wanted, &col, &found, 0));
  }
}

}  // namespace
