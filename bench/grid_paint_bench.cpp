// What the grid's windows cost against the toolkit's table view over a lean model: a full page, a scroll by
// one row, one changed cell, and the start of a process up to the first frame. Prints ours, the peer's and
// the ratio.

#include <QAbstractTableModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QProcess>
#include <QScrollBar>
#include <QTableView>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

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

std::string Text(int row, int col) {
  char text[32];
  std::snprintf(text, sizeof text, "%d.%03d", (row * 37 + col * 11) % 9973, (row * 7919 + col) % 1000);
  return text;
}

/// What an expert would write: a vector of vectors of strings.
class LeanModel : public QAbstractTableModel {
 public:
  explicit LeanModel(int rows, int cols, bool filled) : m_rows(rows), m_cols(cols) {
    for (int row = 0; filled && row < kFilledRows; ++row) {
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

  Peer(int rows, int cols, bool filled) : model(rows, cols, filled) {
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

  Ours(int rows, int cols, bool filled) {
    frame.CreateEx(0, L"Frame", L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), nullptr, 0);
    grid.SetTH_Height(0);
    grid.SetSH_Width(0);
    grid.SetVS_Width(0);
    grid.SetHS_Height(0);
    grid.SetDefColWidth(kCellWidth);
    grid.SetDefRowHeight(kCellHeight);
    grid.SetNumberCols(cols);
    grid.SetNumberRows(rows);
    for (int row = 0; filled && row < kFilledRows; ++row) {
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

void Print(const std::string& what, double ours, double peer, double aim, const char* unit) {
  std::printf("%-44s %10.1f %10.1f %7.3f  (aim %.2f) %s\n", what.c_str(), ours, peer, ours / peer, aim, unit);
  std::fflush(stdout);
}

void Compare(int rows) {
  constexpr int kTimes = 60;
  Ours ours(rows, kCols, true);
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
  ours.frame.DestroyWindow();
  Peer peer(rows, kCols, true);
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
  const std::string at = " at " + std::to_string(rows) + " rows";
  Print("full page" + at, ourPage, peerPage, 0.25, "us");
  Print("scroll by one row" + at, ourScroll, peerScroll, 0.55, "us");
  Print("one cell changed" + at, ourCell, peerCell, 0.5, "us");
}

// --- The start of a process

constexpr int kStartRows = 16384;
constexpr int kStartCols = 256;

long PeakKilobytes() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.rfind("VmHWM:", 0) == 0) return std::stol(line.substr(6));
  }
  return 0;
}

/// Shows an empty grid and prints the peak memory once its first frame is there.
int StartOnce(const char* who, int argc, char** argv) {
  const QApplication application(argc, argv);
  if (std::strcmp(who, "ours") == 0) {
    Ours ours(kStartRows, kStartCols, false);
    std::printf("%ld\n", PeakKilobytes());
  } else if (std::strcmp(who, "peer") == 0) {
    const Peer peer(kStartRows, kStartCols, false);
    std::printf("%ld\n", PeakKilobytes());
  } else {
    QWidget bare;
    bare.resize(kWidth, kHeight);
    bare.show();
    QCoreApplication::processEvents();
    std::printf("%ld\n", PeakKilobytes());
  }
  std::fflush(stdout);
  std::_Exit(0);  // what follows the first frame is not measured
}

struct Start {
  double microseconds;
  double kilobytes;
};

Start MeasureStart(const char* who) {
  double kilobytes = 0;
  const double time = Median(9, [&](int) {
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--start", who});
    child.waitForFinished();
    kilobytes = child.readAllStandardOutput().trimmed().toDouble();
  });
  return {time, kilobytes};
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 3 && std::strcmp(argv[1], "--start") == 0) return StartOnce(argv[2], argc, argv);
  const QApplication application(argc, argv);
  std::printf("%-44s %10s %10s %7s\n", "", "ours", "peer", "ratio");
  for (const int rows : {100000, 1000000, 10000000}) Compare(rows);
  const Start ours = MeasureStart("ours");
  const Start peer = MeasureStart("peer");
  const Start bare = MeasureStart("bare");
  Print("start to first frame", ours.microseconds, peer.microseconds, 0.5, "us");
  Print("start, above an empty window", ours.microseconds - bare.microseconds,
        peer.microseconds - bare.microseconds, 0.5, "us");
  Print("peak memory", ours.kilobytes, peer.kilobytes, 0.5, "kB");
  Print("peak memory above an empty window", ours.kilobytes - bare.kilobytes, peer.kilobytes - bare.kilobytes,
        0.5, "kB");
  return 0;
}
