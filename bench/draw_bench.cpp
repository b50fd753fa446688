// What a page of cells costs: our contexts against the toolkit's painter on the same kind of picture.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <vector>

#include "platform/CDC.h"
#include "platform/qt/RasterTarget.h"

namespace {

constexpr int pageWidth = 1600;
constexpr int pageHeight = 1000;
constexpr int cellWidth = 75;
constexpr int cellHeight = 20;
constexpr int cellsPerPage = (pageWidth / cellWidth) * (pageHeight / cellHeight);

class SurfaceDC : public CDC {
 public:
  explicit SurfaceDC(std::shared_ptr<coregui::Surface> surface)
      : CDC(std::make_shared<coregui::RasterTarget>(std::move(surface))) {}
};

std::vector<CString> CellTexts() {
  std::vector<CString> texts;
  for (int i = 0; i < cellsPerPage; ++i) {
    texts.push_back(CString::Formatted(L"%d.%03d", i * 37 % 9973, i * 7919 % 1000));
  }
  return texts;
}

template <typename Cell>
void ForEachCell(Cell cell) {
  int index = 0;
  for (int y = 0; y + cellHeight <= pageHeight; y += cellHeight) {
    for (int x = 0; x + cellWidth <= pageWidth; x += cellWidth) {
      cell(CRect(x, y, x + cellWidth, y + cellHeight), index++);
    }
  }
}

// Background, one line of clipped text and two border lines, inside a saved state: what a cell type does.
void PageByContext(benchmark::State& state) {
  const auto surface =
      std::make_shared<coregui::Surface>(CSize(pageWidth, pageHeight), state.range(0) / 100.0);
  const std::vector<CString> texts = CellTexts();
  CPen border(PS_SOLID, 1, RGB(200, 200, 200));
  for (auto _ : state) {
    SurfaceDC dc(surface);
    dc.SetBkMode(TRANSPARENT);
    ForEachCell([&](CRect rect, int index) {
      const int saved = dc.SaveDC();
      dc.IntersectClipRect(rect);
      dc.FillSolidRect(rect, index % 2 == 0 ? RGB(255, 255, 255) : RGB(240, 245, 250));
      CRect inner(rect.left + 2, rect.top, rect.right - 3, rect.bottom - 1);
      const CString& text = texts[static_cast<std::size_t>(index)];
      dc.DrawText(text, text.GetLength(), &inner, DT_SINGLELINE | DT_VCENTER | DT_RIGHT | DT_NOPREFIX);
      dc.SelectObject(&border);
      dc.MoveTo(rect.left, rect.bottom - 1);
      dc.LineTo(rect.right, rect.bottom - 1);
      dc.MoveTo(rect.right - 1, rect.top);
      dc.LineTo(rect.right - 1, rect.bottom);
      dc.RestoreDC(saved);
    });
  }
  state.SetItemsProcessed(state.iterations() * cellsPerPage);
}
BENCHMARK(PageByContext)->Arg(100)->Arg(125)->Arg(200)->Unit(benchmark::kMicrosecond);

void PageByPainter(benchmark::State& state) {
  QImage image(pageWidth, pageHeight, QImage::Format_RGB32);
  std::vector<QString> texts;
  for (const CString& text : CellTexts()) {
    texts.push_back(QString::fromStdWString(text.Str()));
  }
  for (auto _ : state) {
    QPainter painter(&image);
    ForEachCell([&](CRect rect, int index) {
      const QRect cell(rect.left, rect.top, rect.Width(), rect.Height());
      painter.save();
      painter.setClipRect(cell);
      painter.fillRect(cell, index % 2 == 0 ? QColor(255, 255, 255) : QColor(240, 245, 250));
      painter.drawText(cell.adjusted(2, 0, -3, -1), Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine,
                       texts[static_cast<std::size_t>(index)]);
      painter.setPen(QColor(200, 200, 200));
      painter.drawLine(cell.bottomLeft(), cell.bottomRight());
      painter.drawLine(cell.topRight(), cell.bottomRight());
      painter.restore();
    });
  }
  state.SetItemsProcessed(state.iterations() * cellsPerPage);
}
BENCHMARK(PageByPainter)->Unit(benchmark::kMicrosecond);

void MeasureText(benchmark::State& state) {
  SurfaceDC dc(std::make_shared<coregui::Surface>(CSize(10, 10), 1.0));
  const std::vector<CString> texts = CellTexts();
  for (auto _ : state) {
    for (const CString& text : texts) {
      benchmark::DoNotOptimize(dc.GetTextExtent(text, text.GetLength()));
    }
  }
  state.SetItemsProcessed(state.iterations() * cellsPerPage);
}
BENCHMARK(MeasureText)->Unit(benchmark::kMicrosecond);

void PolylineOfAMillionPoints(benchmark::State& state) {
  SurfaceDC dc(std::make_shared<coregui::Surface>(CSize(pageWidth, pageHeight), 1.0));
  constexpr int count = 1000000;
  std::vector<double> xy;
  for (int i = 0; i < count; ++i) {
    xy.push_back(i * double{pageWidth} / count);
    xy.push_back(pageHeight * (0.5 + 0.4 * std::sin(i * 0.0001) + 0.02 * (i % 1000 * 7919 % 100) / 100.0));
  }
  for (auto _ : state) {
    dc.PolylineF(xy.data(), count);
  }
  state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(PolylineOfAMillionPoints)->Unit(benchmark::kMillisecond);

void ScrollByOneRow(benchmark::State& state) {
  coregui::Surface surface(CSize(pageWidth, pageHeight), 1.0);
  const CRect page(0, 0, pageWidth, pageHeight);
  for (auto _ : state) {
    surface.MovePixels(page, 0, -cellHeight, page);
  }
}
BENCHMARK(ScrollByOneRow)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
