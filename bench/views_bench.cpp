// What a frame of a plotted line costs, from ten thousand points to ten million, at three zooms: ours beside
// the toolkit's plain polyline and, where it is installed, a plotting widget. Figures are the best of several
// frames, each panned a little from the last, in milliseconds. Also what mapping point by point costs beside
// a bare loop.

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "bench/BenchTable.h"
#include "platform/CBitmap.h"
#include "views/CGUIBaseView.h"
#include "views/CPlotPrimitives.h"
#include "views/CPlotSeries.h"
#include "views/CViewMapping.h"

#ifdef COREGUI_BENCH_QCUSTOMPLOT
#include <qcustomplot.h>
#endif

namespace {

constexpr int kWidth = 1600;
constexpr int kHeight = 1000;
constexpr double kLength = 10000.0;  // of the world, whatever the number of points
constexpr int kMostFrames = 15;
constexpr double kMostSeconds = 3.0;

double Seconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// The best time of a frame in milliseconds. The frame's number pans it.
double Best(const std::function<void(int)>& frame) {
  double best = 1e9;
  const double start = Seconds();
  for (int i = 0; i < kMostFrames && (i < 3 || Seconds() - start < kMostSeconds); ++i) {
    const double before = Seconds();
    frame(i);
    best = std::min(best, Seconds() - before);
  }
  return best * 1000.0;
}

std::vector<PNT_2D_record> Survey(std::size_t count) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> noise(-3.0, 3.0);
  std::vector<PNT_2D_record> points(count);
  for (std::size_t i = 0; i < count; ++i) {
    const double x = kLength * static_cast<double>(i) / static_cast<double>(count);
    points[i] = {x, 50.0 + 40.0 * std::sin(x * 0.002) + noise(random)};
  }
  return points;
}

coregui::CViewMapping MappingAt(double zoom, int frame) {
  coregui::CViewMapping mapping;
  mapping.extents.Set(0, 100, kLength, 0);
  mapping.vertMode = coregui::VertMode::fill;
  mapping.now.dpiX = mapping.now.dpiY = 96;
  mapping.FitToRect(CRect(0, 0, kWidth, kHeight));
  const double vertical = mapping.now.vertRatio;
  mapping.Zoom({kLength * 0.4, 50}, mapping.now.scale / zoom, CSize(kWidth, kHeight));
  mapping.now.vertRatio = vertical / zoom;  // the height stays in sight, as in a long-section
  mapping.now.offsetY = 0;
  mapping.Pan(CSize(-3 * frame, 0));
  return mapping;
}

class Plot : public coregui::CPlotPrimitives {
 public:
  coregui::CViewMapping mapping;

 protected:
  const coregui::CPlotMapping& GetPlotMapping() const override { return mapping; }
};

double Ours(const CPlotSeries& series, double zoom, bool smooth = false) {
  CBitmap bitmap;
  bitmap.CreateCompatibleBitmap(nullptr, kWidth, kHeight);
  CMemoryDC dc(nullptr, &bitmap);
  Plot plot;
  return Best([&](int frame) {
    plot.mapping = MappingAt(zoom, frame);
    dc.FillSolidRect(CRect(0, 0, kWidth, kHeight), RGB(255, 255, 255));
    plot.BeginPlot(dc, CRect(0, 0, kWidth, kHeight), CSize(96, 96));
    plot.SetPlotAntiAliasing(smooth);
    plot.PlotPolyline(series);
    plot.EndPlot();
  });
}

double PlainPolyline(const std::vector<PNT_2D_record>& points, double zoom) {
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  QPolygonF device(static_cast<int>(points.size()));
  return Best([&](int frame) {
    const coregui::CViewMapping mapping = MappingAt(zoom, frame);
    for (std::size_t i = 0; i < points.size(); ++i) {
      const PNT_2D_record at = mapping.UserToDevice(points[i]);
      device[static_cast<int>(i)] = QPointF(at.x, at.y);
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::black, 0));
    painter.drawPolyline(device);
  });
}

#ifdef COREGUI_BENCH_QCUSTOMPLOT
std::optional<double> PlottingWidget(const std::vector<PNT_2D_record>& points, double zoom) {
  QCustomPlot plot;
  plot.setViewport(QRect(0, 0, kWidth, kHeight));
  plot.resize(kWidth, kHeight);
  plot.setNotAntialiasedElements(QCP::aeAll);
  plot.plotLayout()->clear();
  auto* rect = new QCPAxisRect(&plot, false);
  rect->setAutoMargins(QCP::msNone);
  rect->setMargins(QMargins());
  plot.plotLayout()->addElement(0, 0, rect);
  QCPAxis* x = rect->addAxis(QCPAxis::atBottom);
  QCPAxis* y = rect->addAxis(QCPAxis::atLeft);
  for (QCPAxis* axis : {x, y}) {
    axis->setVisible(false);
    axis->grid()->setVisible(false);
  }
  QCPGraph* graph = plot.addGraph(x, y);
  graph->setPen(QPen(Qt::black, 0));
  QVector<QCPGraphData> data;
  data.reserve(static_cast<int>(points.size()));
  for (const PNT_2D_record& p : points) data.append(QCPGraphData(p.x, p.y));
  graph->data()->set(data, true);
  data = {};
  return Best([&](int frame) {
    const coregui::CViewMapping mapping = MappingAt(zoom, frame);
    x->setRange(mapping.WindowToUser({0, 0}).x, mapping.WindowToUser({kWidth, 0}).x);
    y->setRange(mapping.WindowToUser({0, kHeight}).y, mapping.WindowToUser({0, 0}).y);
    plot.replot(QCustomPlot::rpQueuedRefresh);
  });
}
#else
std::optional<double> PlottingWidget(const std::vector<PNT_2D_record>&, double) {
  return std::nullopt;
}
#endif

/// The share of the best peer's cost that is wanted; 0 for none.
double Target(std::size_t count, double zoom) {
  if (zoom == 1000.0) return 1.0;
  if (zoom == 1.0 && count == 1000000) return 0.25;
  if (zoom == 1.0 && count == 10000000) return 0.05;
  return 0.0;
}

void Frames() {
  std::vector<double> atFit;
  for (const std::size_t count : {10000U, 100000U, 1000000U, 10000000U}) {
    const std::vector<PNT_2D_record> points = Survey(count);
    const CPlotSeries series(points);
    for (const double zoom : {1.0, 10.0, 1000.0}) {
      const double ours = Ours(series, zoom);
      if (zoom == 1.0) atFit.push_back(ours);
      BenchPeer peer{"toolkit's polyline", PlainPolyline(points, zoom)};
      if (const auto widget = PlottingWidget(points, zoom)) peer = BestOf(peer, {"plotting widget", *widget});
      const std::string at = zoom == 1.0 ? "fit" : std::to_string(static_cast<int>(zoom)) + "x";
      PrintBenchRow({"plot frame, " + std::to_string(count) + " points at " + at, ours, "ms", peer,
                     Target(count, zoom)});
      if (zoom == 1.0) {
        PrintBenchRow({"the same, smooth", Ours(series, zoom, true), "ms", {"ours, hard", ours}});
      }
    }
  }
  // The fourth root of a thousand times the points.
  PrintBenchRow({"plot frame at fit, 10^7 points beside 10^4",
                 atFit.back(),
                 "ms",
                 {"ours, 10^4", atFit.front()},
                 5.62});
}

void Transforms() {
  const std::vector<PNT_2D_record> points = Survey(100000);
  std::vector<POINT> out(points.size());
  CGUIBaseView view(1.0, nullptr);
  view.SetVertMode(CGUIBaseView::VERT_FILL);
  view.SetRedrawLimits(FRect(0, 100, kLength, 0));
  view.InitView(FRect(0, 100, kLength, 0), 1.0);
  view.FitToRect(CRect(0, 0, kWidth, kHeight));
  const auto& now = view.GetMapping().now;
  const double ours = Best([&](int) {
    for (std::size_t i = 0; i < points.size(); ++i) out[i] = view.UserToWindow(points[i]);
  });
  // The same expression with everything in local variables and no care for what does not fit: point by point,
  // as callers map, and as a loop over an array that the compiler may turn into wide instructions.
  const double left = 0, top = 100, scale = now.scale, ratio = now.vertRatio;
  const LONG offsetX = now.offsetX, offsetY = now.offsetY;
  const auto map = [=](PNT_2D_record const& p) {
    return POINT{static_cast<LONG>((p.x - left) / scale + 0.5) - offsetX,
                 static_cast<LONG>((top - p.y) / scale * ratio + 0.5) - offsetY};
  };
  const double bare = Best([&](int) {
    for (std::size_t i = 0; i < points.size(); ++i) {
      out[i] = map(points[i]);
      asm volatile("" ::: "memory");  // one by one
    }
  });
  const double array = Best([&](int) {
    for (std::size_t i = 0; i < points.size(); ++i) out[i] = map(points[i]);
  });
  PrintBenchRow({"map 100,000 points one by one", ours, "ms", {"bare loop", bare}, 1.2});
  PrintBenchRow({"the same beside a loop over a whole array", ours, "ms", {"bare loop, array", array}});
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication application(argc, argv);
  PrintBenchHead();
  Transforms();
  Frames();
  return 0;
}
