#include <QLineEdit>
#include <limits>

#include "platform/qt/EditWindow.h"

namespace coregui {
namespace {

Qt::Alignment AlignmentOf(DWORD style) {
  if ((style & ES_CENTER) != 0) return Qt::AlignHCenter | Qt::AlignVCenter;
  return ((style & ES_RIGHT) != 0 ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

/// One line.
class LineEditWindow : public EditWindow {
 public:
  LineEditWindow(CWnd& window, const CREATESTRUCT& create)
      : EditWindow(window, create, std::make_unique<QLineEdit>()) {
    Line().setText(ToQt(create.name));
    Line().setFrame((create.style & WS_BORDER) != 0);
    Line().setMaxLength(std::numeric_limits<int>::max());
    StyleChanged();
    connect(&Line(), &QLineEdit::textChanged, this, [this] { NoteChange(); });
  }

  QString Text() const override { return Line().text(); }
  int SelectionStart() const override {
    return Line().hasSelectedText() ? Line().selectionStart() : Line().cursorPosition();
  }
  int SelectionEnd() const override {
    return Line().hasSelectedText() ? Line().selectionEnd() : Line().cursorPosition();
  }
  void Select(int start, int end) override {
    if (start == end) {
      Line().deselect();
      Line().setCursorPosition(end);
    } else {
      Line().setSelection(start, end - start);
    }
  }
  void Insert(const QString& text) override { Line().insert(text); }
  void SetLimit(int length) override { Line().setMaxLength(length); }
  void SetReadOnly(bool readOnly) override { Line().setReadOnly(readOnly); }
  bool IsReadOnly() const override { return Line().isReadOnly(); }
  void SetMargins(int left, int right) override { Line().setTextMargins(left, 0, right, 0); }
  void SetHint(const QString& text) override { Line().setPlaceholderText(text); }
  void SetHidden(bool hidden) override {
    Line().setEchoMode(hidden ? QLineEdit::Password : QLineEdit::Normal);
  }
  bool CanUndo() const override { return Line().isUndoAvailable(); }
  void Undo() override { Line().undo(); }
  void ForgetUndo() override {
    const int start = SelectionStart();
    const int end = SelectionEnd();
    const bool modified = Line().isModified();
    const QSignalBlocker quiet(&Line());
    Line().setText(Line().text());
    Line().setModified(modified);
    Select(start, end);
  }
  bool IsModified() const override { return Line().isModified(); }
  void SetModified(bool modified) override { Line().setModified(modified); }
  void ShowCaret() override { Line().update(); }
  void Cut() override { Line().cut(); }
  void Copy() override { Line().copy(); }
  void Paste() override { Line().paste(); }

  void SetText(const CString& text) override {
    if (GetWidget() != nullptr) Line().setText(ToQt(text));
  }
  void StyleChanged() override {
    const DWORD style = Window().GetStyle();
    Line().setAlignment(AlignmentOf(style));
    Line().setReadOnly((style & ES_READONLY) != 0);
    SetHidden((style & ES_PASSWORD) != 0);
  }

 protected:
  void PlaceCaret(const QPoint& at) override { Line().setCursorPosition(Line().cursorPositionAt(at)); }

 private:
  QLineEdit& Line() const { return static_cast<QLineEdit&>(*GetWidget()); }
};

}  // namespace

std::unique_ptr<EditWindow> MakeLineEdit(CWnd& window, const CREATESTRUCT& create) {
  return std::make_unique<LineEditWindow>(window, create);
}

}  // namespace coregui
