#pragma once

#include <string>

#include "coregui/coregui.h"

namespace desk {

/// A line of texts along the lower edge of a window.
class StatusLine : public CWnd {
 public:
  static constexpr UINT kId = 102;

  /// The height that the line wants, in pixels.
  static int Height() { return ScaleByDpi(24); }
  BOOL CreateLine(CWnd* parent);
  /// `warning` draws the text so that it is not overlooked.
  void Show(const std::wstring& text, bool warning = false);
  /// A second text at the right end, which stays: the state of the survey.
  void ShowState(const std::wstring& text);
  const std::wstring& StateText() const { return m_state; }
  const std::wstring& Text() const { return m_text; }

 protected:
  const coregui::MessageTable& GetMessageTable() const override;

 private:
  void HandlePaint();
  void HandleSize(UINT type, int width, int height);

  void Say();

  std::wstring m_text;
  std::wstring m_state;
  bool m_warning = false;
};

}  // namespace desk
