#include "platform/CScrollBar.h"

#include <QScrollBar>
#include <algorithm>
#include <cstdint>

#include "platform/qt/Application.h"
#include "platform/qt/ControlWindow.h"
#include "platform/qt/ScrollCodes.h"

/// The native side of a scroll bar: turns the toolkit's actions into messages and lets only the program move
/// it.
class CScrollBarWindow : public coregui::ControlWindow {
 public:
  CScrollBarWindow(CScrollBar& window, const CREATESTRUCT& create)
      : ControlWindow(
            window, create,
            std::make_unique<QScrollBar>((create.style & SBS_VERT) != 0 ? Qt::Vertical : Qt::Horizontal)),
        m_bar(window) {
    Bar().setContextMenuPolicy(Qt::NoContextMenu);
    connect(&Bar(), &QAbstractSlider::actionTriggered, this, [this](int action) { NoteAction(action); });
    connect(&Bar(), &QAbstractSlider::sliderReleased, this, [this] { NoteRelease(); });
  }

  /// Range, page and position of the toolkit's bar; the thumb stays where a person holds it.
  void Reflect(const SCROLLINFO& info) {
    const int page = static_cast<int>(std::min<std::uint32_t>(info.nPage, INT32_MAX));
    const std::int64_t last = std::int64_t{info.nMax} - std::max(page - 1, 0);
    Bar().setRange(info.nMin, static_cast<int>(std::max<std::int64_t>(last, info.nMin)));
    Bar().setPageStep(std::max(page, 1));
    const int held = Bar().sliderPosition();
    Bar().setValue(info.nPos);
    if (Bar().isSliderDown()) Bar().setSliderPosition(held);
  }

  bool DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override {
    if (message == WM_KEYDOWN && CodeOfKey(static_cast<UINT>(wParam)) >= 0) {
      Step(CodeOfKey(static_cast<UINT>(wParam)), 1);
      return true;
    }
    if (message != WM_MOUSEWHEEL && message != WM_MOUSEHWHEEL) {
      return ControlWindow::DefaultMessage(message, wParam, lParam, result);
    }
    constexpr int kLinesPerNotch = 3;
    Step(static_cast<short>(HIWORD(wParam)) > 0 ? SB_LINEUP : SB_LINEDOWN, kLinesPerNotch);
    result = 1;
    return true;
  }

 private:
  QScrollBar& Bar() const { return static_cast<QScrollBar&>(*GetWidget()); }

  /// The toolkit's own keys differ between the directions.
  static int CodeOfKey(UINT key) {
    switch (key) {
      case VK_LEFT:
      case VK_UP:
        return SB_LINEUP;
      case VK_RIGHT:
      case VK_DOWN:
        return SB_LINEDOWN;
      case VK_PRIOR:
        return SB_PAGEUP;
      case VK_NEXT:
        return SB_PAGEDOWN;
      case VK_HOME:
        return SB_TOP;
      case VK_END:
        return SB_BOTTOM;
      default:
        return -1;
    }
  }

  /// Asks for one movement several times, and says that it is over.
  void Step(int code, int times) {
    const QPointer<QObject> self(this);
    for (int i = 0; i < times && self; ++i) Tell(code, 0);
    if (self) Tell(SB_ENDSCROLL, 0);
  }

  void NoteAction(int action) {
    const int code = coregui::ScrollCodeOf(action);
    const QPointer<QObject> self(this);
    if (code == SB_THUMBTRACK) {
      if (Bar().isSliderDown()) {
        m_bar.m_info.nTrackPos = Bar().sliderPosition();
        Tell(code, m_bar.m_info.nTrackPos);
      }
    } else {
      Bar().setSliderPosition(m_bar.m_info.nPos);
      Step(code, 1);
    }
    // The toolkit now takes the slider's position over as the value: it must be ours.
    if (self && GetWidget() != nullptr && !Bar().isSliderDown()) Bar().setSliderPosition(m_bar.m_info.nPos);
  }

  void NoteRelease() {
    const QPointer<QObject> self(this);
    Tell(SB_THUMBPOSITION, m_bar.m_info.nTrackPos);
    if (self) Tell(SB_ENDSCROLL, 0);
    if (!self || GetWidget() == nullptr) return;
    m_bar.m_info.nTrackPos = m_bar.m_info.nPos;
    Reflect(m_bar.m_info);
    Bar().setSliderPosition(m_bar.m_info.nPos);
  }

  void Tell(int code, int position) {
    coregui::TellScroll(m_bar, (m_bar.GetStyle() & SBS_VERT) != 0, code, position);
  }

  CScrollBar& m_bar;
};

BOOL CScrollBar::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
  return Create(L"SCROLLBAR", L"", style, rect, parent, id);
}

std::unique_ptr<coregui::NativeWindow> CScrollBar::MakeNative(const CREATESTRUCT& create) {
  coregui::EnsureApplication();
  auto native = std::make_unique<CScrollBarWindow>(*this, create);
  native->Reflect(m_info);
  return native;
}

void CScrollBar::Apply() {
  m_info.nMax = std::max(m_info.nMax, m_info.nMin);
  const std::int64_t page = std::max<std::int64_t>(m_info.nPage, 1);
  const std::int64_t last = std::max<std::int64_t>(m_info.nMax - page + 1, m_info.nMin);
  m_info.nPos = static_cast<int>(std::clamp<std::int64_t>(m_info.nPos, m_info.nMin, last));
  auto* native = coregui::NativeOf<CScrollBarWindow>(*this);
  if (native != nullptr) native->Reflect(m_info);
}

void CScrollBar::SetScrollInfo(const SCROLLINFO& info, BOOL /*redraw*/) {
  if ((info.fMask & SIF_RANGE) != 0) {
    m_info.nMin = info.nMin;
    m_info.nMax = info.nMax;
  }
  if ((info.fMask & SIF_PAGE) != 0) m_info.nPage = info.nPage;
  if ((info.fMask & SIF_POS) != 0) m_info.nPos = info.nPos;
  Apply();
}

void CScrollBar::GetScrollInfo(SCROLLINFO* info) const {
  *info = m_info;
}

int CScrollBar::SetScrollPos(int position, BOOL /*redraw*/) {
  const int old = m_info.nPos;
  m_info.nPos = position;
  Apply();
  return old;
}

int CScrollBar::GetScrollPos() const {
  return m_info.nPos;
}

void CScrollBar::SetScrollRange(int minimum, int maximum, BOOL /*redraw*/) {
  m_info.nMin = minimum;
  m_info.nMax = maximum;
  Apply();
}
