#include "grid/celltypes/CGridCellType.h"
#include "platform/CBitmap.h"

// --- Device-independent bitmap rules

int CGridCellType::DIBNumColors(int bitsPerPixel, int used) {
  if (used != 0) return used;
  return bitsPerPixel == 1 || bitsPerPixel == 4 || bitsPerPixel == 8 ? 1 << bitsPerPixel : 0;
}

int CGridCellType::PaletteSize(int headerSize, int bitsPerPixel, int used) {
  constexpr int kOlderHeader = 12;
  return DIBNumColors(bitsPerPixel, used) * (headerSize == kOlderHeader ? 3 : 4);
}

std::vector<BYTE> CGridCellType::BitmapToDIB(const CBitmap& bitmap) {
  constexpr int kHeader = 40;
  constexpr int kBytes = 4;
  const CSize size = bitmap.GetSize();
  if (size.cx <= 0 || size.cy <= 0) return {};
  std::vector<BYTE> dib;
  dib.reserve(kHeader + static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy) * kBytes);
  const auto put = [&dib](DWORD value, int bytes) {
    for (int i = 0; i < bytes; ++i) dib.push_back(static_cast<BYTE>(value >> (8 * i)));
  };
  put(kHeader, 4);
  put(static_cast<DWORD>(size.cx), 4);
  put(static_cast<DWORD>(size.cy), 4);
  put(1, 2);                              // planes
  put(8 * kBytes, 2);                     // bits per pixel
  for (int i = 0; i < 6; ++i) put(0, 4);  // uncompressed; sizes and colours follow from the rest
  for (int y = size.cy - 1; y >= 0; --y) {
    for (int x = 0; x < size.cx; ++x) {
      const COLORREF dot = bitmap.GetPixel(x, y);
      put(static_cast<DWORD>(GetBValue(dot) | GetGValue(dot) << 8 | GetRValue(dot) << 16), kBytes);
    }
  }
  return dib;
}
