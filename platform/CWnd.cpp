#include "platform/CWnd.h"

#include <algorithm>

#include "platform/CWinApp.h"
#include "platform/MessageQueue.h"
#include "platform/System.h"
#include "platform/WindowFocus.h"
#include "platform/WindowRegistry.h"
#include "platform/WindowState.h"

using coregui::WindowRef;
using coregui::WindowState;

namespace {

/// The message that a handler is answering, for Default(); innermost last.
struct Frame {
  Frame* outer;
  CWnd* window;  ///< null once it is destroyed
  UINT message;
  WPARAM wParam;
  LPARAM lParam;
};
Frame* innermost = nullptr;

class FrameScope {
 public:
  FrameScope(CWnd* window, UINT message, WPARAM wParam, LPARAM lParam)
      : m_frame{innermost, window, message, wParam, lParam} {
    innermost = &m_frame;
  }
  ~FrameScope() { innermost = m_frame.outer; }
  FrameScope(const FrameScope&) = delete;
  FrameScope& operator=(const FrameScope&) = delete;

 private:
  Frame m_frame;
};

unsigned NextSequence() {
  static unsigned last = 0;
  return ++last;
}

}  // namespace

namespace coregui {

WindowRef::WindowRef(CWnd* window) {
  if (window != nullptr) {
    m_life = window->State().life;
  }
}

}  // namespace coregui

CWnd::CWnd() : m_state(std::make_unique<WindowState>(this)) {}

CWnd::~CWnd() {
  CWnd::DestroyWindow();
  if (HasWindow()) {
    // A handler of its own WM_DESTROY, or of a child's, deletes the object: the rest of the end is done here.
    DestroyOwned();
    DestroyChildren();
    coregui::ForgetWindow(*this);
    ReleaseNative();
  }
  for (Frame* frame = innermost; frame != nullptr; frame = frame->outer) {
    if (frame->window == this) frame->window = nullptr;
  }
  for (CWnd* child : m_state->family.children) {
    child->m_state->family.parent = nullptr;
  }
  m_state->family.children.clear();
  CWnd::SetParent(nullptr);
  coregui::FocusState& focus = coregui::Focus();
  for (WindowRef* held : {&focus.focus, &focus.capture, &focus.active}) {
    if (held->Get() == this) *held = WindowRef();
  }
  m_state->life.reset();
}

BOOL CWnd::Create(const wchar_t* className, const wchar_t* name, DWORD style, const RECT& rect, CWnd* parent,
                  UINT id) {
  return CreateEx(0, className, name, style, rect, parent, id);
}

BOOL CWnd::CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* name, DWORD style,
                    const RECT& rect, CWnd* parent, UINT id) {
  if (HasWindow()) {
    return FALSE;
  }
  CREATESTRUCT create;
  create.name = name == nullptr ? L"" : name;
  create.className = className == nullptr ? L"" : className;
  create.style = style;
  create.exStyle = exStyle;
  create.x = rect.left;
  create.y = rect.top;
  create.width = std::max(0, rect.right - rect.left);
  create.height = std::max(0, rect.bottom - rect.top);
  create.parent = parent == nullptr ? nullptr : parent->GetSafeHwnd();
  create.id = id;
  if (PreCreateWindow(create) == FALSE) {
    return FALSE;
  }
  CWnd* family = FromHandle(create.parent);
  if ((create.style & WS_CHILD) != 0 && family == nullptr) {
    return FALSE;
  }
  return CreateNative(create, family);
}

BOOL CWnd::CreateNative(const CREATESTRUCT& create, CWnd* family) {
  WindowState& state = *m_state;
  const bool isChild = (create.style & WS_CHILD) != 0;
  SetParent(isChild ? family : nullptr);
  state.family.owner = WindowRef(isChild || family == nullptr ? nullptr : family->GetTopLevelParent());
  state.family.id = isChild ? create.id : 0;
  state.family.sequence = NextSequence();
  state.look.text = create.name;
  state.look.style = create.style & ~WS_VISIBLE;
  state.look.exStyle = create.exStyle;
  state.look.rect = CRect(CPoint(create.x, create.y), CSize(create.width, create.height));
  state.handle = coregui::RegisterWindow(this);
  state.native = MakeNative(create);
  if (state.native == nullptr) {
    coregui::UnregisterWindow(state.handle);
    state.handle = nullptr;
    SetParent(nullptr);
    return FALSE;
  }
  if (state.look.font != nullptr) state.native->SetFont(state.look.font);
  const WindowRef self(this);
  InvalidateRect(nullptr);
  if (SendMessage(WM_CREATE, 0, reinterpret_cast<LPARAM>(&create)) == -1) {
    if (self) CWnd::DestroyWindow();
    return FALSE;
  }
  if (!self) return FALSE;
  coregui::DestroyBeforeExit(*this);
  return FinishCreation((create.style & WS_VISIBLE) != 0);
}

BOOL CWnd::FinishCreation(bool show) {
  const WindowRef self(this);
  for (const auto& [id, milliseconds] : m_state->timers) {
    if (m_state->native != nullptr) m_state->native->StartTimer(id, milliseconds);
  }
  const CSize size = GetClientRectangle().Size();
  SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(size.cx, size.cy));
  if (self && HasWindow()) {
    const WindowState::Look& look = m_state->look;
    SendMessage(WM_MOVE, 0, MAKELPARAM(look.rect.left + look.border, look.rect.top + look.border));
  }
  if (show && self && HasWindow()) {
    ShowWindow(SW_SHOW);
  }
  return self && HasWindow() ? TRUE : FALSE;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& /*create*/) {
  return TRUE;
}

std::unique_ptr<coregui::NativeWindow> CWnd::MakeNative(const CREATESTRUCT& create) {
  return coregui::MakePaintedWindow(*this, create);
}

BOOL CWnd::DestroyWindow() {
  WindowState& state = *m_state;
  if (state.handle == nullptr || state.destroying) {
    return FALSE;
  }
  const WindowRef self(this);
  state.destroying = true;
  SendMessage(WM_DESTROY);
  if (!self) {
    return TRUE;
  }
  DestroyOwned();
  if (self) DestroyChildren();
  if (self) coregui::ForgetWindow(*this);
  if (self) SendMessage(WM_NCDESTROY);
  if (self) ReleaseNative();
  return TRUE;
}

void CWnd::DestroyOwned() {
  if (GetParent() != nullptr) {
    return;  // only a top-level window owns others
  }
  const CWnd* self = this;
  for (const WindowRef& window : coregui::RegisteredWindows()) {
    CWnd* alive = window.Get();
    if (alive != nullptr && alive->m_state->family.owner.Get() == self) alive->DestroyWindow();
  }
}

void CWnd::DestroyChildren() {
  const WindowRef self(this);
  // A child's handler may destroy siblings or this window's object.
  while (self && !m_state->family.children.empty()) {
    CWnd* child = m_state->family.children.back();
    const WindowRef childRef(child);
    child->DestroyWindow();
    if (self && childRef && child->GetParent() == this) {
      child->SetParent(nullptr);
    }
  }
}

void CWnd::ReleaseNative() {
  WindowState& state = *m_state;
  coregui::UnregisterWindow(state.handle);
  state.handle = nullptr;
  state.look.style &= ~WS_VISIBLE;
  state.timers.clear();
  state.update.region.Clear();
  state.tracksLeave = false;
  const std::unique_ptr<coregui::NativeWindow> native = std::move(state.native);
  SetParent(nullptr);
  state.family.owner = WindowRef();
  state.destroying = false;
  CWinApp::NoteDestroyed(*this);
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent) {
  CWnd* existing = parent == nullptr ? nullptr : parent->GetDlgItem(static_cast<int>(id));
  if (existing == nullptr || existing == this || HasWindow()) {
    return FALSE;
  }
  const CString text = existing->GetWindowTextString();
  const CRect rect = existing->m_state->look.rect;
  const DWORD style = existing->GetStyle();
  const unsigned sequence = existing->m_state->family.sequence;
  const bool enabled = existing->IsWindowEnabled() != FALSE;
  existing->DestroyWindow();
  if (Create(L"", text, style, rect, parent, id) == FALSE) {
    return FALSE;
  }
  m_state->family.sequence = sequence;
  EnableWindow(enabled ? TRUE : FALSE);
  return TRUE;
}

HWND CWnd::GetSafeHwnd() const {
  return m_state->handle;
}

CWnd* CWnd::FromHandle(HWND window) {
  return coregui::FindWindowOf(window);
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  return WindowProc(message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  coregui::QueueMessage(*this, message, wParam, lParam);
  return TRUE;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const coregui::MessageRow* row = GetMessageTable().Find(message, wParam)) {
    const FrameScope frame(this, message, wParam, lParam);
    return row->thunk(*row, *this, wParam, lParam);
  }
  return DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::Default() {
  const Frame* frame = innermost;
  if (frame == nullptr || frame->window != this) {
    return 0;
  }
  return DefWindowProc(frame->message, frame->wParam, frame->lParam);
}

BOOL CWnd::PreTranslateMessage(MSG* /*message*/) {
  return FALSE;
}

const coregui::MessageTable& CWnd::GetMessageTable() const {
  return Messages();
}

const coregui::MessageTable& CWnd::Messages() {
  static const coregui::MessageTable table;
  return table;
}

LRESULT CWnd::NotifyParent(int code) {
  CWnd* parent = GetParent();
  return parent == nullptr ? 0
                           : parent->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), code),
                                                 reinterpret_cast<LPARAM>(GetSafeHwnd()));
}

UINT CWnd::SetTimer(UINT id, UINT milliseconds) {
  if (id == 0) {
    return 0;
  }
  m_state->timers[id] = milliseconds;
  if (m_state->native != nullptr) m_state->native->StartTimer(id, milliseconds);
  return id;
}

BOOL CWnd::KillTimer(UINT id) {
  if (m_state->timers.erase(id) == 0) {
    return FALSE;
  }
  if (m_state->native != nullptr) m_state->native->StopTimer(id);
  return TRUE;
}

CScrollBar* CWnd::GetScrollBarCtrl(int /*bar*/) const {
  return nullptr;
}

bool IsWindow(HWND window) {
  return coregui::FindWindowOf(window) != nullptr;
}

LRESULT SendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  CWnd* target = CWnd::FromHandle(window);
  return target == nullptr ? 0 : target->SendMessage(message, wParam, lParam);
}

BOOL PostMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  CWnd* target = CWnd::FromHandle(window);
  return target == nullptr ? FALSE : target->PostMessage(message, wParam, lParam);
}
