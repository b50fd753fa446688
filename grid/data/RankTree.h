#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <vector>

namespace coregui {

/// A sequence of rows that grows by insertion anywhere, in which the next row whose rank passes a limit is
/// found without looking at those between: a B+-tree that keeps in each node the number of its rows and the
/// largest rank of each kind. Every operation costs O(log n).
class RankTree {
 public:
  /// A limit that no rank passes.
  static constexpr int NEVER = std::numeric_limits<int>::max();
  /// A rank that passes no limit.
  static constexpr int LOWEST = std::numeric_limits<int>::min();

  /// Each row has `kinds` ranks, one at least.
  explicit RankTree(std::size_t kinds);
  std::uint32_t Size() const { return m_size; }
  /// The row at a position below Size().
  std::uint32_t At(std::uint32_t position) const;
  /// The first position from `from` on whose row has a rank above the limit of its kind; Size() when none.
  std::uint32_t FindAbove(std::uint32_t from, const std::vector<int>& limits) const;
  /// The row takes the position, at most Size().
  void Insert(std::uint32_t position, std::uint32_t row, const std::vector<int>& ranks);
  std::vector<std::uint32_t> Flatten() const;
  bool Check() const;

 private:
  static constexpr std::uint32_t WIDTH = 64;
  static constexpr std::uint32_t NONE = ~0U;
  /// Entries are rows in a leaf, nodes above.
  struct Node {
    std::uint32_t size = 0;
    std::array<std::uint32_t, WIDTH> entries{};
    std::array<std::uint32_t, WIDTH> counts{};  // rows below each entry, where it is a node
  };

  struct Place {
    std::uint32_t at = 0;      // an entry's index in its node
    std::uint32_t before = 0;  // rows below the entries before it
  };

  int* Ranks(std::uint32_t node, std::size_t kind) { return &m_ranks[(node * m_kinds + kind) * WIDTH]; }
  const int* Ranks(std::uint32_t node, std::size_t kind) const {
    return &m_ranks[(node * m_kinds + kind) * WIDTH];
  }
  std::uint32_t AddNode();
  Place FindEntry(std::uint32_t node, std::uint32_t position) const;
  void GrowRoot();
  void InsertEntry(std::uint32_t node, std::uint32_t at, std::uint32_t entry, std::uint32_t count);
  void SplitEntry(std::uint32_t node, std::uint32_t at, bool atEnd, bool aboveLeaves);
  std::uint32_t CountRows(std::uint32_t node, bool isLeaf) const;
  void TakeLargest(std::uint32_t node, std::uint32_t at);
  std::uint32_t FirstAbove(std::uint32_t node, std::uint32_t from, const std::vector<int>& limits) const;
  std::uint32_t FindIn(std::uint32_t node, int level, std::uint32_t from,
                       const std::vector<int>& limits) const;
  void FlattenNode(std::uint32_t node, int level, std::vector<std::uint32_t>& rows) const;
  bool CheckNode(std::uint32_t node, int level) const;

  std::size_t m_kinds;
  std::vector<Node> m_nodes;
  std::vector<int> m_ranks;  // of each node by kind and entry; of an entry that is a node, the largest
  std::uint32_t m_root = 0;
  std::uint32_t m_size = 0;
  int m_height = 0;  // levels above the leaves
};

}  // namespace coregui
