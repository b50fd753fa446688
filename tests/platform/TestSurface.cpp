// The memory behind a context: its size, moves, damage and copies.

#include <gtest/gtest.h>

#include <QPainter>
#include <random>
#include <vector>

#include "platform/qt/BitmapData.h"
#include "tests/platform/SurfaceDC.h"

namespace {

using coregui::test::SurfaceDC;

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);

std::shared_ptr<coregui::Surface> MakeSurface(CSize size, double scale = 1.0) {
  return std::make_shared<coregui::Surface>(size, scale);
}

TEST(SurfaceMemory, Resize_KeepsTheCommonPartAndOldContextsInBounds) {
  const auto surface = MakeSurface({50, 50});
  SurfaceDC old(surface);
  old.FillSolidRect(CRect(0, 0, 50, 50), red);
  surface->Resize(CSize(20, 30), 1.0);
  SurfaceDC dc(surface);
  old.FillSolidRect(CRect(25, 0, 50, 50), RGB(0, 0, 9));
  EXPECT_EQ(dc.GetPixel(19, 29), red);
  EXPECT_EQ(dc.GetPixel(20, 0), 0xFFFFFFFFU);
  surface->Resize(CSize(60, 40), 1.0);
  SurfaceDC grown(surface);
  EXPECT_EQ(grown.GetPixel(19, 29), red);
  EXPECT_EQ(grown.GetPixel(20, 10), white);
  EXPECT_EQ(grown.GetPixel(59, 39), white);
}

TEST(SurfaceMemory, OneColour_LastsUntilSomethingElseIsDrawn) {
  const auto surface = MakeSurface({300, 300});
  SurfaceDC dc(surface);
  dc.FillSolidRect(CRect(0, 0, 300, 300), RGB(1, 2, 3));
  surface->Resize(CSize(400, 200), 1.0);
  SurfaceDC wider(surface);
  EXPECT_EQ(wider.GetPixel(399, 199), RGB(1, 2, 3));
  dc.FillSolidRect(CRect(0, 0, 300, 200), red);
  EXPECT_EQ(wider.GetPixel(299, 199), red);
  EXPECT_EQ(wider.GetPixel(300, 199), RGB(1, 2, 3)) << "not all of it was filled";
  surface->Resize(CSize(400, 210), 1.0);
  EXPECT_EQ(SurfaceDC(surface).GetPixel(5, 205), white);
}

/// Held against moving dots one by one. The picture is large enough to slide along its memory.
TEST(SurfaceMemory, Moves_AreThoseOfPlainMemory) {
  constexpr LONG width = 300;
  constexpr LONG height = 200;
  const auto surface = MakeSurface({width, height});
  SurfaceDC dc(surface);
  QImage plain(width, height, QImage::Format_RGB32);
  plain.fill(Qt::white);
  std::mt19937 random(20);
  const auto any = [&random](int from, int to) {
    return std::uniform_int_distribution<int>(from, to)(random);
  };
  for (int step = 0; step < 400; ++step) {
    const int dx = any(0, 3) == 0 ? any(-20, 20) : 0;
    const int dy = any(-60, 60);
    const CRect area(any(0, 3) == 0 ? any(0, 100) : 0, any(0, 40), width, height - any(0, 40));
    const CPoint corner(any(0, width - 40), any(0, height - 1));
    const QColor colour(any(0, 255), any(0, 255), 0);
    dc.FillSolidRect(CRect(corner.x, corner.y, width, height), RGB(colour.red(), colour.green(), 0));
    ASSERT_TRUE(surface->MovePixels(area, dx, dy, area));
    QPainter(&plain).fillRect(corner.x, corner.y, width, height, colour);
    const QImage before = plain;
    for (int y = area.top; y < area.bottom; ++y) {
      for (int x = area.left; x < area.right; ++x) {
        if (area.PtInRect(CPoint(x - dx, y - dy))) plain.setPixel(x, y, before.pixel(x - dx, y - dy));
      }
    }
    ASSERT_EQ(surface->Snapshot().convertToFormat(QImage::Format_RGB32), plain)
        << "step " << step << " by " << dx << ',' << dy;
  }
}

TEST(SurfaceDamage, Damage_AsksForOneExposureUntilTakenAndKeepsFarPiecesApart) {
  const auto surface = MakeSurface({500, 500}, 2.0);
  int asked = 0;
  surface->onDamage = [&asked] { ++asked; };
  SurfaceDC dc(surface);
  dc.FillSolidRect(CRect(3, 3, 5, 5), red);
  dc.MoveTo(10, 7);
  dc.LineTo(20, 7);
  EXPECT_EQ(surface->TakeDamage(), std::vector<CRect>{CRect(3, 3, 20, 8)});
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(surface->TakeDamage().empty());
  dc.FillSolidRect(CRect(0, 0, 500, 20), red);
  dc.FillSolidRect(CRect(400, 300, 410, 490), red);
  EXPECT_EQ(surface->TakeDamage(), (std::vector<CRect>{CRect(0, 0, 500, 24), CRect(400, 296, 410, 490)}))
      << "whole bands, within what was drawn on";
  EXPECT_EQ(asked, 2);
}

TEST(MemoryContext, Bitmap_IsDrawnOnAndCopiedBackAndTransparentDotsLetTheGroundThrough) {
  CBitmap bitmap;
  ASSERT_TRUE(bitmap.CreateCompatibleBitmap(nullptr, 20, 10));
  CMemoryDC memory(nullptr, &bitmap);
  memory.FillSolidRect(CRect(0, 0, 20, 10), white);
  memory.FillSolidRect(CRect(5, 5, 10, 10), red);
  const auto surface = MakeSurface({50, 50});
  SurfaceDC dc(surface);
  EXPECT_TRUE(dc.BitBlt(10, 10, 100, 100, &memory, 5, 5, SRCCOPY)) << "more than there is: what there is";
  EXPECT_EQ(dc.GetPixel(10, 10), red);
  EXPECT_EQ(dc.GetPixel(15, 10), white);
  EXPECT_FALSE(bitmap.CreateCompatibleBitmap(nullptr, 0, 5));
  EXPECT_FALSE(bitmap.IsCreated());
  ASSERT_TRUE(bitmap.CreateFromPixels(2, 1, {0xFFFF0000, 0x00000000}));
  dc.DrawBitmap(bitmap, 3, 3);
  EXPECT_EQ(dc.GetPixel(3, 3), red);
  EXPECT_EQ(dc.GetPixel(4, 3), white);
  EXPECT_FALSE(bitmap.CreateFromPixels(3, 3, {1, 2}));
}

}  // namespace
