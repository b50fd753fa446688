#include "grid/display/SizingEdges.h"

namespace coregui {

bool EdgeFinder::Next(long line, int size) {
  if (m_found) {
    // A hidden line behind the edge is the one to size, so that it can be dragged open.
    if (size == 0) m_line = line;
    return false;
  }
  m_edge += size;
  if (IsOnEdge(m_position, m_edge)) {
    m_found = true;
    m_line = line;
  }
  return true;
}

}  // namespace coregui
