#pragma once

#include "platform/CTreeCtrl.h"

/// A tree that says why it is empty: while it has no items a grey text stands in its middle, wrapped at
/// words, and a screen reader speaks it.
class COREGUI_API CEmptyTreeCtrl : public CTreeCtrl {
 public:
  /// Before or after creation; an empty text shows nothing.
  void SetEmptyText(const wchar_t* text);
  CString GetEmptyText() const { return m_emptyText; }

  const coregui::MessageTable& GetMessageTable() const override;

 private:
  LRESULT HandleCreate(WPARAM wParam, LPARAM lParam);

  CString m_emptyText;
};
