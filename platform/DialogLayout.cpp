#include "platform/DialogLayout.h"

#include <algorithm>
#include <numeric>

#include "platform/CDC.h"
#include "platform/System.h"

namespace coregui {
namespace {

constexpr int kMargin = 11;
constexpr int kSpacing = 7;
constexpr int kButtonWidth = 80;
constexpr int kButtonHeight = 25;

CRect Scaled(int left, int top, int width, int height) {
  const auto edge = [](int at) { return at == 0 ? 0 : ScaleByDpi(at); };
  return {edge(left), edge(top), edge(left + width), edge(top + height)};
}

}  // namespace

DialogLayout::DialogLayout(int width) : m_width(width), m_top(kMargin) {}

CRect DialogLayout::Row(int height) {
  return Columns(height, {0}).front();
}

CRect DialogLayout::TextRow(CWnd& window, const CString& text, int least) {
  constexpr int kLine = 16;
  constexpr int kMostLines = 20;
  const int width = std::max(1, ScaleByDpi(m_width));
  CClientDC dc(&window);
  CRect wanted(0, 0, width, 0);
  dc.DrawText(text, text.GetLength(), &wanted, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
  // A path has no blanks and is measured in one line, yet wrapped behind its separators.
  const int lines = (wanted.Width() + width - 1) / width;
  const int height = wanted.Height() * std::max(1, lines) * kLine / std::max(1, ScaleByDpi(kLine)) + 2;
  return Row(std::clamp(height, least, std::max(least, kMostLines * kLine)));
}

std::vector<CRect> DialogLayout::Columns(int height, std::initializer_list<int> widths) {
  const int fixed = std::accumulate(widths.begin(), widths.end(), 0);
  const auto shares = static_cast<int>(std::count(widths.begin(), widths.end(), 0));
  const int gaps = kSpacing * (static_cast<int>(widths.size()) - 1);
  int rest = std::max(0, m_width - fixed - gaps);
  int open = shares;
  std::vector<CRect> columns;
  int left = kMargin;
  for (int width : widths) {
    if (width == 0) {
      width = rest / open;
      rest -= width;
      --open;
    }
    columns.push_back(Scaled(left, m_top, width, height));
    left += width + kSpacing;
  }
  m_top += height + kSpacing;
  return columns;
}

std::vector<CRect> DialogLayout::Buttons(int count) {
  std::vector<CRect> buttons;
  int left = kMargin + m_width - count * kButtonWidth - (count - 1) * kSpacing;
  for (int i = 0; i < count; ++i) {
    buttons.push_back(Scaled(left, m_top, kButtonWidth, kButtonHeight));
    left += kButtonWidth + kSpacing;
  }
  m_top += kButtonHeight + kSpacing;
  return buttons;
}

void DialogLayout::Gap(int height) {
  m_top += height;
}

CSize DialogLayout::Size() const {
  const int bottom = m_top == kMargin ? kMargin : m_top - kSpacing;
  return Scaled(0, 0, m_width + 2 * kMargin, bottom + kMargin).Size();
}

}  // namespace coregui
