#include "platform/CComboBox.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QStylePainter>
#include <QStyledItemDelegate>
#include <functional>
#include <limits>

#include "platform/CDC.h"
#include "platform/System.h"
#include "platform/qt/Application.h"
#include "platform/qt/ControlWindow.h"
#include "platform/qt/RasterTarget.h"
#include "platform/qt/TextSearch.h"

namespace {

/// Draws on a picture of its own.
class PictureDC : public CDC {
 public:
  explicit PictureDC(const std::shared_ptr<coregui::Surface>& surface)
      : CDC(std::make_shared<coregui::RasterTarget>(surface)) {}
};

/// The toolkit's combo box, which tells when its list opens and closes.
class ComboWidget : public QComboBox {
 public:
  std::function<void(bool)> onList;  ///< called by a copy: the box may go meanwhile
  /// Draws an item in the closed box; empty: the toolkit does.
  std::function<void(QPainter& painter, const QRect& place, int index)> onDrawClosed;

  void showPopup() override {
    const auto tell = onList;
    if (tell) tell(true);
    if (tell && !onList) return;  // the box has gone
    QComboBox::showPopup();
  }
  void hidePopup() override {
    const bool open = view()->isVisible();
    QComboBox::hidePopup();
    const auto tell = onList;
    if (open && tell) tell(false);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (!onDrawClosed || isEditable()) {
      QComboBox::paintEvent(event);
      return;
    }
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    constexpr double kFaint = 0.45;
    if (!isEnabled()) painter.setOpacity(kFaint);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    onDrawClosed(painter, field, currentIndex());
  }
};

}  // namespace

/// Has the items drawn by the box's DrawItem.
class CComboBoxDelegate : public QStyledItemDelegate {
 public:
  CComboBoxDelegate(CComboBox& box, QObject* owner) : QStyledItemDelegate(owner), m_box(box) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    Draw(*painter, option.rect, index.row(), (option.state & QStyle::State_Selected) != 0);
  }
  void Draw(QPainter& painter, const QRect& place, int index, bool selected) const {
    const double scale = painter.device()->devicePixelRatioF();
    // Where the picture counts its dots from, so that items which touch in pixels touch in dots.
    const QPoint start = (painter.deviceTransform().map(QPointF(place.topLeft())) / scale).toPoint();
    const auto surface = std::make_shared<coregui::Surface>(
        CSize(place.width(), place.height()), coregui::DotGrid(scale, CPoint(start.x(), start.y())));
    {
      PictureDC dc(surface);
      m_box.DrawItem(dc, CRect(0, 0, place.width(), place.height()), index, selected);
    }
    painter.save();
    painter.translate(place.topLeft());
    surface->Expose(painter, {0, 0, place.width(), place.height()});
    painter.restore();
  }
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    if (m_box.GetItemHeight() > 0) size.setHeight(m_box.GetItemHeight());
    return size;
  }

 private:
  CComboBox& m_box;
};

namespace {

class ComboWindow : public coregui::ControlWindow {
 public:
  ComboWindow(CComboBox& window, const CREATESTRUCT& create)
      : ControlWindow(window, create, std::make_unique<ComboWidget>()) {
    const bool edits = (create.style & 0x3) != CBS_DROPDOWNLIST;
    Combo().setEditable(edits);
    Combo().setInsertPolicy(QComboBox::NoInsert);
    if (edits) {
      Combo().setCompleter(nullptr);
      Combo().lineEdit()->setMaxLength(std::numeric_limits<int>::max());
      Combo().setEditText(coregui::ToQt(create.name));
      Watch(Combo().lineEdit());
      connect(Combo().lineEdit(), &QLineEdit::textEdited, this, [this] { Notify(CBN_EDITCHANGE); });
    }
    Combo().onList = [this](bool open) { Notify(open ? CBN_DROPDOWN : CBN_CLOSEUP); };
    connect(&Combo(), &QComboBox::activated, this, [this] { Notify(CBN_SELCHANGE); });
  }

  /// The list closes with the widget, when nobody is left to tell.
  ~ComboWindow() override {
    if (GetWidget() != nullptr) Combo().onList = nullptr;
  }

  ComboWidget& Combo() const { return static_cast<ComboWidget&>(*GetWidget()); }

  bool ReadText(CString& text) const override {
    if (GetWidget() == nullptr) return false;
    text = coregui::FromQt(Combo().currentText());
    return true;
  }
  void SetText(const CString& text) override {
    if (GetWidget() != nullptr && Combo().isEditable()) Combo().setEditText(coregui::ToQt(text));
  }
  bool DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override {
    const QPointer<QObject> self(this);
    const bool done = ControlWindow::DefaultMessage(message, wParam, lParam, result);
    if (self && message == WM_SETFOCUS) Notify(CBN_SETFOCUS);
    if (self && message == WM_KILLFOCUS) Notify(CBN_KILLFOCUS);
    return done;
  }
};

ComboWidget* WidgetOf(const CComboBox& box) {
  const auto* native = coregui::NativeOf<ComboWindow>(box);
  return native == nullptr ? nullptr : &native->Combo();
}

CString TextOf(const CComboBox& box, int index) {
  return coregui::FromQt(WidgetOf(box)->itemText(index));
}

bool IsItem(const CComboBox& box, int index) {
  return index >= 0 && index < box.GetCount();
}

}  // namespace

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
  return Create(L"COMBOBOX", L"", style, rect, parent, id);
}

std::unique_ptr<coregui::NativeWindow> CComboBox::MakeNative(const CREATESTRUCT& create) {
  coregui::EnsureApplication();
  auto native = std::make_unique<ComboWindow>(*this, create);
  if ((create.style & CBS_OWNERDRAWFIXED) != 0) {
    auto* delegate = std::make_unique<CComboBoxDelegate>(*this, &native->Combo()).release();
    native->Combo().setItemDelegate(delegate);
    native->Combo().onDrawClosed = [delegate](QPainter& painter, const QRect& place, int index) {
      delegate->Draw(painter, place, index, false);
    };
  }
  return native;
}

void CComboBox::DrawItem(CDC& dc, const RECT& rect, int index, bool selected) {
  dc.FillSolidRect(rect, GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  dc.SetTextColor(GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
  dc.SetBkMode(TRANSPARENT);
  CString text;
  GetLBText(index, text);
  constexpr int kMargin = 3;
  CRect inside(rect);
  inside.DeflateRect(kMargin, 0);
  dc.DrawText(text, text.GetLength(), &inside, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

int CComboBox::GetCount() const {
  const auto* combo = WidgetOf(*this);
  return combo == nullptr ? 0 : combo->count();
}

int CComboBox::AddString(const wchar_t* text) {
  const int last = GetCount();
  if ((GetStyle() & CBS_SORT) == 0) return InsertString(last, text);
  return InsertString(coregui::SortedPlace(last, text, [this](int i) { return TextOf(*this, i); }), text);
}

int CComboBox::InsertString(int index, const wchar_t* text) {
  auto* combo = WidgetOf(*this);
  const int at = index == -1 ? GetCount() : index;
  if (combo == nullptr || at < 0 || at > GetCount()) return CB_ERR;
  const bool none = combo->currentIndex() < 0;
  const QString typed = combo->currentText();
  combo->insertItem(at, coregui::ToQt(text));
  if (none) combo->setCurrentIndex(-1);  // the toolkit chooses the first item by itself
  if (none && combo->isEditable()) combo->setEditText(typed);
  return at;
}

int CComboBox::DeleteString(int index) {
  if (!IsItem(*this, index)) return CB_ERR;
  auto* combo = WidgetOf(*this);
  const bool chosen = combo->currentIndex() == index;
  combo->removeItem(index);
  if (chosen) combo->setCurrentIndex(-1);
  return GetCount();
}

void CComboBox::ResetContent() {
  if (auto* combo = WidgetOf(*this)) combo->clear();
}

int CComboBox::GetLBText(int index, CString& text) const {
  if (!IsItem(*this, index)) return CB_ERR;
  text = TextOf(*this, index);
  return text.GetLength();
}

int CComboBox::FindString(int after, const wchar_t* text) const {
  return coregui::FindText(GetCount(), after, text, false, [this](int i) { return TextOf(*this, i); });
}

int CComboBox::FindStringExact(int after, const wchar_t* text) const {
  return coregui::FindText(GetCount(), after, text, true, [this](int i) { return TextOf(*this, i); });
}

int CComboBox::GetCurSel() const {
  const auto* combo = WidgetOf(*this);
  return combo == nullptr ? CB_ERR : combo->currentIndex();
}

int CComboBox::SetCurSel(int index) {
  auto* combo = WidgetOf(*this);
  if (combo == nullptr) return CB_ERR;
  combo->setCurrentIndex(IsItem(*this, index) ? index : -1);
  return combo->currentIndex();
}

int CComboBox::SelectString(int after, const wchar_t* text) {
  const int found = FindString(after, text);
  return found < 0 ? CB_ERR : SetCurSel(found);
}

LPARAM CComboBox::GetItemData(int index) const {
  return IsItem(*this, index) ? static_cast<LPARAM>(WidgetOf(*this)->itemData(index).toLongLong()) : 0;
}

void CComboBox::SetItemData(int index, LPARAM data) {
  if (IsItem(*this, index)) WidgetOf(*this)->setItemData(index, static_cast<qlonglong>(data));
}

void CComboBox::ShowDropDown(BOOL show) {
  auto* combo = WidgetOf(*this);
  if (combo == nullptr) return;
  if (show != FALSE) {
    combo->showPopup();
  } else {
    combo->hidePopup();
  }
}

BOOL CComboBox::GetDroppedState() const {
  const auto* combo = WidgetOf(*this);
  return combo != nullptr && combo->view()->isVisible() ? TRUE : FALSE;
}

void CComboBox::LimitText(UINT length) {
  const auto* combo = WidgetOf(*this);
  if (combo == nullptr || combo->lineEdit() == nullptr) return;
  constexpr UINT kLongest = std::numeric_limits<int>::max();
  combo->lineEdit()->setMaxLength(static_cast<int>(length == 0 ? kLongest : std::min(length, kLongest)));
}

void CComboBox::SetDroppedWidth(int pixels) {
  if (auto* combo = WidgetOf(*this)) combo->view()->setMinimumWidth(pixels);
}
