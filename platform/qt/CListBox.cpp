#include "platform/CListBox.h"

#include <QListWidget>
#include <algorithm>

#include "platform/qt/Application.h"
#include "platform/qt/ControlWindow.h"
#include "platform/qt/TextSearch.h"

namespace {

using coregui::ControlWindow;

constexpr int kData = Qt::UserRole;

class ListWindow : public ControlWindow {
 public:
  ListWindow(CWnd& window, const CREATESTRUCT& create)
      : ControlWindow(window, create, std::make_unique<QListWidget>()) {
    const bool several = (create.style & LBS_MULTIPLESEL) != 0;
    List().setSelectionMode(several ? QAbstractItemView::MultiSelection : QAbstractItemView::SingleSelection);
    List().setFrameShape((create.style & WS_BORDER) != 0 ? QFrame::StyledPanel : QFrame::NoFrame);
    WatchViewport(List());
    connect(&List(), &QListWidget::itemSelectionChanged, this, [this] { NoteSelection(); });
    connect(&List(), &QListWidget::itemDoubleClicked, this, [this] { Notify(LBN_DBLCLK); });
  }

  QListWidget& List() const { return static_cast<QListWidget&>(*GetWidget()); }
  QListWidgetItem* Item(int index) const { return List().item(index); }

  /// Changes by code tell nobody.
  template <class Change>
  void Quietly(Change change) {
    m_quiet = true;
    change();
    m_quiet = false;
  }

 private:
  void NoteSelection() {
    if (!m_quiet) Notify(LBN_SELCHANGE);
  }
  bool m_quiet = false;
};

ListWindow* NativeList(const CListBox& box) {
  return coregui::NativeOf<ListWindow>(box);
}

QListWidgetItem* ItemOf(const CListBox& box, int index) {
  const auto* list = NativeList(box);
  return list == nullptr || index < 0 ? nullptr : list->Item(index);
}

CString TextOf(const CListBox& box, int index) {
  return coregui::FromQt(ItemOf(box, index)->text());
}

}  // namespace

BOOL CListBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
  return Create(L"LISTBOX", L"", style, rect, parent, id);
}

std::unique_ptr<coregui::NativeWindow> CListBox::MakeNative(const CREATESTRUCT& create) {
  coregui::EnsureApplication();
  return std::make_unique<ListWindow>(*this, create);
}

int CListBox::GetCount() const {
  const auto* list = NativeList(*this);
  return list == nullptr ? 0 : list->List().count();
}

int CListBox::AddString(const wchar_t* text) {
  const int last = GetCount();
  if ((GetStyle() & LBS_SORT) == 0) return InsertString(last, text);
  return InsertString(coregui::SortedPlace(last, text, [this](int i) { return TextOf(*this, i); }), text);
}

int CListBox::InsertString(int index, const wchar_t* text) {
  auto* list = NativeList(*this);
  const int at = index == -1 ? GetCount() : index;
  if (list == nullptr || at < 0 || at > GetCount()) return LB_ERR;
  list->Quietly([&] { list->List().insertItem(at, coregui::ToQt(text)); });
  return at;
}

int CListBox::DeleteString(int index) {
  auto* list = NativeList(*this);
  if (ItemOf(*this, index) == nullptr) return LB_ERR;
  list->Quietly([&] { delete list->List().takeItem(index); });
  return GetCount();
}

void CListBox::ResetContent() {
  if (auto* list = NativeList(*this)) list->Quietly([&] { list->List().clear(); });
}

int CListBox::GetText(int index, CString& text) const {
  if (ItemOf(*this, index) == nullptr) return LB_ERR;
  text = TextOf(*this, index);
  return text.GetLength();
}

int CListBox::FindString(int after, const wchar_t* text) const {
  return coregui::FindText(GetCount(), after, text, false, [this](int i) { return TextOf(*this, i); });
}

int CListBox::FindStringExact(int after, const wchar_t* text) const {
  return coregui::FindText(GetCount(), after, text, true, [this](int i) { return TextOf(*this, i); });
}

int CListBox::GetCurSel() const {
  const auto* list = NativeList(*this);
  if (list == nullptr) return LB_ERR;
  const int row = list->List().currentRow();
  const bool several = (GetStyle() & LBS_MULTIPLESEL) != 0;
  return several || GetSel(row) ? row : LB_ERR;
}

int CListBox::SetCurSel(int index) {
  auto* list = NativeList(*this);
  if (list == nullptr || (index != -1 && ItemOf(*this, index) == nullptr)) return LB_ERR;
  list->Quietly([&] {
    list->List().setCurrentRow(index);
    if (index == -1) list->List().clearSelection();
  });
  return index == -1 ? LB_ERR : index;
}

bool CListBox::GetSel(int index) const {
  const auto* item = ItemOf(*this, index);
  return item != nullptr && item->isSelected();
}

void CListBox::SetSel(int index, BOOL select) {
  auto* list = NativeList(*this);
  auto* item = ItemOf(*this, index);
  if (item != nullptr) list->Quietly([&] { item->setSelected(select != FALSE); });
}

int CListBox::GetSelCount() const {
  const auto* list = NativeList(*this);
  return list == nullptr ? 0 : static_cast<int>(list->List().selectedItems().size());
}

LPARAM CListBox::GetItemData(int index) const {
  const auto* item = ItemOf(*this, index);
  return item == nullptr ? 0 : static_cast<LPARAM>(item->data(kData).toLongLong());
}

void CListBox::SetItemData(int index, LPARAM data) {
  if (auto* item = ItemOf(*this, index)) item->setData(kData, static_cast<qlonglong>(data));
}
