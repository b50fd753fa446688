#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <vector>

namespace coregui {

/// A row, or a number of like ones that stand together and have one name.
struct RankedRows {
  std::uint32_t row = 0;
  std::uint32_t count = 1;
  friend bool operator==(const RankedRows&, const RankedRows&) = default;
};

/// A sequence of rows that grows by insertion anywhere, in which the next row whose rank passes a limit is
/// found without looking at those between: a B+-tree that keeps in each node where its entries end and the
/// largest rank of each kind. Every operation costs O(log n), n being the number of entries: like rows that
/// stand together are one, however many they are. Positions count rows, 2^32 - 2 at most.
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
  std::uint32_t At(std::uint32_t position) const { return EntryAt(position).row; }
  /// A position's entry: the row and how many of its like stand there from the position on.
  RankedRows EntryAt(std::uint32_t position) const;
  /// The first position from `from` on whose row has a rank above the limit of its kind; Size() when none.
  std::uint32_t FindAbove(std::uint32_t from, const std::vector<int>& limits) const;
  /// The rows take the position, at most Size(). All rows of one name have the same ranks.
  void Insert(std::uint32_t position, RankedRows rows, const std::vector<int>& ranks);
  std::vector<RankedRows> Flatten() const;

 private:
  static constexpr std::uint32_t WIDTH = 64;
  static constexpr std::uint32_t NONE = ~0U;
  /// Entries are rows in a leaf, nodes above.
  struct Node {
    Node() { ends.fill(NONE); }
    std::uint32_t size = 0;
    std::array<std::uint32_t, WIDTH> entries{};
    std::array<std::uint32_t, WIDTH> ends;  // rows up to each entry's last; NONE behind the last entry
    std::uint32_t Start(std::uint32_t at) const { return at == 0 ? 0 : ends[at - 1]; }
    std::uint32_t Rows() const { return Start(size); }
    std::uint32_t Find(std::uint32_t position) const;
  };

  int* Ranks(std::uint32_t node, std::size_t kind) { return &m_ranks[(node * m_kinds + kind) * WIDTH]; }
  const int* Ranks(std::uint32_t node, std::size_t kind) const {
    return &m_ranks[(node * m_kinds + kind) * WIDTH];
  }
  std::uint32_t AddNode();
  void GrowRoot();
  void OpenEntry(std::uint32_t node, std::uint32_t at);
  void SplitEntry(std::uint32_t node, std::uint32_t at, bool atEnd);
  void TakeLargest(std::uint32_t node, std::uint32_t at);
  void InsertInLeaf(std::uint32_t node, std::uint32_t position, RankedRows rows,
                    const std::vector<int>& ranks);
  void AddEntry(std::uint32_t node, std::uint32_t at, RankedRows rows, const std::vector<int>& ranks);
  std::uint32_t FirstAbove(std::uint32_t node, std::uint32_t from, const std::vector<int>& limits) const;
  std::uint32_t FindIn(std::uint32_t node, int level, std::uint32_t from,
                       const std::vector<int>& limits) const;
  void FlattenNode(std::uint32_t node, int level, std::vector<RankedRows>& rows) const;

  std::size_t m_kinds;
  std::vector<Node> m_nodes;
  std::vector<int> m_ranks;  // of each node by kind and entry; of an entry that is a node, the largest
  std::uint32_t m_root = 0;
  std::uint32_t m_size = 0;
  int m_height = 0;  // levels above the leaves
};

}  // namespace coregui
