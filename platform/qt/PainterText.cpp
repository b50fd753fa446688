#include <QPainter>
#include <algorithm>
#include <cstdint>

#include "platform/FontData.h"
#include "platform/qt/FontFace.h"
#include "platform/qt/PainterTarget.h"
#include "platform/qt/ShapedText.h"

// Text by the toolkit's painter.

namespace coregui {

FontFace& PainterTarget::Face(const DrawAttributes& with) {
  const FontData* font = with.font != nullptr ? with.font->Data().get() : nullptr;
  if (m_face == nullptr || m_faceFont.get() != font) {
    m_faceFont = with.font != nullptr ? with.font->Data() : nullptr;
    m_face = FontFace::For(m_faceFont, DotsPerInch(), Scale());
  }
  return *m_face;
}

int PainterTarget::TextWidth(const DrawAttributes& with, const wchar_t* text, int length) {
  return LogicalSize(Face(with).Width(text, length));
}

TEXTMETRIC PainterTarget::Metrics(const DrawAttributes& with) {
  const FontFace& face = Face(with);
  TEXTMETRIC metrics;
  metrics.tmHeight = LogicalSize(face.Height());
  metrics.tmAscent = std::min<LONG>(LogicalSize(face.Ascent()), metrics.tmHeight);
  metrics.tmDescent = metrics.tmHeight - metrics.tmAscent;
  metrics.tmExternalLeading = LogicalSize(face.Leading());
  metrics.tmAveCharWidth = LogicalSize(face.AverageWidth());
  metrics.tmMaxCharWidth = LogicalSize(face.MaxWidth());
  return metrics;
}

void PainterTarget::Text(const DrawAttributes& with, int x, int y, const wchar_t* text, int length) {
  TextByPainter(with, x, y, text, length);
}

void PainterTarget::TextByPainter(const DrawAttributes& with, int x, int y, const wchar_t* text, int length) {
  FontFace& face = Face(with);
  QPainter* painter = length > 0 ? Begin(with) : nullptr;
  if (painter == nullptr) {
    return;
  }
  const int dotX = Grid().x.Dot(std::int64_t{x} + with.origin.x);
  const int dotY = Grid().y.Dot(std::int64_t{y} + with.origin.y);
  const ShapedText& shaped = face.Shaped(text, length);
  painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
  painter->setPen(QColor::fromRgb(Opaque(with.textColour)));
  if (face.IsRotated()) {
    painter->save();
    painter->translate(dotX, dotY);
    painter->rotate(-face.Degrees());
    shaped.Draw(*painter, QPointF(0, face.Ascent()));
    painter->restore();
  } else {
    shaped.Draw(*painter, QPointF(dotX, dotY + face.Ascent()));
  }
  Drawn(with.clip.box);
}

}  // namespace coregui
