#include "views/CGUIBaseView.h"

// The keys of a view and the zoom box that one of them starts.

namespace {

constexpr COLORREF kBoxColour = 0xFEFEFE;
constexpr UINT kEscape = 27;

}  // namespace

const CGUIBaseView::KeyAction CGUIBaseView::kKeyActions[] = {
    {'m', &CGUIBaseView::KeyZoomIn},  {'d', &CGUIBaseView::KeyZoomOut},  {'r', &CGUIBaseView::KeyFit},
    {'s', &CGUIBaseView::KeyRepaint}, {'w', &CGUIBaseView::KeyRecentre}, {'z', &CGUIBaseView::KeyZoomBox},
};

void CGUIBaseView::OnChar(UINT character, UINT /*repeat*/, UINT /*flags*/) {
  ProcessKeys(character);
}

void CGUIBaseView::ProcessKeys(UINT character) {
  const bool control = GetKeyState(VK_CONTROL) < 0;
  const int kept = m_keyFlags & ~(KEYFLAG_SHIFT | KEYFLAG_CTRL);
  m_keyFlags = static_cast<char>(kept | (GetKeyState(VK_SHIFT) < 0 ? KEYFLAG_SHIFT : 0) |
                                 (control ? KEYFLAG_CTRL : 0));
  const UINT key = control ? character + 64 : character;
  m_lastKey = static_cast<char>(key);
  m_lastEvent = EVENT_KEY;
  if (!m_initialised) {
    return;
  }
  const Life life = m_life;
  m_inKey = true;
  const UINT lower = key >= 'A' && key <= 'Z' ? key + ('a' - 'A') : key;
  const KeyAction* action = nullptr;
  for (const KeyAction& row : kKeyActions) {
    if (static_cast<UINT>(row.key) == lower) action = &row;
  }
  if (m_zoomBoxMode) {
    if (key == kEscape) {
      ZoomBox(ZOOM_CANCEL);
    } else if (key == VK_SPACE) {
      ZoomBox(ZOOM_KEY);
    }
  } else if (action == nullptr) {
    Tell(key == kEscape ? EVENT_ESCAPE : EVENT_KEY);
  } else if (!m_isSlave) {
    (this->*action->act)();
  }
  if (!life.expired()) {
    m_inKey = false;
  }
}

void CGUIBaseView::KeyFit() {
  NoteForHistory();
  Redraw();
}

void CGUIBaseView::KeyZoomBox() {
  m_zoomBoxMode = true;
  if (m_pan.IsActive()) {
    m_pan.Stop();  // its release would go to the box
    ReleaseCapture();
  }
  Tell(EVENT_ZOOM_MODE);
}

void CGUIBaseView::EscapePressed() {
  const Life life = m_life;
  m_drawMode = R2_COPYPEN;
  if (m_zoomBoxMode) {
    ZoomBox(ZOOM_CANCEL);
  }
  if (!life.expired()) {
    Invalidate(TRUE);
  }
}

// --- The zoom box

int CGUIBaseView::ZoomBox(ZOOM_EVENT event) {
  const OverlayPause pause(*this);
  coregui::CZoomBox& box = coregui::CZoomBox::Shared();
  const CPoint at = m_mapping.UserToWindow(m_currentPos);
  switch (event) {
    case ZOOM_MOVE:
      box.Move(*this, at);
      break;
    case ZOOM_CLICK:
      box.Click(*this, at);
      break;
    case ZOOM_KEY:
      box.Key(*this, m_lastKey);
      break;
    case ZOOM_CANCEL:
      box.Cancel(*this);
      break;
  }
  return 1;
}

void CGUIBaseView::DrawBoxOutline(CPoint anchor, CPoint corner) {
  // What is still to be painted must come before the outline, or it would cover half of an exclusive-or.
  UpdateWindow();
  m_drawMode = R2_XORPEN;
  DrawRect(anchor, corner, kBoxColour);
  m_drawMode = R2_COPYPEN;
}

void CGUIBaseView::ReleaseFromBox() {
  if (GetCapture() == this) {
    ReleaseCapture();
  }
}

bool CGUIBaseView::ZoomToBox(CPoint anchor, CPoint corner) {
  const Life life = m_life;
  ZoomRect(FRect(m_mapping.WindowToUser(anchor), m_mapping.WindowToUser(corner)));
  return !life.expired();
}
