#pragma once

#include <QFont>
#include <QTextLayout>
#include <cstdint>

namespace coregui {

/// One line of text shaped by the toolkit: for combining marks, right-to-left and joining scripts, characters
/// beyond the basic plane and those that only another font has.
class ShapedText {
 public:
  ShapedText(const QFont& font, const wchar_t* text, int length);
  /// The advance in whole dots.
  std::int64_t Width() const { return m_width; }
  /// Draws with the baseline's start at `baseline`.
  void Draw(QPainter& painter, const QPointF& baseline) const;

 private:
  QTextLayout m_layout;
  std::int64_t m_width = 0;
};

}  // namespace coregui
