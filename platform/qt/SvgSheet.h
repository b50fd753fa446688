#pragma once

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QRegion>
#include <memory>
#include <vector>

#include "platform/CPrinterDC.h"

namespace coregui {

/// A page that becomes one SVG file, clipped as it is drawn. The toolkit's writer leaves clips out, so what
/// is drawn under each of them is written apart and put together in clipped groups at the end.
class SvgSheet {
 public:
  /// Begins the file, where the installation has the toolkit's writer; `dots` are the page's.
  SvgSheet(const QString& path, const PrintPage& page, CSize dots, QString title);
  bool IsOpen() const { return m_file.isOpen(); }
  /// The painter for what is clipped to a region of the page, until the next call.
  QPainter* PainterFor(const QRegion& clip);
  /// Completes the file; false when it could not be written.
  bool Finish();

 private:
  /// What was drawn under one clip after another.
  struct Part {
    QRegion clip;
    QByteArray body;
  };

  void BeginPart(const QRegion& clip);
  void EndPart();
  QByteArray Document() const;

  QFile m_file;
  PrintPage m_page;
  QRect m_all;  ///< the page in dots
  QString m_title;
  std::vector<Part> m_parts;  ///< the last one is open while there is a painter
  QBuffer m_buffer;
  std::unique_ptr<QPaintDevice> m_generator;
  std::unique_ptr<QPainter> m_painter;  ///< ends before the generator goes
};

}  // namespace coregui
