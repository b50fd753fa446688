#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "grid/data/CGridCell.h"
#include "grid/data/CGridMem.h"
#include "tests/grid/data/StoreModel.h"
#include "tests/support/ShortestFailing.h"

namespace {

enum class Kind { set, erase, insertRow, deleteRow, insertCol, deleteCol, empty, previous };

struct Operation {
  Kind kind;
  int col;
  long row;
  int value;
};

std::string Describe(const std::vector<Operation>& operations) {
  static const char* const names[] = {"Set",       "Delete",    "InsertRow", "DeleteRow",
                                      "InsertCol", "DeleteCol", "Empty",     "Previous"};
  std::ostringstream text;
  for (const Operation& operation : operations) {
    text << names[static_cast<int>(operation.kind)] << "(col " << operation.col << ", row " << operation.row
         << ", value " << operation.value << ")\n";
  }
  return text.str();
}

/// Texts that fit in a slot, texts that do not, and wide ones.
std::string ValueText(int value) {
  std::string text = "v" + std::to_string(value);
  if (value % 3 == 0) text += " and some more text";
  if (value % 5 == 0) text += "\xE2\x82\xAC";
  return text;
}

std::string ReadBack(CGridMem& store, int col, long row) {
  CGridCell cell;
  cell.SetPropertyFlags(0);
  if (store.GetCell(col, row, &cell) != 0) return "";
  CString text;
  cell.GetText(&text);
  return text.ToUtf8();
}

class Pair {
 public:
  /// What differs after the operation, or nothing.
  std::string Apply(const Operation& op) {
    int ours = 0;
    int theirs = 0;
    switch (op.kind) {
      case Kind::set: {
        CGridCell cell;
        cell.SetText(CString::FromUtf8(ValueText(op.value)));
        if (op.value % 7 == 0) cell.SetLabelText(L"label");
        if (op.value % 4 == 0) cell.SetBorder(static_cast<short>(op.value % 8));
        ours = m_store.SetCell(op.col, op.row, &cell);
        m_model.Set(op.col, op.row, ValueText(op.value));
        break;
      }
      case Kind::erase:
        ours = m_store.DeleteCell(op.col, op.row);
        theirs = m_model.Delete(op.col, op.row);
        break;
      case Kind::insertRow:
        ours = m_store.InsertRow(op.row);
        theirs = m_model.InsertRow(op.row);
        break;
      case Kind::deleteRow:
        ours = m_store.DeleteRow(op.row);
        m_model.DeleteRow(op.row);
        break;
      case Kind::insertCol:
        ours = m_store.InsertCol(op.col);
        theirs = m_model.InsertCol(op.col);
        break;
      case Kind::deleteCol:
        ours = m_store.DeleteCol(op.col);
        theirs = m_model.DeleteCol(op.col);
        break;
      case Kind::empty:
        ours = m_store.Empty();
        m_model.Clear();
        break;
      case Kind::previous: {
        int ourCol = op.col;
        int theirCol = op.col;
        ours = m_store.GetPrevNonBlankCol(&ourCol, op.row);
        theirs = m_model.PrevNonBlank(theirCol, op.row);
        if (ourCol != theirCol)
          return "column " + std::to_string(ourCol) + " for " + std::to_string(theirCol);
        break;
      }
    }
    if (ours != theirs) return "result " + std::to_string(ours) + " for " + std::to_string(theirs);
    if (!m_store.Check()) return "the structure is broken";
    return m_store.GetNumRows() == m_model.Last() ? "" : "rows " + std::to_string(m_store.GetNumRows());
  }

  /// Column by column, so that most reads are far from the one before.
  std::string CompareAll() {
    for (int col = -6; col < 40; ++col) {
      for (long row = m_model.First() - 2; row <= m_model.Last() + 2; ++row) {
        const std::string ours = ReadBack(m_store, col, row);
        if (ours == m_model.Get(col, row)) continue;
        return "cell " + std::to_string(col) + ", " + std::to_string(row) + ": '" + ours + "' for '" +
               m_model.Get(col, row) + "'";
      }
    }
    return "";
  }

 private:
  CGridMem m_store;
  StoreModel m_model;
};

/// `structure`: how often, of 100, an operation moves rows or columns.
std::vector<Operation> RandomOperations(unsigned seed, int count, long rows, int structure) {
  std::mt19937 random(seed);
  const auto pick = [&random](long low, long high) {
    return std::uniform_int_distribution<long>(low, high)(random);
  };
  std::vector<Operation> operations;
  for (int i = 0; i < count; ++i) {
    Operation op{Kind::set, static_cast<int>(pick(-3, 9)), pick(-3, rows), i};
    const long draw = pick(0, 99);
    if (draw < structure)
      op.kind = static_cast<Kind>(pick(2, 5));
    else if (draw < structure + 10)
      op.kind = Kind::erase;
    else if (draw < structure + 20)
      op.kind = Kind::previous;
    if (pick(0, 2000) == 0) op.kind = Kind::empty;
    operations.push_back(op);
  }
  return operations;
}

/// The whole comparison costs as much as thousands of operations: it is made after every `compareEvery`.
std::string FaultAfter(const std::vector<Operation>& operations, std::size_t compareEvery) {
  Pair pair;
  for (std::size_t i = 0; i < operations.size(); ++i) {
    std::string fault = pair.Apply(operations[i]);
    if (fault.empty() && (i % compareEvery == 0 || i + 1 == operations.size())) fault = pair.CompareAll();
    if (!fault.empty()) return fault;
  }
  return "";
}

void ExpectSame(const std::vector<Operation>& operations, std::size_t compareEvery) {
  if (FaultAfter(operations, compareEvery).empty()) return;
  const auto faultOf = [](const std::vector<Operation>& some) { return FaultAfter(some, 1); };
  const std::vector<Operation> shortest = coregui::test::ShortestFailing(operations, faultOf);
  FAIL() << faultOf(shortest) << " after\n" << Describe(shortest);
}

TEST(CGridMemRandom, FewRowsUnderManyStructuralChangesMatchTheModel) {
  for (unsigned seed = 1; seed <= 30; ++seed) {
    ExpectSame(RandomOperations(seed, 300, 8, 40), 1);
  }
}

TEST(CGridMemRandom, ManyRowsMatchTheModel) {
  for (unsigned seed = 100; seed < 103; ++seed) {
    ExpectSame(RandomOperations(seed, 4000, 900, 30), 1000);
  }
}

TEST(CGridMemRandom, ManyInsertedRowsSplitTheTreeAndManyDeletedOnesFoldIt) {
  std::mt19937 random(7);
  const auto below = [&random](int high) {
    return static_cast<long>(random() % static_cast<unsigned>(high));
  };
  std::vector<Operation> operations;
  operations.reserve(18'000);
  for (int i = 0; i < 9000; ++i)
    operations.push_back({i % 5 == 0 ? Kind::set : Kind::insertRow, i % 3, below(i + 1), i});
  for (int i = 0; i < 9000; ++i) operations.push_back({Kind::deleteRow, 0, below(9000 - i), 0});
  ExpectSame(operations, 3000);
}

}  // namespace
