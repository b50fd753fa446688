#pragma once

#include <gtest/gtest.h>

#include "grid/data/CGridCell.h"
#include "grid/data/CGridDataSource.h"

/// What any data source that stores cells must do. Give it an empty source that takes cells at columns 0 to 3
/// and rows 0 to 3.
inline void ExpectDataSourceContract(CGridDataSource& source) {
  CGridCell written;
  CGridCell read;
  read.SetText(L"default");
  ASSERT_EQ(1, source.GetCell(1, 1, &read)) << "nothing is stored yet";
  EXPECT_STREQ(L"default", read.GetText()) << "the cell passed in stays as it was";
  written.SetPropertyFlags(0);
  written.SetText(L"stored");
  written.SetBorder(7);
  ASSERT_EQ(0, source.SetCell(1, 1, &written));
  read.SetAlignment(9);
  ASSERT_EQ(0, source.GetCell(1, 1, &read));
  EXPECT_STREQ(L"stored", read.GetText());
  EXPECT_EQ(7, read.GetBorder());
  EXPECT_EQ(9, read.GetAlignment()) << "a property that is not stored does not change";
  written.SetPropertyFlags(0);
  written.SetText(L"again");
  ASSERT_EQ(0, source.SetCell(1, 1, &written));
  CGridCell fresh;
  fresh.SetPropertyFlags(0);
  ASSERT_EQ(0, source.GetCell(1, 1, &fresh));
  EXPECT_EQ(0, fresh.IsPropertySet(CELLPROP_BORDER)) << "writing replaces the mask";
  ASSERT_EQ(0, source.DeleteCell(1, 1));
  EXPECT_EQ(1, source.GetCell(1, 1, &fresh));
  ASSERT_EQ(0, source.SetCell(2, 3, &written));
  ASSERT_EQ(0, source.Empty());
  EXPECT_EQ(1, source.GetCell(2, 3, &fresh));
  int column = 0;
  long row = 0;
  EXPECT_EQ(1, source.OnCanMove(0, 0, 1, 1));
  EXPECT_EQ(1, source.OnEditContinue(0, 0, &column, &row));
}
