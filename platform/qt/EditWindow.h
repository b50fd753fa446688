#pragma once

#include <functional>

#include "platform/qt/ControlWindow.h"

namespace coregui {

/// The native side of a CEdit, over the toolkit's line or text editor. Offsets are the toolkit's UTF-16
/// units.
class EditWindow : public ControlWindow {
 public:
  using ControlWindow::ControlWindow;

  virtual QString Text() const = 0;
  virtual int SelectionStart() const = 0;
  virtual int SelectionEnd() const = 0;
  /// The caret goes to `end`.
  virtual void Select(int start, int end) = 0;
  /// In place of the selection, with undo.
  virtual void Insert(const QString& text) = 0;
  virtual void SetLimit(int length) = 0;
  virtual void SetReadOnly(bool readOnly) = 0;
  virtual bool IsReadOnly() const = 0;
  virtual void SetMargins(int left, int right) = 0;
  virtual void SetHint(const QString& text) = 0;
  virtual void SetHidden(bool hidden) = 0;
  virtual bool CanUndo() const = 0;
  virtual void Undo() = 0;
  virtual void ForgetUndo() = 0;
  virtual bool IsModified() const = 0;
  virtual void SetModified(bool modified) = 0;
  virtual void ShowCaret() = 0;
  virtual void Cut() = 0;
  virtual void Copy() = 0;
  virtual void Paste() = 0;

  bool ReadText(CString& text) const override;
  bool DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

  UINT limit = 0;  ///< as it was asked for; 0: none

 protected:
  bool FilterOther(QWidget& receiver, QEvent& event) override;
  UINT DialogCode(UINT key) const override;
  /// Puts the caret where something is dropped.
  virtual void PlaceCaret(const QPoint& at) = 0;
  /// To be called when the text has changed.
  void NoteChange();

 private:
  bool EditCommand(UINT message);
  static UINT CommandOfCharacter(WPARAM character);
  static UINT CommandOfKey(WPARAM key);
  /// The context menu, whose commands are messages.
  void ShowMenu(CPoint screen);
  void Type(const std::wstring& text);
  void TypeMarkedText(CPoint at);
};

std::unique_ptr<EditWindow> MakeLineEdit(CWnd& window, const CREATESTRUCT& create);
std::unique_ptr<EditWindow> MakeTextEdit(CWnd& window, const CREATESTRUCT& create);

}  // namespace coregui
