#include "platform/MessageTable.h"

#include "platform/CWnd.h"

namespace coregui {
namespace {

bool Matches(int wanted, int actual) {
  return wanted == -1 || (wanted & 0xFFFF) == actual;
}

}  // namespace

CWnd* WindowOfParameter(std::uintptr_t handle) {
  return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

const MessageRow* MessageTable::Find(UINT message, WPARAM wParam) const {
  for (const MessageRow& row : m_rows) {
    if (row.message == message && (message != WM_COMMAND || (Matches(row.command, LOWORD(wParam)) &&
                                                             Matches(row.code, HIWORD(wParam))))) {
      return &row;
    }
  }
  return nullptr;
}

}  // namespace coregui
