#pragma once

#include <memory>
#include <vector>

#include "coregui/coregui.h"

namespace gallery {

/// Pictures with captions, set in rows on one sheet.
class PictureSheet {
 public:
  explicit PictureSheet(int width) : m_width(width) {}

  void Add(std::unique_ptr<CBitmap> picture, const CString& caption);
  int GetCount() const { return static_cast<int>(m_pictures.size()); }
  /// Writes the sheet as PNG. False when it cannot be drawn or written.
  bool Write(CWnd& like, const CString& path) const;

 private:
  struct Picture {
    std::unique_ptr<CBitmap> bitmap;
    CString caption;
  };
  /// Where each picture stands, caption above it; `height` of the sheet.
  std::vector<CPoint> Places(int& height) const;

  int m_width;
  std::vector<Picture> m_pictures;
};

}  // namespace gallery
