#pragma once

#include <Qt>
#include <map>

#include "platform/Keys.h"

namespace coregui::test {

/// The toolkit's key for a VK_ value.
inline int ToolkitKey(UINT key) {
  static const std::map<UINT, int> keys{
      {VK_RETURN, Qt::Key_Return}, {VK_ESCAPE, Qt::Key_Escape}, {VK_BACK, Qt::Key_Backspace},
      {VK_TAB, Qt::Key_Tab},       {VK_UP, Qt::Key_Up},         {VK_DOWN, Qt::Key_Down},
      {VK_LEFT, Qt::Key_Left},     {VK_RIGHT, Qt::Key_Right},   {VK_HOME, Qt::Key_Home},
      {VK_END, Qt::Key_End},       {VK_PRIOR, Qt::Key_PageUp},  {VK_NEXT, Qt::Key_PageDown},
      {VK_INSERT, Qt::Key_Insert}, {VK_SPACE, Qt::Key_Space},   {VK_F1, Qt::Key_F1},
      {VK_F2, Qt::Key_F2}};
  const auto found = keys.find(key);
  return found != keys.end() ? found->second : static_cast<int>(key);  // letters and digits
}

}  // namespace coregui::test
