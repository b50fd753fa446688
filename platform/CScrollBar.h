#pragma once

#include "platform/CWnd.h"

// Which parts of a SCROLLINFO count.
inline constexpr UINT SIF_RANGE = 0x1;
inline constexpr UINT SIF_PAGE = 0x2;
inline constexpr UINT SIF_POS = 0x4;
inline constexpr UINT SIF_TRACKPOS = 0x10;
inline constexpr UINT SIF_ALL = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS;

/// Range, page and positions of a scroll bar. Positions run from nMin to nMax - max(nPage - 1, 0).
struct SCROLLINFO {
  UINT fMask = SIF_ALL;
  int nMin = 0;
  int nMax = 100;
  UINT nPage = 0;
  int nPos = 0;
  int nTrackPos = 0;  ///< where the person holds the thumb; read only
};

/// A scroll bar as a window of its own. SBS_VERT in the style makes it vertical.
///
/// It moves only when SetScrollPos or SetScrollInfo says so: what a person does is sent to the parent as
/// WM_HSCROLL or WM_VSCROLL with an SB_ code, and the parent answers by setting the position. While the thumb
/// is dragged (SB_THUMBTRACK) and when it is dropped (SB_THUMBPOSITION), the position is nTrackPos with all
/// its 32 bits; the message's own holds 16 of them. SB_ENDSCROLL ends each action of the mouse. Ranges up to
/// 0 .. 2^31 - 1 work.
class COREGUI_API CScrollBar : public CWnd {
 public:
  using CWnd::Create;
  BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

  /// Sets what the mask names; positions are brought into the range.
  void SetScrollInfo(const SCROLLINFO& info, BOOL redraw = TRUE);
  /// All of it, whatever the mask says.
  void GetScrollInfo(SCROLLINFO* info) const;
  /// Returns the old position.
  int SetScrollPos(int position, BOOL redraw = TRUE);
  int GetScrollPos() const;
  void SetScrollRange(int minimum, int maximum, BOOL redraw = TRUE);

 protected:
  std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create) override;

 private:
  void Apply();

  SCROLLINFO m_info;
  friend class CScrollBarWindow;
};
