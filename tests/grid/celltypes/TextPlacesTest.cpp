#include "grid/celltypes/TextPlaces.h"

#include <gtest/gtest.h>

namespace coregui {
namespace {

constexpr CRect kCell(100, 50, 200, 90);  // 100 x 40
constexpr int kMargin = 4;

struct Row {
  const char* name;
  int alignment;
  int offset;
  CPoint place;
};

class LinePlaces : public testing::TestWithParam<Row> {};

TEST_P(LinePlaces, FollowTheAlignment) {
  const Row& row = GetParam();
  const CPoint at = PlaceLine({kCell, row.alignment, kMargin, row.offset}, CSize(30, 13));
  EXPECT_EQ(at, row.place) << at.x << ',' << at.y;
}

INSTANTIATE_TEST_SUITE_P(
    Alignments, LinePlaces,
    testing::Values(Row{"none", 0, 0, {104, 51}}, Row{"leftTop", 0x9, 0, {104, 51}},
                    Row{"offsetPushesLeftText", 0x1, 16, {120, 51}},
                    Row{"spilledTextStartsOutside", 0x1, -80, {24, 51}}, Row{"right", 0x2, 0, {166, 51}},
                    Row{"rightIgnoresTheOffset", 0x2, 16, {166, 51}}, Row{"centre", 0x4, 0, {135, 51}},
                    Row{"centreBeatsRight", 0x6, 0, {135, 51}}, Row{"middle", 0x20, 0, {104, 63}},
                    Row{"bottom", 0x10, 0, {104, 76}}, Row{"middleBeatsBottom", 0x30, 0, {104, 63}},
                    Row{"headingDefault", 36, 0, {135, 63}}),
    [](const auto& test) { return test.param.name; });

TEST(TextPlaces, CentresTextThatIsTooLargeOverBothEdges) {
  EXPECT_EQ(PlaceLine({kCell, 0x24, kMargin, 0}, CSize(140, 60)), CPoint(80, 40));
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
