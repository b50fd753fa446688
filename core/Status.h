#pragma once

#include <functional>
#include <string>
#include <utility>

#include "core/Export.h"

/// Writes one line to the status output: what happened without anyone having to answer for it, such as a file
/// that could not be read. The line has no line end of its own. A null pointer writes an empty line.
COREGUI_API void coreStatusOut(const wchar_t* text);

namespace coregui {

/// Receives each status line.
using StatusSink = std::function<void(const std::wstring& line)>;

/// Sends the status output to `sink` from now on and returns the sink that stood there before. The empty sink
/// is the one of the start: the error stream, in UTF-8. What a sink itself writes to the status output goes
/// there too.
COREGUI_API StatusSink SetStatusSink(StatusSink sink);

/// A status sink for the lifetime of this object; afterwards the earlier one is back.
class COREGUI_API StatusSinkScope {
 public:
  explicit StatusSinkScope(StatusSink sink) : m_before(SetStatusSink(std::move(sink))) {}
  ~StatusSinkScope() { SetStatusSink(std::move(m_before)); }
  StatusSinkScope(const StatusSinkScope&) = delete;
  StatusSinkScope& operator=(const StatusSinkScope&) = delete;

 private:
  StatusSink m_before;
};

}  // namespace coregui
