// What the memory store costs, beside what a program pays that keeps the same table in the toolkit's models.

#include <malloc.h>

#include <QAbstractTableModel>
#include <QGuiApplication>
#include <QStandardItemModel>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <vector>

#include "bench/BenchTable.h"
#include "grid/data/CGridCell.h"
#include "grid/data/CGridMem.h"

namespace {

constexpr int COLUMNS = 10;
constexpr int ROWS = 100'000;
constexpr int CELLS = COLUMNS * ROWS;

/// What an expert writes: rows of strings, and the least that a model must do.
class LeanModel : public QAbstractTableModel {
 public:
  int rowCount(const QModelIndex& /*parent*/ = {}) const override { return static_cast<int>(m_rows.size()); }
  int columnCount(const QModelIndex& /*parent*/ = {}) const override { return m_columns; }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole) return {};
    return m_rows[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
  }
  void Resize(int rows, int columns) {
    m_columns = columns;
    m_rows.assign(static_cast<std::size_t>(rows), std::vector<QString>(static_cast<std::size_t>(columns)));
  }
  QString& At(int row, int column) {
    return m_rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  }
  bool insertRows(int row, int count, const QModelIndex& parent = {}) override {
    beginInsertRows(parent, row, row + count - 1);
    m_rows.insert(m_rows.begin() + row, static_cast<std::size_t>(count),
                  std::vector<QString>(static_cast<std::size_t>(m_columns)));
    endInsertRows();
    return true;
  }
  bool removeRows(int row, int count, const QModelIndex& parent = {}) override {
    beginRemoveRows(parent, row, row + count - 1);
    m_rows.erase(m_rows.begin() + row, m_rows.begin() + row + count);
    endRemoveRows();
    return true;
  }
  bool insertColumns(int column, int count, const QModelIndex& parent = {}) override {
    beginInsertColumns(parent, column, column + count - 1);
    for (auto& row : m_rows) row.insert(row.begin() + column, static_cast<std::size_t>(count), QString());
    m_columns += count;
    endInsertColumns();
    return true;
  }
  void SortByText() {
    std::stable_sort(m_rows.begin(), m_rows.end(), [](const auto& a, const auto& b) { return a[0] < b[0]; });
  }
  void SortByNumber() {
    std::vector<std::pair<double, std::uint32_t>> keys;
    for (std::uint32_t i = 0; i < m_rows.size(); ++i) keys.emplace_back(m_rows[i][0].toDouble(), i);
    std::stable_sort(keys.begin(), keys.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::vector<QString>> sorted;
    sorted.reserve(m_rows.size());
    for (const auto& key : keys) sorted.push_back(std::move(m_rows[key.second]));
    m_rows.swap(sorted);
  }
  int FindLast(const QString& text) const {
    for (int row = 0; row < rowCount(); ++row) {
      for (int column = 0; column < m_columns; ++column) {
        if (m_rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)].contains(
                text, Qt::CaseInsensitive)) {
          return row;
        }
      }
    }
    return -1;
  }

 private:
  std::vector<std::vector<QString>> m_rows;
  int m_columns = 0;
};

/// The table's content: texts of 8 characters and numbers, by turns.
struct Content {
  std::vector<QString> qtTexts;
  std::vector<std::wstring> texts;
  std::vector<double> numbers;
  Content() {
    std::mt19937 random(1);
    for (int i = 0; i < CELLS; ++i) {
      std::wstring text;
      for (int c = 0; c < 8; ++c) text += static_cast<wchar_t>(L'a' + random() % 26);
      texts.push_back(text);
      qtTexts.push_back(QString::fromStdWString(text));
      numbers.push_back(static_cast<double>(random() % 100'000'000) / 1000.0);
    }
  }
};

const Content& TheContent() {
  static const Content content;
  return content;
}

double Seconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The least of some times, for work that can be done again: others use the machine's memory too.
double LeastSeconds(const std::function<void()>& work) {
  constexpr int TIMES = 5;
  double least = Seconds(work);
  for (int i = 1; i < TIMES; ++i) least = std::min(least, Seconds(work));
  return least;
}

std::size_t HeapInUse() {
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

void Line(const char* name, double ours, double lean, double standard, double target, const char* unit) {
  PrintBenchRow({name, ours, unit, BestOf({"lean model", lean}, {"standard item model", standard}), target});
}

void FillOurs(CGridMem& store) {
  const Content& content = TheContent();
  CGridCell text;
  CGridCell number;
  for (int row = 0, i = 0; row < ROWS; ++row) {
    for (int column = 0; column < COLUMNS; ++column, ++i) {
      if (i % 2 == 0) {
        text.SetText(content.texts[static_cast<std::size_t>(i)].c_str());
        store.SetCell(column, row, &text);
      } else {
        number.SetNumber(content.numbers[static_cast<std::size_t>(i)]);
        store.SetCell(column, row, &number);
      }
    }
  }
}

QString PeerText(int i) {
  const Content& content = TheContent();
  const auto index = static_cast<std::size_t>(i);
  // A copy of its own, as text that comes from a file or a hand is.
  if (i % 2 == 0) return QString(content.qtTexts[index].constData(), content.qtTexts[index].size());
  return QString::number(content.numbers[index], 'g', 15);
}

void FillLean(LeanModel& model) {
  model.Resize(ROWS, COLUMNS);
  for (int row = 0, i = 0; row < ROWS; ++row) {
    for (int column = 0; column < COLUMNS; ++column, ++i) model.At(row, column) = PeerText(i);
  }
}

void FillStandard(QStandardItemModel& model) {
  model.setRowCount(ROWS);
  model.setColumnCount(COLUMNS);
  for (int row = 0, i = 0; row < ROWS; ++row) {
    for (int column = 0; column < COLUMNS; ++column, ++i)
      model.setItem(row, column, new QStandardItem(PeerText(i)));
  }
}

/// The three tables that most workloads run on.
struct Tables {
  CGridMem ours;
  LeanModel lean;
  QStandardItemModel standard;
};

void MeasureFill(Tables& tables) {
  TheContent();
  const std::size_t start = HeapInUse();
  const double ours = Seconds([&] { FillOurs(tables.ours); });
  const std::size_t afterOurs = HeapInUse();
  const double lean = Seconds([&] { FillLean(tables.lean); });
  const std::size_t afterLean = HeapInUse();
  const double standard = Seconds([&] { FillStandard(tables.standard); });
  const std::size_t afterStandard = HeapInUse();
  Line("fill 1,000,000 cells", ours * 1e3, lean * 1e3, standard * 1e3, 0.4, "ms");
  const auto perCell = [](std::size_t from, std::size_t to) {
    return static_cast<double>(to - from) / CELLS;
  };
  Line("memory per cell", perCell(start, afterOurs), perCell(afterOurs, afterLean),
       perCell(afterLean, afterStandard), 0.35, "bytes");
}

void MeasureReads(Tables& tables) {
  std::mt19937 random(2);
  std::vector<std::pair<int, int>> places;
  for (int i = 0; i < CELLS; ++i) places.emplace_back(random() % COLUMNS, random() % ROWS);
  long sum = 0;
  const double ours = LeastSeconds([&] {
    CGridCell cell;
    for (const auto& [column, row] : places) {
      cell.SetPropertyFlags(0);
      tables.ours.GetCell(column, row, &cell);
      sum += cell.GetText()[0];
    }
  });
  const auto readModel = [&](const QAbstractItemModel& model) {
    return LeastSeconds([&] {
      for (const auto& [column, row] : places) {
        sum += model.data(model.index(row, column), Qt::DisplayRole).toString().at(0).unicode();
      }
    });
  };
  const double lean = readModel(tables.lean);
  const double standard = readModel(tables.standard);
  if (sum == 0) std::puts("nothing read!");
  Line("1,000,000 random reads of the text", ours * 1e3, lean * 1e3, standard * 1e3, 0.35, "ms");
}

void MeasureRows(Tables& tables) {
  constexpr int COUNT = 10'000;
  std::mt19937 random(3);
  std::vector<int> inserts;
  std::vector<int> deletes;
  for (int i = 0; i < COUNT; ++i)
    inserts.push_back(static_cast<int>(random() % static_cast<unsigned>(ROWS + i)));
  for (int i = 0; i < COUNT; ++i)
    deletes.push_back(static_cast<int>(random() % static_cast<unsigned>(ROWS + COUNT - i)));
  const double ours = Seconds([&] {
    for (const int row : inserts) tables.ours.InsertRow(row);
    for (const int row : deletes) tables.ours.DeleteRow(row);
  });
  const auto measure = [&](QAbstractItemModel& model) {
    return Seconds([&] {
      for (const int row : inserts) model.insertRow(row);
      for (const int row : deletes) model.removeRow(row);
    });
  };
  const double lean = measure(tables.lean);
  const double standard = measure(tables.standard);
  Line("10,000 random row inserts, then deletes, 100,000 x 10", ours * 1e3, lean * 1e3, standard * 1e3, 0.1,
       "ms");
}

void MeasureColumn(Tables& tables) {
  const double ours = Seconds([&] { tables.ours.InsertCol(5); });
  const double lean = Seconds([&] { tables.lean.insertColumn(5); });
  const double standard = Seconds([&] { tables.standard.insertColumn(5); });
  Line("column insert in the middle at 100,000 x 10", ours * 1e3, lean * 1e3, standard * 1e3, 0.02, "ms");
}

void MeasureSort(bool byNumber) {
  const Content& content = TheContent();
  CGridMem ours;
  LeanModel lean;
  // Never destroyed: after a sort that takes minutes, each item looking for itself among all others.
  QStandardItemModel& standard = *new QStandardItemModel(CELLS, 1);
  lean.Resize(CELLS, 1);
  CGridCell cell;
  for (int row = 0; row < CELLS; ++row) {
    const auto index = static_cast<std::size_t>(row);
    if (byNumber)
      cell.SetNumber(content.numbers[index]);
    else
      cell.SetText(content.texts[index].c_str());
    ours.SetCell(0, row, &cell);
    auto* const item = new QStandardItem;
    if (byNumber)
      item->setData(content.numbers[index], Qt::DisplayRole);
    else
      item->setText(content.qtTexts[index]);
    standard.setItem(row, 0, item);
    lean.At(row, 0) = byNumber ? QString::number(content.numbers[index], 'g', 15)
                               : QString(content.qtTexts[index].constData(), content.qtTexts[index].size());
  }
  const double ourTime = Seconds([&] { ours.SortBy(0, 0); });
  const double leanTime = Seconds([&] { byNumber ? lean.SortByNumber() : lean.SortByText(); });
  const double standardTime = Seconds([&] { standard.sort(0); });
  Line(byNumber ? "sort 1,000,000 rows by number" : "sort 1,000,000 rows by text", ourTime * 1e3,
       leanTime * 1e3, standardTime * 1e3, byNumber ? 0.25 : 0.15, "ms");
}

/// A column of numbers with gaps, as surveys have them. It has no consistent order, and no peer sorts it by
/// the same rule: beside a column without gaps.
void MeasureGaps() {
  const auto sort = [](int gapAt) {
    CGridMem store;
    CGridCell cell;
    for (int row = 0; row < CELLS; ++row) {
      cell.SetNumber(TheContent().numbers[static_cast<std::size_t>(row)]);
      store.SetCell(row % 10 == gapAt ? 1 : 0, row, &cell);
    }
    return Seconds([&] { store.SortBy(0, 0); }) * 1e3;
  };
  PrintBenchRow({"sort 1,000,000 rows, a number missing in each tenth",
                 sort(5),
                 "ms",
                 {"ours without gaps", sort(-1)}});
}

void MeasureFind(Tables& tables) {
  CGridCell last;
  last.SetText(L"Needle");
  tables.ours.SetCell(COLUMNS - 1, ROWS - 1, &last);
  tables.lean.At(ROWS - 1, COLUMNS - 1) = "Needle";
  tables.standard.item(ROWS - 1, COLUMNS - 1)->setText("Needle");
  const int flags = FIND_ALLCOLS | FIND_NOCASE | FIND_PARTIAL;
  CString text = L"needle";
  int column = 0;
  long row = 0;
  int found = 1;
  const double ours = Seconds([&] { found = tables.ours.FindFirst(&text, &column, &row, flags); });
  int leanRow = -1;
  const double lean = Seconds([&] { leanRow = tables.lean.FindLast("needle"); });
  int standardRow = -1;
  const double standard = Seconds([&] {
    for (int at = 0; at < COLUMNS && standardRow < 0; ++at) {
      const auto hits = tables.standard.findItems("needle", Qt::MatchContains, at);
      if (!hits.isEmpty()) standardRow = hits[0]->row();
    }
  });
  if (found != 0 || row != ROWS - 1 || leanRow != ROWS - 1 || standardRow != ROWS - 1)
    std::puts("not found!");
  Line("find the last of 1,000,000 cells, ignoring case", ours * 1e3, lean * 1e3, standard * 1e3, 0.4, "ms");
}

}  // namespace

/// The workloads to measure are named on the command line; without a name it is all of them.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QStringList names = QGuiApplication::arguments().mid(1);
  const auto isWanted = [&names](const char* name) { return names.isEmpty() || names.contains(name); };
  PrintBenchHead();
  if (isWanted("cells") || isWanted("rows")) {
    Tables tables;
    MeasureFill(tables);
    MeasureReads(tables);
    MeasureFind(tables);
    if (isWanted("rows")) {
      MeasureRows(tables);
      MeasureColumn(tables);
    }
  }
  if (isWanted("texts")) MeasureSort(false);
  if (isWanted("numbers")) MeasureSort(true);
  if (isWanted("gaps")) MeasureGaps();
  return 0;
}
