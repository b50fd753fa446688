#include "platform/qt/ShapedText.h"

#include <QPainter>
#include <cmath>

namespace coregui {

namespace {

// Shaping costs memory in proportion; what is beyond this is far outside any device.
constexpr int mostCharacters = 100000;

QString OneLine(const wchar_t* text, int length) {
  QString line = QString::fromWCharArray(text, std::min(length, mostCharacters));
  for (QChar& c : line) {
    if (c < QChar(0x20) || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) {
      c = QChar(0x20);
    }
  }
  return line;
}

}  // namespace

ShapedText::ShapedText(const QFont& font, const wchar_t* text, int length)
    : m_layout(OneLine(text, length), font) {
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  option.setTextDirection(Qt::LeftToRight);
  option.setFlags(QTextOption::IncludeTrailingSpaces);
  m_layout.setTextOption(option);
  m_layout.setCacheEnabled(true);
  m_layout.beginLayout();
  QTextLine line = m_layout.createLine();
  if (line.isValid()) {
    line.setLineWidth(1e7);
    line.setPosition(QPointF(0, 0));
    m_width = static_cast<std::int64_t>(std::ceil(line.naturalTextWidth()));
  }
  m_layout.endLayout();
}

void ShapedText::Draw(QPainter& painter, const QPointF& baseline) const {
  if (m_layout.lineCount() > 0) {
    m_layout.draw(&painter, baseline - QPointF(0, m_layout.lineAt(0).ascent()));
  }
}

}  // namespace coregui
