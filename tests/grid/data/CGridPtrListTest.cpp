#include "grid/data/CGridPtrList.h"

#include <gtest/gtest.h>

namespace {

TEST(CGridPtrList, FreedSlotsAreUsedFirstAndOthersKeepTheirIndex) {
  CGridPtrList list;
  int items[4] = {};
  for (int i = 0; i < 3; ++i) EXPECT_EQ(i, list.AddPointer(&items[i], 10 + i));
  EXPECT_EQ(0, list.DeletePointer(1));
  EXPECT_EQ(nullptr, list.GetPointer(1));
  EXPECT_EQ(-1, list.GetPointerIndex(&items[1]));
  EXPECT_EQ(2, list.UpdateParam(1, 5));
  EXPECT_EQ(1, list.AddPointer(&items[3], 13));
  EXPECT_EQ(3, list.GetCount());
  EXPECT_EQ(2, list.GetPointerIndex(&items[2]));
  EXPECT_EQ(13, list.GetParam(1));
  EXPECT_TRUE(list.Check());
}

TEST(CGridPtrList, GrowsByTenAndCountsADoubleDeletionOnce) {
  CGridPtrList list;
  int item = 0;
  for (int i = 0; i < 11; ++i) EXPECT_EQ(i, list.AddPointer(&item));
  EXPECT_EQ(20, list.GetMaxCount());
  EXPECT_EQ(0, list.DeletePointer(3));
  EXPECT_EQ(0, list.DeletePointer(3));
  EXPECT_EQ(0, list.DeletePointer(15));
  EXPECT_EQ(10, list.GetCount());
  EXPECT_EQ(1, list.DeletePointer(20));
  EXPECT_EQ(1, list.DeletePointer(-1));
  EXPECT_EQ(1, list.UpdateParam(20, 0));
  EXPECT_EQ(0, list.GetParam(-1));
  EXPECT_TRUE(list.Check());
  list.EmptyList();
  EXPECT_EQ(0, list.GetCount());
  EXPECT_EQ(0, list.GetMaxCount());
  EXPECT_EQ(nullptr, list.GetPointer(0));
}

TEST(CGridPtrList, ANullIdentifierLeavesTheSlotsOwnIsKept) {
  CGridPtrList list;
  int item = 0;
  GridID id;
  id.Data1 = 0x1234;
  list.AddPointer(&item, 0, &id);
  list.DeletePointer(0);
  list.AddPointer(&item);
  EXPECT_EQ(id, *list.GetID(0));
}

}  // namespace
