#include "grid/control/SizeTable.h"

#include <gtest/gtest.h>

#include <random>

using coregui::SizeTable;

namespace {

long ExpectedIndexAt(const std::vector<int>& sizes, long pixel) {
  long index = 0;
  long sum = 0;
  for (std::size_t i = 0; i <= sizes.size(); ++i) {
    if (sum <= pixel) index = static_cast<long>(i);
    sum += i < sizes.size() ? sizes[i] : 0;
  }
  return index;
}

}  // namespace

TEST(SizeTable, AnswersAsAPlainListOfSizesDoes) {
  std::mt19937 random(7);
  SizeTable table;
  std::vector<int> model(500, 7);  // several of the blocks that are summed together
  table.Resize(500, 7);
  const auto upTo = [&](std::size_t n) { return static_cast<long>(random() % (n + 1)); };
  for (int step = 0; step < 4000; ++step) {
    const int size = random() % 4 == 0 ? 0 : static_cast<int>(random() % 30);
    const int action = static_cast<int>(random() % 6);
    if (action == 0) {
      const long count = static_cast<long>(model.size()) + upTo(12) - 5;
      model.resize(static_cast<std::size_t>(std::max(count, 0L)), size);
      table.Resize(std::max(count, 0L), size);
    } else if (action == 1) {
      const long at = upTo(model.size());
      model.insert(model.begin() + at, size);
      table.Insert(at, size);
    } else if (!model.empty()) {
      const long at = upTo(model.size() - 1);
      if (action == 2) {
        model.erase(model.begin() + at);
        table.Erase(at);
      } else if (action == 3) {
        const long to = upTo(model.size() - 1);
        const int moved = model[static_cast<std::size_t>(at)];
        model.erase(model.begin() + at);
        model.insert(model.begin() + to, moved);
        table.Move(at, to);
      } else {
        model[static_cast<std::size_t>(at)] = size;
        table.Set(at, size);
      }
    }
    ASSERT_TRUE(table.Check()) << "step " << step;
    ASSERT_EQ(table.Count(), static_cast<long>(model.size())) << "step " << step;
    const long pixel = upTo(static_cast<std::size_t>(table.SumBefore(table.Count())) + 9);
    ASSERT_EQ(table.IndexAt(pixel), ExpectedIndexAt(model, pixel)) << "step " << step << " pixel " << pixel;
  }
}

TEST(SizeTable, SumsBeyond32Bits) {
  SizeTable table;
  table.Resize(64000, 1'000'000);
  EXPECT_EQ(table.SumBefore(64000), 64'000'000'000L);
  EXPECT_EQ(table.IndexAt(63'999'999'999L), 63999);
}
