#include "views/ReduceSeries.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <iterator>
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

using Points = std::vector<PNT_2D_record>;

using Lines = std::function<void(CDC& dc)>;

/// The rows of dots of a picture, each dot as its green part: 0 to 255.
using Greys = std::vector<std::string>;

/// What is drawn with a pen, on a bitmap at the scale of the windows.
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

/// The same as text, for hard lines.
std::string HardPicture(const CDC& like, int penWidth, const Lines& draw, int style = PS_SOLID) {
  const Greys rows = Picture(like, [&](CDC& dc) {
    CPen pen(style, penWidth, 0);
    dc.SelectObject(&pen);
    draw(dc);
  });
  std::string text;
  for (const std::string& row : rows) {
    std::transform(row.begin(), row.end(), std::back_inserter(text),
                   [](char c) { return c == 0 ? '#' : '.'; });
    text += '\n';
  }
  return text;
}

void DrawEveryPoint(CDC& dc, const Points& points, const CViewMapping& mapping) {
  std::vector<POINT> run;
  const auto draw = [&] { dc.Polyline(run.data(), static_cast<int>(run.size())); };
  for (const PNT_2D_record& p : points) {
    if (CPlotSeries::IsDrawable(p)) {
      run.push_back(mapping.UserToWindow(p));
    } else {
      draw();
      run.clear();
    }
  }
  draw();
}

CPolylineSink Reduced(const CPlotSeries& series, const CViewMapping& mapping, int room = 2) {
  CPolylineSink sink(CRect(-room, -room, kWidth + room, kHeight + room));
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

Points Generated(std::size_t count, const std::function<PNT_2D_record(std::size_t, std::mt19937&)>& make) {
  std::mt19937 random(7);
  Points points(count);
  for (std::size_t i = 0; i < count; ++i) {
    points[i] = make(i, random);
  }
  return points;
}

double Noise(std::mt19937& random, double from, double to) {
  return std::uniform_real_distribution<double>(from, to)(random);
}

/// Awkward data over the world 0..1000 by 0..100, by name.
std::map<std::string, Points> AwkwardData() {
  std::map<std::string, Points> data;
  data["wave"] = Generated(20000, [](std::size_t i, auto&) {
    return PNT_2D_record{i * 0.05, 50 + 40 * std::sin(static_cast<double>(i) * 0.001)};
  });
  data["noise"] = Generated(20000, [](std::size_t i, auto& random) {
    return PNT_2D_record{i * 0.05, Noise(random, -20, 120)};
  });
  data["uneven"] = Generated(20000, [](std::size_t i, auto& random) {
    const double place = static_cast<double>(i) / 20000;  // from thousands in a column to one in many
    return PNT_2D_record{1000 * std::pow(place, 6), Noise(random, 10, 90)};
  });
  data["steps in x"] = Generated(20000, [](std::size_t i, auto& random) {
    const std::size_t block = i / 997;  // columns of very different lengths side by side
    return PNT_2D_record{block * 48.0 + (i % 997 < 900 ? 0.0 : static_cast<double>(i % 997 - 900) * 0.4),
                         Noise(random, 40, 60) + static_cast<double>(block)};
  });
  data["spikes"] = Generated(20000, [](std::size_t i, auto&) {
    return PNT_2D_record{i * 0.05, i % 4099 == 17 ? 99.0 : i % 2503 == 5 ? 20000.0 : 30.0};
  });
  data["falling x"] = Generated(20000, [](std::size_t i, auto& random) {
    return PNT_2D_record{1000 - i * 0.05, Noise(random, 20, 40) + i * 0.001};
  });
  data["vertical runs"] = Generated(20000, [](std::size_t i, auto& random) {
    return PNT_2D_record{std::floor(i / 700.0) * 37, Noise(random, 10, 90)};
  });
  data["few gaps"] = Generated(20000, [](std::size_t i, auto& random) {
    return PNT_2D_record{i * 0.05, i % 977 < 3 ? kGap : Noise(random, 30, 60)};
  });
  data["many gaps"] = Generated(20000, [](std::size_t i, auto& random) {
    return PNT_2D_record{i % 3 == 0 ? kInfinity : i * 0.05, Noise(random, 0, 100)};
  });
  data["gaps at the ends"] =
      Points{{kGap, kGap}, {100, 20}, {300, 80}, {301, 80}, {kGap, 1}, {500, -kInfinity}};
  data["unordered x"] = Generated(5000, [](std::size_t, auto& random) {
    return PNT_2D_record{Noise(random, -200, 1200), Noise(random, -20, 120)};
  });
  data["columns to and fro with gaps"] = Generated(5000, [](std::size_t i, auto& random) {
    const double rows = i % 64 < 25 ? 10 : 60;  // other rows behind the gap, in the same column
    return PNT_2D_record{static_cast<double>(i / 64 * 37 % 100 * 10),
                         i % 64 == 25 ? kGap : Noise(random, rows, rows + 20)};
  });
  data["spiral"] = Generated(20000, [](std::size_t i, auto&) {
    const double turn = static_cast<double>(i) * 0.002;
    return PNT_2D_record{500 + turn * 15 * std::cos(turn), 50 + turn * 1.5 * std::sin(turn)};
  });
  data["row to and fro"] = Generated(5000, [](std::size_t i, auto& random) {
    return PNT_2D_record{Noise(random, 100, 900), i < 2500 ? 50.0 : 60.0};
  });
  data["standing end"] = Generated(5000, [](std::size_t i, auto& random) {
    return i < 100 ? PNT_2D_record{i * 0.03, Noise(random, 10, 90)} : PNT_2D_record{3, 90.5};
  });
  data["end on the peak"] = Points{{10, 20}, {10, 80}, {10, 50}, {10, 80}, {10, 80}};
  data["end beyond the peak"] = Points{{10, 20}, {10, 60}, {10, 50}, {10, 80}};
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

TEST(ReduceSeries, ThePictureIsThatOfEveryPoint) {
  CWnd window;
  ASSERT_TRUE(window.Create(L"", L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
  const CClientDC like(&window);
  for (const auto& [name, points] : AwkwardData()) {
    const CPlotSeries series(points);
    for (const auto& [view, mapping] : Views()) {
      const CPolylineSink sink = Reduced(series, mapping, 14);
      // Wide lines are compared where a pixel is a dot, since the toolkit's joins are rounded to dots, and
      // where more than a straight line is left, which has flat ends.
      const bool wide =
          (view == "fit" || view == "10x") && points.size() > 100 && like.GetScaleFactor() == 1.0;
      for (const int width : wide ? std::vector<int>{1, 3} : std::vector<int>{1}) {
        const std::string reduced = HardPicture(like, width, [&](CDC& dc) {
          dc.PolyPolyline(sink.GetPoints().data(), sink.GetCounts().data(),
                          static_cast<int>(sink.GetCounts().size()));
        });
        const auto every = [&data = points, &at = mapping](CDC& dc) { DrawEveryPoint(dc, data, at); };
        EXPECT_EQ(reduced, HardPicture(like, width, every)) << name << ", " << view << ", " << width;
      }
    }
  }
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

void DrawEveryPointSmoothly(CDC& dc, int width, const Points& points, const CViewMapping& mapping) {
  Points device;
  for (const PNT_2D_record& p : points) {
    device.push_back(CPlotSeries::IsDrawable(p) ? mapping.UserToDevice(p) : PNT_2D_record{kGap, kGap});
  }
  CPen pen(PS_SOLID, width, 0);
  dc.SelectObject(&pen);
  dc.SetAntiAliasing(true);
  if (!device.empty()) dc.PolylineF(&device[0].x, static_cast<int>(device.size()));
}

int MostDifference(const Greys& a, const Greys& b) {
  int most = 0;
  for (std::size_t y = 0; y < a.size(); ++y) {
    for (std::size_t x = 0; x < a[y].size(); ++x) {
      most = std::max(most,
                      std::abs(static_cast<std::uint8_t>(a[y][x]) - static_cast<std::uint8_t>(b[y].at(x))));
    }
  }
  return most;
}

TEST(ReduceSeries, ASmoothLineLooksAsEveryPointDoes) {
  CWnd window;
  ASSERT_TRUE(window.Create(L"", L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
  const CClientDC like(&window);
  for (const auto& [name, points] : AwkwardData()) {
    const CPlotSeries series(points);
    for (const auto& [view, mapping] : Views()) {
      for (const int width : {1, 3}) {
        const auto plot = [&, &at = mapping](CDC& dc) {
          LinePlot(at).Draw(dc, true, {0, width * 1.0}, series);
        };
        const auto draw = [&, &data = points, &at = mapping](CDC& dc) {
          DrawEveryPointSmoothly(dc, width, data, at);
        };
        const Greys reduced = Picture(like, plot);
        const Greys every = Picture(like, draw);
        // Two edges of the line may lie in a dot, each off by up to an eighth.
        EXPECT_LE(MostDifference(reduced, every), 64) << name << ", " << view << ", " << width;
      }
    }
  }
}

TEST(ReduceSeries, WideStraightLinesOfTwoPointsLookAsThoseOfMany) {
  CWnd window;
  ASSERT_TRUE(window.Create(L"", L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
  const CClientDC like(&window);
  const CViewMapping mapping = Fitted(kWidth, kHeight);
  for (const PNT_2D_record to : {PNT_2D_record{120, 60}, PNT_2D_record{20, 10}}) {
    const PNT_2D_record from{20, 60};
    const PNT_2D_record between{(from.x + to.x) / 2, (from.y + to.y) / 2};
    for (const int style : {PS_SOLID, PS_DASH}) {
      const auto plot = [&](CDC& dc, const Points& points) {
        LinePlot(mapping).Draw(dc, false, {0, 3, PlotUnit::pixels, style}, CPlotSeries(points));
      };
      const Greys two = Picture(like, [&](CDC& dc) { plot(dc, {from, to}); });
      const Greys many = Picture(like, [&](CDC& dc) {
        CPen pen(style, 3, 0);
        dc.SelectObject(&pen);
        DrawEveryPoint(dc, {from, between, to}, mapping);
      });
      EXPECT_EQ(MostDifference(two, many), 0) << to.x << " " << style;
    }
  }
}

TEST(ReduceSeries, ADashedLineLooksAsEveryPointDoes) {
  CWnd window;
  ASSERT_TRUE(window.Create(L"", L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
  const CClientDC like(&window);
  std::map<std::string, Points> data = AwkwardData();
  data["dense wave"] = Generated(300000, [](std::size_t i, auto&) {
    const double x = static_cast<double>(i) / 300;
    return PNT_2D_record{x, 50 + 40 * std::sin(x * 0.02)};
  });
  data["dense noise"] = Generated(300000, [](std::size_t i, auto& random) {
    return PNT_2D_record{static_cast<double>(i) / 300, Noise(random, 20, 80)};
  });
  data["dense spikes"] = Generated(300000, [](std::size_t i, auto& random) {
    const double rows = i < 150000 ? 30 : -30;  // up, then down
    return PNT_2D_record{static_cast<double>(i) / 300, 50 + (i % 10 == 5 ? rows * Noise(random, 0, 1) : 0.0)};
  });
  for (const auto& [name, points] : data) {
    const CPlotSeries series(points);
    for (const std::string view : {"fit", "10x"}) {
      const CViewMapping mapping = Views()[view];
      const auto draw = [&points = points, &mapping](CDC& dc) { DrawEveryPoint(dc, points, mapping); };
      const auto plot = [&](CDC& dc) {
        LinePlot(mapping).Draw(dc, false, {0, 1, PlotUnit::pixels, PS_DASH}, series);
      };
      const std::string every = HardPicture(like, 1, draw, PS_DASH);
      const std::string reduced = HardPicture(like, 1, plot);
      int off = 0;
      for (std::size_t i = 0; i < every.size(); ++i) {
        off += every[i] != reduced[i] ? 1 : 0;
      }
      // Of many points, not where a dash ends inside a column, or beside a column of dots that belongs to
      // none.
      const auto drawn = std::count(every.begin(), every.end(), '#');
      EXPECT_LE(off, points.size() > 30000 ? drawn / 30 : 0) << name << ", " << view;
    }
  }
}

TEST(ReduceSeries, DashesStayOnTheLineWhenTheViewMoves) {
  CWnd window;
  ASSERT_TRUE(window.Create(L"", L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
  const CClientDC like(&window);
  const auto wave = [](std::size_t count) {
    return Generated(count, [count](std::size_t i, auto&) {
      const double x = 1000.0 * static_cast<double>(i) / static_cast<double>(count);
      return PNT_2D_record{x, 50 + 40 * std::sin(x * 0.02)};
    });
  };
  const auto dots = static_cast<std::size_t>(std::lround(8 * like.GetScaleFactor()));
  for (const Points& points : {wave(30), wave(300000), AwkwardData()["spiral"]}) {
    const CPlotSeries series(points);
    for (const double zoom : {1.0, 4.0, 100.0}) {
      for (const bool smooth : {false, true}) {
        CViewMapping mapping = Fitted(1000, 100);
        mapping.Zoom({500, 50}, mapping.now.scale / zoom, CSize(kWidth, kHeight));
        const auto plot = [&](CDC& dc) {
          LinePlot(mapping).Draw(dc, smooth, {0, 1, PlotUnit::pixels, PS_DASH}, series);
        };
        const Greys before = Picture(like, plot);
        mapping.Pan(CSize(-8, 0));
        const Greys after = Picture(like, plot);
        int most = 0;
        for (std::size_t y = 0; y < before.size(); ++y) {
          for (std::size_t x = dots; x < before[y].size(); ++x) {
            most = std::max(most, std::abs(static_cast<std::uint8_t>(before[y][x]) -
                                           static_cast<std::uint8_t>(after[y][x - dots])));
          }
        }
        EXPECT_EQ(most, 0) << points.size() << " points, " << zoom << "x, " << smooth;
      }
    }
  }
}

TEST(ReduceSeries, TheNumberOfPointsFollowsThePixels) {
  for (const std::size_t count : {1000U, 100000U, 1000000U}) {
    const CPlotSeries series(Generated(count, [&](std::size_t i, auto& random) {
      return PNT_2D_record{1000.0 * static_cast<double>(i) / static_cast<double>(count),
                           Noise(random, 0, 100)};
    }));
    EXPECT_LE(Reduced(series, Fitted(1000, 100)).GetPoints().size(), 4U * (kWidth + 1)) << count;
    EXPECT_LE(series.GetPyramidBytes(), count * 4);
  }
  const CPlotSeries gaps(AwkwardData()["many gaps"]);
  EXPECT_LE(Reduced(gaps, Fitted(1000, 100)).GetPoints().size(), 5000U)
      << "short lines behind longer ones are left out";
}

TEST(ReduceSeries, ChaoticXCostsNoMoreThanAQuarterOfTheData) {
  const CPlotSeries series(Generated(100000, [](std::size_t, auto& random) {
    return PNT_2D_record{Noise(random, 0, 1), Noise(random, 0, 1)};
  }));
  EXPECT_FALSE(series.IsMonotone());
  EXPECT_LE(series.GetPyramidBytes(), 100000 * sizeof(PNT_2D_record) / 4);
}

TEST(ReduceSeries, SegmentsToFarPointsCrossTheWindowWhereTheyShould) {
  // Two points so far out that their pixels leave 32 bits' comfortable half; the line crosses the window's
  // middle.
  CViewMapping mapping = Fitted(1000, 100);
  mapping.Zoom({500, 50}, mapping.now.scale / 2e7, CSize(kWidth, kHeight));
  const CPolylineSink sink = Reduced(CPlotSeries(Points{{496, 50}, {504, 50}}), mapping);
  ASSERT_EQ(sink.GetPoints().size(), 2U);
  EXPECT_EQ(sink.GetPoints()[0].y, 50);
  EXPECT_LE(sink.GetPoints()[0].x, -1000);
  EXPECT_GE(sink.GetPoints()[0].x, -(1 << 22));
  EXPECT_GE(sink.GetPoints()[1].x, kWidth + 1000);
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
  EXPECT_LT(bounds.GetTop(), 60);
  EXPECT_EQ(series.FindPoint(0), 3U);
  EXPECT_EQ(series.FindGap(3), 977U);
  EXPECT_EQ(series.FindPoint(977), 980U);
  EXPECT_EQ(series.FindPoint(20000), 20001U) << "no more points";
  EXPECT_EQ(CPlotSeries(Points(100000, {1, 2})).FindGap(5), 100000U);
}

}  // namespace
