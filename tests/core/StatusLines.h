#pragma once

#include <string>
#include <vector>

#include "core/Status.h"

/// Collects the status lines written during its life.
class StatusLines {
 public:
  const std::vector<std::wstring>& Lines() const { return m_lines; }

 private:
  std::vector<std::wstring> m_lines;
  coregui::StatusSinkScope m_scope{[this](const std::wstring& line) { m_lines.push_back(line); }};
};
