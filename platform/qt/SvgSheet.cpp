#include "platform/qt/SvgSheet.h"

#include <QRegularExpression>
#include <utility>

#include "platform/qt/PageModule.h"

namespace coregui {

namespace {

/// What stands inside the outermost element, without the groups in which nothing was drawn.
QByteArray BodyOf(const QByteArray& document) {
  static const QRegularExpression idle("<g [^>]*>\\s*</g>\\s*");
  const qsizetype start = document.indexOf("<defs>");
  const qsizetype end = document.lastIndexOf("</svg>");
  QString body = QString::fromUtf8(document.mid(start, end - start));
  body.remove(idle);
  return body.toUtf8();
}

QByteArray ClipPath(int number, const QRegion& clip) {
  QByteArray path = "<clipPath id=\"clip" + QByteArray::number(number) + "\">";
  for (const QRect& rect : clip) {
    path += QStringLiteral("<rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\"/>")
                .arg(rect.x())
                .arg(rect.y())
                .arg(rect.width())
                .arg(rect.height())
                .toLatin1();
  }
  return path + "</clipPath>\n";
}

}  // namespace

SvgSheet::SvgSheet(const QString& path, const PrintPage& page, CSize dots, QString title)
    : m_file(path), m_page(page), m_all(0, 0, dots.cx, dots.cy), m_title(std::move(title)) {
  if (LoadPageDevices() != nullptr) m_file.open(QIODevice::WriteOnly);
}

QPainter* SvgSheet::PainterFor(const QRegion& clip) {
  const QRegion seen = clip & m_all;
  if (m_painter == nullptr || m_parts.back().clip != seen) {
    EndPart();
    BeginPart(seen);
  }
  return m_painter.get();
}

void SvgSheet::BeginPart(const QRegion& clip) {
  m_parts.push_back({clip, {}});
  m_buffer.close();
  m_buffer.setData({});
  m_generator = LoadPageDevices()->MakeSvg(m_buffer, m_all, m_page.dotsPerInch);
  m_painter = std::make_unique<QPainter>(m_generator.get());
}

void SvgSheet::EndPart() {
  if (m_painter == nullptr) {
    return;
  }
  m_painter->end();
  m_painter.reset();
  m_generator.reset();
  m_parts.back().body = BodyOf(m_buffer.data());
}

QByteArray SvgSheet::Document() const {
  QByteArray text =
      QStringLiteral(
          "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
          "<svg width=\"%1mm\" height=\"%2mm\" viewBox=\"0 0 %3 %4\" version=\"1.1\"\n"
          " xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\">\n"
          "<title>%5</title>\n")
          .arg(m_page.width)
          .arg(m_page.height)
          .arg(m_all.width())
          .arg(m_all.height())
          .arg(m_title.toHtmlEscaped())
          .toUtf8();
  int clips = 0;
  for (const Part& part : m_parts) {
    if (part.clip == m_all) {
      text += "<g>\n" + part.body + "</g>\n";
    } else {
      ++clips;
      text += ClipPath(clips, part.clip) + "<g clip-path=\"url(#clip" + QByteArray::number(clips) + ")\">\n" +
              part.body + "</g>\n";
    }
  }
  return text + "</svg>\n";
}

bool SvgSheet::Finish() {
  EndPart();
  const QByteArray document = Document();
  const bool good = m_file.isOpen() && m_file.write(document) == document.size() && m_file.flush();
  m_file.close();
  return good;
}

}  // namespace coregui
