#include "views/ReduceSeries.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <limits>
#include <map>
#include <random>
#include <string>

#include "platform/CBitmap.h"
#include "platform/CDC.h"
#include "platform/CWnd.h"
#include "views/CPlotPrimitives.h"
#include "views/CViewMapping.h"

namespace {

using coregui::CPolylineSink;
using coregui::CViewMapping;

constexpr double kGap = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr LONG kWidth = 160;
constexpr LONG kHeight = 100;

using Point = PNT_2D_record;
using Points = std::vector<Point>;

using Lines = std::function<void(CDC& dc)>;

/// The rows of dots of a picture, each dot as its green part: 0 to 255.
using Greys = std::vector<std::string>;

/// What is drawn on a bitmap at the scale of the windows.
Greys Picture(const CDC& like, const Lines& draw) {
  CBitmap bitmap;
  bitmap.CreateCompatibleBitmap(&like, kWidth, kHeight);
  CMemoryDC dc(&like, &bitmap);
  dc.FillSolidRect(CRect(0, 0, kWidth, kHeight), 0xFFFFFF);
  dc.SetBkMode(TRANSPARENT);
  draw(dc);
  Greys rows;
  for (int y = 0; bitmap.GetPixel(0, y) != 0xFFFFFFFF; ++y) {
    rows.emplace_back();
    for (int x = 0; bitmap.GetPixel(x, y) != 0xFFFFFFFF; ++x) {
      rows.back() += static_cast<char>(bitmap.GetPixel(x, y) & 0xFF);
    }
  }
  return rows;
}

/// How two pictures differ, the second so many dots to the left of the first.
struct Difference {
  int most = 0;  ///< of a dot
  std::size_t dots = 0;
};

Difference DifferenceOf(const Greys& a, const Greys& b, std::size_t left = 0) {
  Difference difference;
  for (std::size_t y = 0; y < a.size(); ++y) {
    for (std::size_t x = left; x < a[y].size(); ++x) {
      const int off =
          std::abs(static_cast<std::uint8_t>(a[y][x]) - static_cast<std::uint8_t>(b[y].at(x - left)));
      difference.most = std::max(difference.most, off);
      difference.dots += off > 0 ? 1 : 0;
    }
  }
  return difference;
}

void DrawEveryPoint(CDC& dc, const Points& points, const CViewMapping& mapping) {
  std::vector<POINT> run;
  const auto draw = [&] { dc.Polyline(run.data(), static_cast<int>(run.size())); };
  for (const Point& p : points) {
    if (CPlotSeries::IsDrawable(p)) {
      run.push_back(mapping.UserToWindow(p));
    } else {
      draw();
      run.clear();
    }
  }
  draw();
}

void DrawEveryPointSmoothly(CDC& dc, const Points& points, const CViewMapping& mapping) {
  Points device;
  for (const Point& p : points) {
    device.push_back(CPlotSeries::IsDrawable(p) ? mapping.UserToDevice(p) : Point{kGap, kGap});
  }
  dc.SetAntiAliasing(true);
  if (!device.empty()) dc.PolylineF(&device[0].x, static_cast<int>(device.size()));
}

CPolylineSink Reduced(const CPlotSeries& series, const CViewMapping& mapping) {
  CPolylineSink sink(CRect(-2, -2, kWidth + 2, kHeight + 2));
  ReduceSeries(series, mapping, sink);
  return sink;
}

CViewMapping Fitted(double width, double height) {
  CViewMapping mapping;
  mapping.extents.Set(0, height, width, 0);
  mapping.vertMode = coregui::VertMode::fill;
  mapping.now.dpiX = mapping.now.dpiY = 96;
  mapping.FitToRect(CRect(0, 0, kWidth, kHeight));
  return mapping;
}

using Random = std::mt19937;

Points Generated(std::size_t count, const std::function<Point(std::size_t, Random&)>& make) {
  Random random(7);
  Points points(count);
  for (std::size_t i = 0; i < count; ++i) points[i] = make(i, random);
  return points;
}

double Noise(Random& random, double from, double to) {
  return std::uniform_real_distribution<double>(from, to)(random);
}

/// Awkward data over the world 0..1000 by 0..100, by name.
std::map<std::string, Points> AwkwardData() {
  std::map<std::string, Points> data;
  data["falling wave"] = Generated(20000, [](auto i, auto&) {
    return Point{1000 - i * 0.05, 50 + 40 * std::sin(i * 0.001)};
  });
  data["noise"] = Generated(20000, [](auto i, auto& r) { return Point{i * 0.05, Noise(r, -20, 120)}; });
  data["uneven"] = Generated(20000, [](auto i, auto& r) {
    return Point{1000 * std::pow(i / 20000.0, 6),
                 Noise(r, 10, 90)};  // from thousands in a column to one in many
  });
  data["steps in x"] = Generated(20000, [](auto i, auto& r) {
    const int block = i / 997;  // columns of very different lengths side by side
    return Point{block * 48 + (i % 997 < 900 ? 0.0 : (i % 997 - 900) * 0.4), Noise(r, 40, 60) + block};
  });
  data["spikes"] = Generated(20000, [](auto i, auto&) {
    return Point{i * 0.05, i % 4099 == 17 ? 99.0 : i % 2503 == 5 ? 20000.0 : 30.0};
  });
  data["vertical runs"] = Generated(20000, [](auto i, auto& r) {
    return Point{std::floor(i / 700.0) * 37, Noise(r, 10, 90)};
  });
  data["few gaps"] = Generated(20000, [](auto i, auto& r) {
    return Point{i * 0.05, i % 977 < 3 ? kGap : Noise(r, 30, 60)};
  });
  data["many gaps"] = Generated(20000, [](auto i, auto& r) {
    return Point{i % 3 == 0 ? kInfinity : i * 0.05, Noise(r, 0, 100)};
  });
  data["gaps at the ends"] =
      Points{{kGap, kGap}, {100, 20}, {300, 80}, {301, 80}, {kGap, 1}, {500, -kInfinity}};
  data["unordered x"] = Generated(5000, [](auto, auto& r) {
    return Point{Noise(r, -200, 1200), Noise(r, -20, 120)};
  });
  data["columns to and fro with gaps"] = Generated(5000, [](auto i, auto& r) {
    const double rows = i % 64 < 25 ? 10 : 60;  // other rows behind the gap, in the same column
    return Point{i / 64 * 37 % 100 * 10.0, i % 64 == 25 ? kGap : Noise(r, rows, rows + 20)};
  });
  data["spiral"] = Generated(20000, [](auto i, auto&) {
    const double turn = i * 0.002;
    return Point{500 + turn * 15 * std::cos(turn), 50 + turn * 1.5 * std::sin(turn)};
  });
  data["row to and fro"] = Generated(5000, [](auto i, auto& r) {
    return Point{Noise(r, 100, 900), i < 2500 ? 50.0 : 60.0};
  });
  data["standing end"] = Generated(5000, [](auto i, auto& r) {
    return i < 100 ? Point{i * 0.03, Noise(r, 10, 90)} : Point{3, 90.5};
  });
  data["end on the peak"] = Points{{10, 20}, {10, 80}, {10, 50}, {10, 80}, {10, 80}};
  data["end beyond the peak"] = Points{{10, 20}, {10, 60}, {10, 50}, {10, 80}};
  data["straight"] = Points{{100, 40}, {300, 40}, {600, 40}};
  data["one point"] = Points{{10, 20}};
  data["one pixel"] = Points{{10, 20}, {10, 20}, {10, 20}};
  data["none"] = Points{};
  return data;
}

std::map<std::string, CViewMapping> Views() {
  std::map<std::string, CViewMapping> views;
  views["fit"] = Fitted(1000, 100);
  views["10x"] = views["fit"];
  views["10x"].Zoom({300, 50}, views["fit"].now.scale / 10, CSize(kWidth, kHeight));
  views["1000x"] = views["fit"];
  views["1000x"].Zoom({10, 50}, views["fit"].now.scale / 1000, CSize(kWidth, kHeight));
  views["far out"] = views["fit"];
  views["far out"].Zoom({500, 50}, views["fit"].now.scale * 40, CSize(kWidth, kHeight));
  views["right of the left edge"] = views["fit"];
  views["right of the left edge"].extents.Set(400, 100, 1400, 0);
  return views;
}

/// Draws lines through a mapping.
class LinePlot : public coregui::CPlotPrimitives {
 public:
  explicit LinePlot(const CViewMapping& mapping) : m_mapping(mapping) {}
  void Draw(CDC& dc, bool smooth, PlotPen const& pen, const CPlotSeries& series) {
    BeginPlot(dc, CRect(0, 0, kWidth, kHeight), CSize(96, 96));
    SetPlotAntiAliasing(smooth);
    SetPlotPen(pen);
    PlotPolyline(series);
    EndPlot();
  }

 protected:
  const coregui::CPlotMapping& GetPlotMapping() const override { return m_mapping; }

 private:
  const CViewMapping& m_mapping;
};

class ReduceSeriesPictures : public ::testing::Test {
 protected:
  ReduceSeriesPictures() { window.Create(L"", L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0); }
  Greys Drawn(bool smooth, PlotPen const& pen, const CPlotSeries& series, const CViewMapping& mapping) const {
    return Picture(CClientDC(&window), [&](CDC& dc) { LinePlot(mapping).Draw(dc, smooth, pen, series); });
  }
  Greys EveryPoint(bool smooth, PlotPen const& pen, const Points& points, const CViewMapping& mapping) const {
    return Picture(CClientDC(&window), [&](CDC& dc) {
      CPen solid(pen.style, static_cast<int>(pen.width), 0);
      dc.SelectObject(&solid);
      smooth ? DrawEveryPointSmoothly(dc, points, mapping) : DrawEveryPoint(dc, points, mapping);
    });
  }
  mutable CWnd window;
};

TEST_F(ReduceSeriesPictures, LookAsEveryPointDoes) {
  const bool wholeScale = CClientDC(&window).GetScaleFactor() == 1.0;
  for (const auto& [name, points] : AwkwardData()) {
    const CPlotSeries series(points);
    for (const auto& [view, mapping] : Views()) {
      const bool near = view == "fit" || view == "10x";
      // Wide hard lines are compared where a pixel is a dot, since the toolkit's joins are rounded to dots,
      // and where more than a straight line is left, which has flat ends.
      const bool wide =
          name == "straight" || (near && points.size() > 100 && name != "many gaps" && wholeScale);
      for (const PlotPen& pen : {PlotPen{0, 1}, PlotPen{0, 3}, PlotPen{0, 1, PlotUnit::pixels, PS_DASH}}) {
        SCOPED_TRACE(testing::Message() << name << ", " << view << ", " << pen.width << ", " << pen.style);
        if (pen.style == PS_SOLID) {
          // Two edges of the line may lie in a dot, each off by up to an eighth.
          EXPECT_LE(
              DifferenceOf(Drawn(true, pen, series, mapping), EveryPoint(true, pen, points, mapping)).most,
              64);
        }
        if (pen.style == PS_SOLID ? pen.width == 1 || wide : near) {
          EXPECT_EQ(
              DifferenceOf(Drawn(false, pen, series, mapping), EveryPoint(false, pen, points, mapping)).dots,
              0U);
        }
      }
    }
  }
}

TEST_F(ReduceSeriesPictures, DashesOfDenseLinesLookNearlyAsThoseOfEveryPoint) {
  std::map<std::string, Points> data;
  data["noise"] = Generated(300000, [](auto i, auto& r) { return Point{i / 300.0, Noise(r, 20, 80)}; });
  data["spikes"] = Generated(300000, [](auto i, auto& r) {
    const double rows = i < 150000 ? 30 : -30;  // up, then down
    return Point{i / 300.0, 50 + (i % 10 == 5 ? rows * Noise(r, 0, 1) : 0.0)};
  });
  const PlotPen dashed{0, 1, PlotUnit::pixels, PS_DASH};
  for (const auto& [name, points] : data) {
    for (const std::string view : {"fit", "10x"}) {
      const CViewMapping mapping = Views()[view];
      const Greys every = EveryPoint(false, dashed, points, mapping);
      const std::size_t drawn = DifferenceOf(every, EveryPoint(false, dashed, {}, mapping)).dots;
      // Not where a dash ends inside a column, or beside a column of dots that belongs to none.
      EXPECT_LE(DifferenceOf(every, Drawn(false, dashed, CPlotSeries(points), mapping)).dots, drawn / 30)
          << name << ", " << view;
    }
  }
}

TEST_F(ReduceSeriesPictures, DashesStayOnTheLineWhenTheViewMoves) {
  const auto wave = [](std::size_t count) {
    const double step = 1000.0 / static_cast<double>(count);
    return Generated(count, [step](auto i, auto&) {
      return Point{i * step, 50 + 40 * std::sin(i * step * 0.02)};
    });
  };
  const auto dots = static_cast<std::size_t>(std::lround(8 * CClientDC(&window).GetScaleFactor()));
  const PlotPen dashed{0, 1, PlotUnit::pixels, PS_DASH};
  for (const Points& points : {wave(30), wave(300000), AwkwardData()["spiral"]}) {
    const CPlotSeries series(points);
    for (const double zoom : {1.0, 4.0, 100.0}) {
      for (const bool smooth : {false, true}) {
        CViewMapping mapping = Fitted(1000, 100);
        mapping.Zoom({500, 50}, mapping.now.scale / zoom, CSize(kWidth, kHeight));
        const Greys before = Drawn(smooth, dashed, series, mapping);
        mapping.Pan(CSize(-8, 0));
        EXPECT_EQ(DifferenceOf(before, Drawn(smooth, dashed, series, mapping), dots).dots, 0U)
            << points.size() << " points, " << zoom << "x, " << smooth;
      }
    }
  }
}

TEST(ReduceSeries, TheNumberOfPointsFollowsThePixels) {
  for (const std::size_t count : {1000U, 100000U, 1000000U}) {
    const double step = 1000.0 / static_cast<double>(count);
    const CPlotSeries series(Generated(count, [step](auto i, auto& r) {
      return Point{i * step, Noise(r, 0, 100)};
    }));
    EXPECT_LE(Reduced(series, Fitted(1000, 100)).GetPoints().size(), 4U * (kWidth + 1)) << count;
    EXPECT_LE(series.GetPyramidBytes(), count * 4);
  }
  const CPlotSeries gaps(AwkwardData()["many gaps"]);
  EXPECT_LE(Reduced(gaps, Fitted(1000, 100)).GetPoints().size(), 5000U)
      << "short lines behind longer ones are left out";
  const CPlotSeries chaos(AwkwardData()["unordered x"]);
  EXPECT_FALSE(chaos.IsMonotone());
  EXPECT_LE(chaos.GetPyramidBytes(), chaos.GetCount() * sizeof(Point) / 4);
}

TEST(PlotSeries, BoundsGapsAndOrderAreThoseOfTheDrawablePoints) {
  FRect bounds;
  EXPECT_FALSE(CPlotSeries().GetBounds(&bounds));
  EXPECT_FALSE(CPlotSeries(Points{{kGap, 1}, {1, kInfinity}}).GetBounds(&bounds));
  Points points = AwkwardData()["few gaps"];
  points.push_back({kInfinity, 1e9});
  const CPlotSeries series(points);
  EXPECT_TRUE(series.IsMonotone());
  ASSERT_TRUE(series.GetBounds(&bounds));
  EXPECT_EQ(bounds.GetLeft(), 3 * 0.05);
  EXPECT_EQ(bounds.GetRight(), 19999 * 0.05);
  EXPECT_NEAR(bounds.GetTop(), 60, 0.1);
  EXPECT_EQ(series.FindPoint(0), 3U);
  EXPECT_EQ(series.FindGap(3), 977U);
  EXPECT_EQ(series.FindPoint(977), 980U);
  EXPECT_EQ(series.FindPoint(20000), 20001U) << "no more points";
  EXPECT_EQ(CPlotSeries(Points(100000, {1, 2})).FindGap(5), 100000U);
}

}  // namespace
