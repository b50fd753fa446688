#include "platform/CStatic.h"

#include "platform/qt/Application.h"
#include "platform/qt/ControlWindow.h"
#include "platform/qt/LabelWidget.h"

namespace {

using coregui::ControlWindow;

class StaticWindow : public ControlWindow {
 public:
  StaticWindow(CWnd& window, const CREATESTRUCT& create)
      : ControlWindow(window, create, std::make_unique<coregui::LabelWidget>()) {
    Label().setTextFormat(Qt::PlainText);
    Label().ShowText(coregui::ToQt(create.name));
    StyleChanged();
  }
  void SetText(const CString& text) override {
    if (GetWidget() != nullptr) Label().ShowText(coregui::ToQt(text));
  }
  void StyleChanged() override {
    const DWORD align = Window().GetStyle() & (SS_CENTER | SS_RIGHT);
    Label().setAlignment(Qt::AlignTop | (align == SS_CENTER  ? Qt::AlignHCenter
                                         : align == SS_RIGHT ? Qt::AlignRight
                                                             : Qt::AlignLeft));
    Label().setWordWrap(align == SS_LEFT);
  }
  bool DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override {
    if (message == WM_LBUTTONUP && (Window().GetStyle() & SS_NOTIFY) != 0) {
      Notify(STN_CLICKED);
      return true;
    }
    return ControlWindow::DefaultMessage(message, wParam, lParam, result);
  }

 protected:
  UINT DialogCode(UINT /*key*/) const override { return 0; }

 private:
  coregui::LabelWidget& Label() const { return static_cast<coregui::LabelWidget&>(*GetWidget()); }
};

}  // namespace

BOOL CStatic::Create(const wchar_t* text, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
  return Create(L"STATIC", text, style, rect, parent, id);
}

std::unique_ptr<coregui::NativeWindow> CStatic::MakeNative(const CREATESTRUCT& create) {
  coregui::EnsureApplication();
  return std::make_unique<StaticWindow>(*this, create);
}
