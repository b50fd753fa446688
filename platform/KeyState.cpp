#include "platform/KeyState.h"

#include <array>

#include "platform/System.h"

namespace {

struct Key {
  bool down = false;
  bool toggled = false;
};

std::array<Key, 256> g_keys;

}  // namespace

short GetKeyState(UINT key) {
  if (key >= g_keys.size()) return 0;
  return static_cast<short>((g_keys[key].down ? 0x8000 : 0) | (g_keys[key].toggled ? 1 : 0));
}

void SetKeyState(UINT key, bool down) {
  coregui::NoteKeyState(key, down);
}

namespace coregui {

void NoteKeyState(UINT key, bool down) {
  if (key >= g_keys.size()) return;
  if (down && !g_keys[key].down) g_keys[key].toggled = !g_keys[key].toggled;
  g_keys[key].down = down;
}

void ResetKeyState() {
  g_keys = {};
}

}  // namespace coregui
