#include <QPlainTextEdit>
#include <QTextDocument>

#include "platform/qt/EditWindow.h"

namespace coregui {
namespace {

/// Several lines.
class TextEditWindow : public EditWindow {
 public:
  TextEditWindow(CWnd& window, const CREATESTRUCT& create)
      : EditWindow(window, create, std::make_unique<QPlainTextEdit>()) {
    Area().setPlainText(ToQt(create.name));
    Area().setFrameShape((create.style & WS_BORDER) != 0 ? QFrame::StyledPanel : QFrame::NoFrame);
    Area().setTabChangesFocus(true);
    Area().setLineWrapMode((create.style & ES_AUTOHSCROLL) != 0 ? QPlainTextEdit::NoWrap
                                                                : QPlainTextEdit::WidgetWidth);
    StyleChanged();
    WatchViewport(Area());
    connect(&Area(), &QPlainTextEdit::textChanged, this, [this] { NoteChange(); });
  }

  QString Text() const override { return Area().toPlainText(); }
  int SelectionStart() const override { return Area().textCursor().selectionStart(); }
  int SelectionEnd() const override { return Area().textCursor().selectionEnd(); }
  void Select(int start, int end) override {
    QTextCursor cursor = Area().textCursor();
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    Area().setTextCursor(cursor);
  }
  void Insert(const QString& text) override { Area().insertPlainText(text); }
  void SetLimit(int length) override {
    if (Text().size() > length) Area().setPlainText(Text().left(length));
    m_limit = length;
  }
  void SetReadOnly(bool readOnly) override { Area().setReadOnly(readOnly); }
  bool IsReadOnly() const override { return Area().isReadOnly(); }
  void SetMargins(int left, int right) override { Area().setStyleSheet(MarginStyle(left, right)); }
  void SetHint(const QString& text) override { Area().setPlaceholderText(text); }
  void SetHidden(bool /*hidden*/) override {}
  bool CanUndo() const override { return Area().document()->isUndoAvailable(); }
  void Undo() override { Area().undo(); }
  void ForgetUndo() override { Area().document()->clearUndoRedoStacks(); }
  bool IsModified() const override { return Area().document()->isModified(); }
  void SetModified(bool modified) override { Area().document()->setModified(modified); }
  void ShowCaret() override { Area().ensureCursorVisible(); }
  void Cut() override { Area().cut(); }
  void Copy() override { Area().copy(); }
  void Paste() override {
    Area().paste();
    CutToLimit();
  }

  void SetText(const CString& text) override {
    if (GetWidget() != nullptr) Area().setPlainText(ToQt(text));
  }
  void StyleChanged() override {
    const DWORD style = Window().GetStyle();
    Area().setReadOnly((style & ES_READONLY) != 0);
    QTextOption option = Area().document()->defaultTextOption();
    option.setAlignment((style & ES_CENTER) != 0  ? Qt::AlignHCenter
                        : (style & ES_RIGHT) != 0 ? Qt::AlignRight
                                                  : Qt::AlignLeft);
    Area().document()->setDefaultTextOption(option);
  }

  bool DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override {
    const bool types = message == WM_CHAR && (wParam >= L' ' || wParam == L'\r');
    if (types && m_limit >= 0 && Text().size() >= m_limit && SelectionStart() == SelectionEnd()) return true;
    return EditWindow::DefaultMessage(message, wParam, lParam, result);
  }

 protected:
  void PlaceCaret(const QPoint& at) override { Area().setTextCursor(Area().cursorForPosition(at)); }

 private:
  QPlainTextEdit& Area() const { return static_cast<QPlainTextEdit&>(*GetWidget()); }
  static QString MarginStyle(int left, int right) {
    return QStringLiteral("QPlainTextEdit { padding-left: %1px; padding-right: %2px; }").arg(left).arg(right);
  }
  /// Takes out what was pasted beyond the limit, before the caret.
  void CutToLimit() {
    const qsizetype over = m_limit < 0 ? 0 : Text().size() - m_limit;
    if (over <= 0) return;
    QTextCursor cursor = Area().textCursor();
    cursor.setPosition(std::max<int>(0, cursor.position() - static_cast<int>(over)), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
  }

  int m_limit = -1;  ///< -1: none
};

}  // namespace

std::unique_ptr<EditWindow> MakeTextEdit(CWnd& window, const CREATESTRUCT& create) {
  return std::make_unique<TextEditWindow>(window, create);
}

}  // namespace coregui
