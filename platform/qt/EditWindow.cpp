#include "platform/qt/EditWindow.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>

#include "platform/CEdit.h"
#include "platform/Clipboard.h"
#include "platform/System.h"
#include "platform/WindowRef.h"
#include "platform/qt/Transient.h"

namespace coregui {

bool EditWindow::ReadText(CString& text) const {
  if (GetWidget() == nullptr) return false;
  text = FromQt(Text());
  return true;
}

void EditWindow::NoteChange() {
  Notify(EN_CHANGE);
}

UINT EditWindow::DialogCode(UINT key) const {
  const bool breaks = key == VK_RETURN && (Window().GetStyle() & ES_WANTRETURN) != 0;
  return DLGC_WANTARROWS | DLGC_WANTCHARS | (breaks ? DLGC_WANTALLKEYS : 0);
}

UINT EditWindow::CommandOfCharacter(WPARAM character) {
  switch (character) {
    case 3:
      return WM_COPY;
    case 22:
      return WM_PASTE;
    case 24:
      return WM_CUT;
    case 26:
      return WM_UNDO;
    default:
      return WM_NULL;
  }
}

UINT EditWindow::CommandOfKey(WPARAM key) {
  const bool shift = GetKeyState(VK_SHIFT) < 0;
  const bool control = GetKeyState(VK_CONTROL) < 0;
  if (key == VK_INSERT && shift != control) return shift ? WM_PASTE : WM_COPY;
  return key == VK_DELETE && shift && !control ? WM_CUT : WM_NULL;
}

bool EditWindow::EditCommand(UINT message) {
  const bool writes = message != WM_COPY;
  if (writes && IsReadOnly()) return true;
  switch (message) {
    case WM_CUT:
      Cut();
      return true;
    case WM_COPY:
      Copy();
      return true;
    case WM_PASTE:
      Paste();
      return true;
    case WM_CLEAR:
      if (SelectionStart() != SelectionEnd()) Insert(QString());
      return true;
    case WM_UNDO:
      Undo();
      return true;
    default:
      return false;
  }
}

bool EditWindow::DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  if (GetWidget() == nullptr) return false;
  result = 0;
  if ((message >= WM_CUT && message <= WM_UNDO) && EditCommand(message)) {
    result = 1;
    return true;
  }
  const UINT command = message == WM_CHAR      ? CommandOfCharacter(wParam)
                       : message == WM_KEYDOWN ? CommandOfKey(wParam)
                                               : static_cast<UINT>(WM_NULL);
  if (command != WM_NULL) {
    Window().SendMessage(command);
    return true;
  }
  if (message == WM_CONTEXTMENU) {
    ShowMenu(CPoint::FromLParam(lParam));
    return true;
  }
  if (message == WM_MBUTTONUP) {  // the toolkit's own way in asks nobody
    TypeMarkedText(CPoint::FromLParam(lParam));
    return true;
  }
  const WindowRef window(&Window());
  const bool done = ControlWindow::DefaultMessage(message, wParam, lParam, result);
  const bool alive = window && window.Get()->State().native.get() == this;
  if ((message == WM_SETFOCUS || message == WM_KILLFOCUS) && alive) {
    Notify(message == WM_SETFOCUS ? EN_SETFOCUS : EN_KILLFOCUS);
  }
  return done;
}

void EditWindow::ShowMenu(CPoint screen) {
  struct Row {
    const char* text;  ///< as the toolkit translates it
    UINT message;      ///< WM_NULL: select all
    bool enabled;
  };
  CString clipboard;
  const bool writes = !IsReadOnly();
  const bool selected = SelectionStart() != SelectionEnd();
  const Row rows[] = {{"&Undo", WM_UNDO, writes && CanUndo()},
                      {"Cu&t", WM_CUT, writes && selected},
                      {"&Copy", WM_COPY, selected},
                      {"&Paste", WM_PASTE, writes && GetClipboardText(clipboard)},
                      {"Delete", WM_CLEAR, writes && selected},
                      {"Select All", WM_NULL, !Text().isEmpty()}};
  const WindowRef window(&Window());
  const Transient<QMenu> menu(&Window());
  for (const Row& row : rows) {
    QAction* action = menu->addAction(QCoreApplication::translate("QLineEdit", row.text));
    action->setData(row.message);
    action->setEnabled(row.enabled);
    if (row.message == WM_UNDO || row.message == WM_CLEAR) menu->addSeparator();
  }
  const bool byKey = screen == CPoint(-1, -1);
  const QAction* chosen =
      menu->exec(byKey ? GetWidget()->mapToGlobal(GetWidget()->rect().center()) : QPoint(screen.x, screen.y));
  if (chosen == nullptr || !window || !Window().HasWindow()) return;
  const UINT message = chosen->data().toUInt();
  if (message == WM_NULL) {
    Select(0, static_cast<int>(Text().size()));
  } else {
    Window().SendMessage(message);
  }
}

void EditWindow::Type(const std::wstring& text) {
  const WindowRef window(&Window());
  const bool breaks = (Window().GetStyle() & ES_MULTILINE) != 0;
  for (const wchar_t character : text) {
    if (!window || !Window().HasWindow()) return;
    if (character >= L' ' || character == L'\t') {
      Window().SendMessage(WM_CHAR, static_cast<WPARAM>(character), 1);
    } else if (character == L'\n' && breaks) {
      Window().SendMessage(WM_CHAR, L'\r', 1);
    }
  }
}

/// Desktops of X11 type what is marked in any window where the middle button is clicked. It is typed when the
/// click is over: the widget takes no characters in the midst of it.
void EditWindow::TypeMarkedText(CPoint at) {
  const QClipboard& clipboard = *QApplication::clipboard();
  if (IsReadOnly() || !clipboard.supportsSelection()) return;
  PlaceCaret(QPoint(at.x, at.y));
  const auto type = [this, text = clipboard.text(QClipboard::Selection).toStdWString()] { Type(text); };
  QMetaObject::invokeMethod(this, type, Qt::QueuedConnection);
}

bool EditWindow::FilterOther(QWidget& /*receiver*/, QEvent& event) {
  if (event.type() != QEvent::Drop || IsReadOnly()) return false;
  auto& drop = static_cast<QDropEvent&>(event);
  if (!drop.mimeData()->hasText()) return false;
  PlaceCaret(drop.position().toPoint());
  drop.acceptProposedAction();
  Type(drop.mimeData()->text().toStdWString());
  return true;
}

}  // namespace coregui
