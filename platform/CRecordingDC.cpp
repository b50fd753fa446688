#include "platform/CDC.h"

#include <algorithm>

#include "platform/RecordingTarget.h"

CRecordingDC::CRecordingDC(int characterWidth, int characterHeight, CSize device)
    : CDC(std::make_shared<coregui::RecordingTarget>(CSize(characterWidth, characterHeight), device, true)) {}

CRecordingDC::~CRecordingDC() = default;

CString CRecordingDC::GetLog() const {
  std::wstring all;
  for (const std::wstring& line : Target()->Log()->Lines()) {
    if (!all.empty()) {
      all += L'\n';
    }
    all += line;
  }
  return all;
}

void CRecordingDC::ClearLog() {
  Target()->Log()->Clear();
}

int CRecordingDC::CountOf(const wchar_t* call) const {
  const std::vector<std::wstring>& lines = Target()->Log()->Lines();
  const std::wstring start(call);
  return static_cast<int>(std::count_if(
      lines.begin(), lines.end(), [&start](const std::wstring& line) { return line.starts_with(start); }));
}
