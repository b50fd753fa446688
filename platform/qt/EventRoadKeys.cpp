#include <QInputMethodEvent>
#include <QKeyEvent>
#include <utility>

#include "platform/CWnd.h"
#include "platform/KeyState.h"
#include "platform/MessageQueue.h"
#include "platform/qt/EventRoad.h"
#include "platform/qt/KeyCodes.h"

// Keys and composed characters on their way to a window.

namespace coregui {
namespace {

constexpr LPARAM kFirstPress = 1;
constexpr LPARAM kHeldBefore = 0x40000000;
constexpr LPARAM kReleased = static_cast<LPARAM>(0xC0000001);

}  // namespace

bool EventRoad::KeyDown(const QKeyEvent& event) {
  const UINT key = VirtualKeyOf(event);
  NoteModifiers(event.modifiers());
  if (key != 0) NoteKeyState(key, true);
  m_event.accept();
  const std::wstring characters = CharactersOf(event);
  const bool system =
      (event.modifiers() & Qt::AltModifier) != 0 && (event.modifiers() & Qt::ControlModifier) == 0;
  bool translate = true;
  bool unused = false;
  if (key != 0) {
    const LPARAM detail = kFirstPress | (event.isAutoRepeat() ? kHeldBefore : 0);
    CWnd& window = m_window->Window();
    Send(window, system ? WM_SYSKEYDOWN : WM_KEYDOWN, key, detail, characters.empty(), &translate);
    unused = translate && IsAlive() && window.GetMessageTable().Find(WM_KEYDOWN, 0) == nullptr;
  }
  if (translate && !characters.empty() && IsAlive()) {
    Typed(characters);
    unused = unused && IsAlive() && m_window->Window().GetMessageTable().Find(WM_CHAR, 0) == nullptr;
  }
  if (unused && IsAlive() && !m_window->HasOwnBehaviour()) {
    IgnoreForHost();
  }
  return true;
}

bool EventRoad::Typed(const std::wstring& characters) {
  for (const wchar_t character : characters) {
    if (!IsAlive()) return true;
    // Focus may have moved with the key; the character goes where the key went.
    Send(m_window->Window(), WM_CHAR, static_cast<WPARAM>(character), kFirstPress, true);
  }
  return true;
}

bool EventRoad::KeyUp(const QKeyEvent& event) {
  const UINT key = VirtualKeyOf(event);
  NoteModifiers(event.modifiers());
  m_event.accept();
  if (event.isAutoRepeat()) {
    return true;  // a held key is pressed again and again, and released once
  }
  if (key != 0) {
    NoteKeyState(key, false);
    Send(m_window->Window(), WM_KEYUP, key, kReleased, true);
  }
  return true;
}

bool EventRoad::InputMethod(QInputMethodEvent& event) {
  const std::wstring committed = event.commitString().toStdWString();
  if (!m_window->HasOwnBehaviour()) {
    m_event.accept();
    return Typed(committed);
  }
  // The widget composes by itself; of what is committed it gets the characters that the handlers leave over.
  std::wstring left;
  for (const wchar_t character : committed) {
    QtWindow::InFlight flight{nullptr, nullptr, WM_CHAR, true};
    QtWindow::InFlight* outer = std::exchange(m_window->m_inFlight, &flight);
    flight.delivered = false;
    QKeyEvent probe(QEvent::None, 0, Qt::NoModifier);
    flight.event = &probe;
    flight.receiver = &m_receiver;
    TranslateAndSend(m_window->Window(), WM_CHAR, static_cast<WPARAM>(character), kFirstPress);
    if (!IsAlive()) return true;
    m_window->m_inFlight = outer;
    if (flight.delivered) left += character;
  }
  if (left == committed) {
    return false;
  }
  event.setCommitString(QString::fromStdWString(left), event.replacementStart(), event.replacementLength());
  return false;
}

}  // namespace coregui
