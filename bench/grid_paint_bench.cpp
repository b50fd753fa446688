// What the grid's windows cost beside the toolkit's table view over a lean model: a full page, an
// empty one, a scroll by one row, one changed cell.

#include <QAbstractTableModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "bench/BenchTable.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "platform/CWinApp.h"

namespace {

constexpr int kWidth = 1600;
constexpr int kHeight = 1000;
constexpr int kCellWidth = 75;
constexpr int kCellHeight = 20;
constexpr int kCols = 26;
constexpr int kFilledRows = 2000;  // the rows that the measures come to
constexpr int kEmptyRow = 50000;   // but for that of an empty page, which begins here

std::string Text(int row, int col) {
  char text[32];
  std::snprintf(text, sizeof text, "%d.%03d", (row * 37 + col * 11) % 9973, (row * 7919 + col) % 1000);
  return text;
}

/// What an expert would write: a vector of vectors of strings.
class LeanModel : public QAbstractTableModel {
 public:
  LeanModel(int rows, int cols) : m_rows(rows), m_cols(cols) {
    for (int row = 0; row < kFilledRows; ++row) {
      m_texts.emplace_back();
      for (int col = 0; col < cols; ++col) m_texts.back().push_back(QString::fromStdString(Text(row, col)));
    }
  }
  int rowCount(const QModelIndex&) const override { return m_rows; }
  int columnCount(const QModelIndex&) const override { return m_cols; }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole || static_cast<std::size_t>(index.row()) >= m_texts.size()) return {};
    return m_texts[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
  }
  void Change(int row, int col, const QString& text) {
    m_texts[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] = text;
    emit dataChanged(index(row, col), index(row, col));
  }

 private:
  int m_rows;
  int m_cols;
  std::vector<std::vector<QString>> m_texts;
};

struct Peer {
  LeanModel model;
  QTableView view;

  Peer(int rows, int cols) : model(rows, cols) {
    view.horizontalHeader()->hide();
    view.verticalHeader()->hide();
    view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view.verticalHeader()->setDefaultSectionSize(kCellHeight);
    view.horizontalHeader()->setDefaultSectionSize(kCellWidth);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setFrameShape(QFrame::NoFrame);
    view.setModel(&model);
    view.resize(kWidth, kHeight);
    view.show();
    QCoreApplication::processEvents();
  }
};

struct Ours {
  CWnd frame;
  CGridCtrl grid;

  Ours(int rows, int cols) {
    frame.CreateEx(0, L"Frame", L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), nullptr, 0);
    grid.SetTH_Height(0);
    grid.SetSH_Width(0);
    grid.SetVS_Width(0);
    grid.SetHS_Height(0);
    grid.SetDefColWidth(kCellWidth);
    grid.SetDefRowHeight(kCellHeight);
    grid.SetNumberCols(cols);
    grid.SetNumberRows(rows);
    for (int row = 0; row < kFilledRows; ++row) {
      for (int col = 0; col < cols; ++col) grid.QuickSetText(col, row, CString::FromUtf8(Text(row, col)));
    }
    grid.CreateGrid(WS_CHILD | WS_VISIBLE, frame.GetClientRectangle(), &frame, 1);
    CWinApp::PumpPending();
  }
};

/// The median time of one call, microseconds.
double Median(int times, const std::function<void(int)>& call) {
  std::vector<double> samples;
  for (int i = 0; i < times; ++i) {
    QElapsedTimer timer;
    timer.start();
    call(i);
    samples.push_back(static_cast<double>(timer.nsecsElapsed()) / 1000.0);
  }
  std::nth_element(samples.begin(), samples.begin() + times / 2, samples.end());
  return samples[static_cast<std::size_t>(times / 2)];
}

void Compare(int rows) {
  constexpr int kTimes = 60;
  Ours ours(rows, kCols);
  const double ourPage = Median(kTimes, [&](int) {
    ours.grid.GetGridWnd()->RedrawWindow();
    CWinApp::PumpPending();
  });
  const double ourScroll = Median(kTimes, [&](int i) {
    ours.grid.SetTopRow(i + 1);
    CWinApp::PumpPending();
  });
  const double ourCell = Median(kTimes, [&](int i) {
    ours.grid.QuickSetText(5, 70, CString::FromUtf8(Text(i, 3)));
    ours.grid.RedrawCell(5, 70);
    CWinApp::PumpPending();
  });
  ours.grid.SetTopRow(kEmptyRow);
  const double ourEmpty = Median(kTimes, [&](int) {
    ours.grid.GetGridWnd()->RedrawWindow();
    CWinApp::PumpPending();
  });
  ours.frame.DestroyWindow();
  Peer peer(rows, kCols);
  const double peerPage = Median(kTimes, [&](int) {
    peer.view.viewport()->repaint();
    QCoreApplication::processEvents();
  });
  const double peerScroll = Median(kTimes, [&](int i) {
    peer.view.verticalScrollBar()->setValue(i + 1);
    QCoreApplication::processEvents();
  });
  const double peerCell = Median(kTimes, [&](int i) {
    peer.model.Change(70, 5, QString::fromStdString(Text(i, 3)));
    QCoreApplication::processEvents();
  });
  peer.view.verticalScrollBar()->setValue(kEmptyRow);
  const double peerEmpty = Median(kTimes, [&](int) {
    peer.view.viewport()->repaint();
    QCoreApplication::processEvents();
  });
  const std::string at = " at " + std::to_string(rows) + " rows";
  const auto print = [&at](const char* what, double our, double peers, double target) {
    PrintBenchRow({what + at, our, "us", {"table view, lean model", peers}, target});
  };
  print("full page", ourPage, peerPage, 0.25);
  print("empty page", ourEmpty, peerEmpty, 0);
  print("scroll by one row", ourScroll, peerScroll, 0.55);
  print("one cell changed", ourCell, peerCell, 0.5);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  PrintBenchHead();
  for (const int rows : {100000, 1000000, 10000000}) Compare(rows);
  return 0;
}
