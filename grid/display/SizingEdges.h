#pragma once

#include "core/Export.h"

namespace coregui {

/// A position this near to an edge, or further, is not on it.
inline constexpr int kEdgeReach = 3;

/// Whether the position is on the edge: strictly within kEdgeReach of it.
constexpr bool IsOnEdge(int position, int edge) {
  return position - edge < kEdgeReach && edge - position < kEdgeReach;
}

/// Follows the far edges of lines in the order they are shown and finds the one to size at a position: give
/// it each line in turn until it answers false.
class COREGUI_API EdgeFinder {
 public:
  explicit EdgeFinder(int position, int start = 0) : m_position(position), m_edge(start) {}
  /// The next line and its size. False when nothing after it can matter: the line behind the found edge was
  /// seen.
  bool Next(long line, int size);
  bool IsFound() const { return m_found; }
  long Line() const { return m_line; }
  /// Where the last line ends.
  int Edge() const { return m_edge; }

 private:
  int m_position;
  int m_edge;
  long m_line = 0;
  bool m_found = false;
};

/// A size while its edge is dragged: never below 0.
constexpr int DraggedSize(int sizeAtStart, int startPosition, int position) {
  const int size = sizeAtStart - startPosition + position;
  return size < 0 ? 0 : size;
}

}  // namespace coregui
