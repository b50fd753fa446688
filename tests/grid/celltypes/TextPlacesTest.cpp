#include "grid/celltypes/TextPlaces.h"

#include <gtest/gtest.h>

namespace coregui {
namespace {

constexpr CRect kCell(100, 50, 200, 90);  // 100 x 40
constexpr int kMargin = 4;

TEST(TextPlaces, ALineFollowsTheAlignment) {
  const struct {
    const char* name;
    int alignment;
    int offset;
    CPoint place;
    CSize text = {30, 13};
  } rows[] = {{"none", 0, 0, {104, 51}},
              {"left top", 0x9, 0, {104, 51}},
              {"the offset pushes left text", 0x1, 16, {120, 51}},
              {"spilled text starts outside", 0x1, -80, {24, 51}},
              {"right ignores the offset", 0x2, 16, {166, 51}},
              {"centre", 0x4, 0, {135, 51}},
              {"centre beats right", 0x6, 0, {135, 51}},
              {"middle beats bottom", 0x30, 0, {104, 63}},
              {"bottom", 0x10, 0, {104, 76}},
              {"too large: over both edges", 0x24, 0, {80, 40}, {140, 60}}};
  for (const auto& row : rows)
    EXPECT_EQ(PlaceLine({kCell, row.alignment, kMargin, row.offset}, row.text), row.place) << row.name;
}

TEST(TextPlaces, EllipsisWinsOverWrapping) {
  EXPECT_EQ(ChooseTextOutput(0), TextOutput::line);
  EXPECT_EQ(ChooseTextOutput(0x8), TextOutput::line);
  EXPECT_EQ(ChooseTextOutput(0x2), TextOutput::wrapped);
  EXPECT_EQ(ChooseTextOutput(0x4), TextOutput::ellipsis);
  EXPECT_EQ(ChooseTextOutput(0x6), TextOutput::ellipsis);
}

TEST(TextPlaces, EllipsisLineStartsThreePixelsInWhateverTheAlignment) {
  EXPECT_EQ(PlaceEllipsisLine({kCell, 0x2, kMargin, 0}, 13), CRect(103, 51, 200, 90));
  EXPECT_EQ(PlaceEllipsisLine({kCell, 0x20, kMargin, 10}, 13), CRect(113, 63, 200, 90));
}

TEST(TextPlaces, WrappedLeftTextHasNoMarginIsKept) {
  EXPECT_EQ(WrapArea({kCell, 0x1, kMargin, 0}), kCell);
  EXPECT_EQ(WrapArea({kCell, 0x1, kMargin, 18}), CRect(118, 50, 200, 90));
  EXPECT_EQ(WrapArea({kCell, 0x2, kMargin, 6}), CRect(100, 50, 190, 90));
  EXPECT_EQ(WrapArea({kCell, 0x4, kMargin, 6}), CRect(110, 50, 190, 90));
}

TEST(TextPlaces, WrappedTextMovesOnlyWithMiddleOrBottomAlignment) {
  EXPECT_EQ(WrapTop({kCell, 0x1, kMargin, 0}, 26), 50);
  EXPECT_EQ(WrapTop({kCell, 0x20, kMargin, 0}, 26), 57);
  EXPECT_EQ(WrapTop({kCell, 0x10, kMargin, 0}, 26), 64);
  EXPECT_FALSE(NeedsWrappedHeight(0x9));
  EXPECT_TRUE(NeedsWrappedHeight(0x10));
}

}  // namespace
}  // namespace coregui
