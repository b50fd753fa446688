#pragma once

#include <vector>

#include "platform/CGdiObject.h"
#include "platform/CString.h"

class CDC;

/// A raster picture of 32-bit dots with alpha.
class COREGUI_API CBitmap : public CGdiObject {
 public:
  CBitmap();
  ~CBitmap() override;
  /// A bitmap for drawing on with CMemoryDC: `width` × `height` logical pixels, with the dots that they have
  /// from the corner of `like` on. False when a dimension is below 1 or memory is short; the bitmap is then
  /// empty.
  BOOL CreateCompatibleBitmap(const CDC* like, int width, int height);
  /// From rows of 0xAARRGGBB dots, top row first. `width` × `height` dots, `scale` to a logical pixel.
  BOOL CreateFromPixels(int width, int height, const std::vector<DWORD>& pixels, double scale = 1.0);
  /// Whether pixels have the same dots on the bitmap as in the context, so that what is copied to and fro
  /// stays as it was. Not at another scale, nor, between whole scales, for a window that was moved since.
  bool IsCompatible(const CDC& with) const;
  BOOL LoadFile(const wchar_t* path);
  BOOL SaveFile(const wchar_t* path) const;  ///< PNG
  void DeleteObject();
  bool IsCreated() const { return m_data != nullptr; }
  CSize GetSize() const;  ///< logical pixels; 0 × 0 when empty
  /// The colour of a dot in device dots; 0xFFFFFFFF outside.
  COLORREF GetPixel(int x, int y) const;
  const std::shared_ptr<coregui::BitmapData>& Data() const { return m_data; }

 private:
  friend class CDC;
  std::shared_ptr<coregui::BitmapData> m_data;
};
