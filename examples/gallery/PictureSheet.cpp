#include "PictureSheet.h"

#include <algorithm>

namespace gallery {

namespace {

constexpr int kGap = 16;
constexpr int kCaption = 22;

}  // namespace

void PictureSheet::Add(std::unique_ptr<CBitmap> picture, const CString& caption) {
  m_pictures.push_back({std::move(picture), caption});
}

std::vector<CPoint> PictureSheet::Places(int& height) const {
  std::vector<CPoint> places;
  int left = kGap;
  int top = kGap;
  int row = 0;
  for (const Picture& picture : m_pictures) {
    const CSize size = picture.bitmap->GetSize();
    if (left > kGap && left + size.cx + kGap > m_width) {
      left = kGap;
      top += row + kGap;
      row = 0;
    }
    places.emplace_back(left, top + kCaption);
    left += size.cx + kGap;
    row = std::max<int>(row, size.cy + kCaption);
  }
  height = top + row + kGap;
  return places;
}

bool PictureSheet::Write(CWnd& like, const CString& path) const {
  int height = 0;
  const std::vector<CPoint> places = Places(height);
  const CClientDC client(&like);
  CBitmap sheet;
  if (!sheet.CreateCompatibleBitmap(&client, m_width, height)) return false;
  {
    CMemoryDC dc(&client, &sheet);
    dc.FillSolidRect(CRect(0, 0, m_width, height), IsDarkTheme() ? RGB(24, 24, 24) : RGB(214, 218, 224));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(IsDarkTheme() ? RGB(220, 220, 220) : RGB(40, 40, 40));
    for (std::size_t i = 0; i < places.size(); ++i) {
      const Picture& picture = m_pictures[i];
      dc.TextOut(places[i].x, places[i].y - kCaption + 3, picture.caption, picture.caption.GetLength());
      const CSize size = picture.bitmap->GetSize();
      dc.StretchBitmap(*picture.bitmap, CRect(places[i], size));
      dc.FrameRect(CRect(places[i], size), GetSysColor(COLOR_BTNSHADOW));
    }
  }
  return sheet.SaveFile(path) != FALSE;
}

}  // namespace gallery
