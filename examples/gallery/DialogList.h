#pragma once

#include <functional>
#include <vector>

#include "coregui/coregui.h"

namespace gallery {

/// One dialog that the gallery opens.
struct DialogEntry {
  const wchar_t* name;  ///< on its button, with an access key
  std::function<void(CWnd& owner)> open;
};

/// Every dialog of the library, with something to ask or to say.
const std::vector<DialogEntry>& Dialogs();

}  // namespace gallery
