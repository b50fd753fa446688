#include "platform/CTreeCtrl.h"

#include <QPainter>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include "platform/qt/Application.h"
#include "platform/qt/ControlWindow.h"

namespace {

constexpr int kData = Qt::UserRole;

/// The toolkit's tree, which shows a text while it is empty.
class TreeWidget : public QTreeWidget {
 public:
  void SetEmptyText(const QString& text) {
    m_emptyText = text;
    setAccessibleDescription(text);
    viewport()->update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QTreeWidget::paintEvent(event);
    if (topLevelItemCount() > 0 || m_emptyText.isEmpty()) return;
    constexpr int kMargin = 8;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
  }
  /// The style draws the edge of a check box in a darker shade of the window's colour, which cannot be seen
  /// on dark ground.
  void initViewItemOption(QStyleOptionViewItem* option) const override {
    QTreeWidget::initViewItemOption(option);
    constexpr int kDark = 128;
    if (palette().color(QPalette::Base).lightness() < kDark) {
      option->palette.setColor(QPalette::Window, palette().color(QPalette::PlaceholderText));
    }
  }

 private:
  QString m_emptyText;
};

class TreeWindow : public coregui::ControlWindow {
 public:
  TreeWindow(CWnd& window, const CREATESTRUCT& create)
      : ControlWindow(window, create, std::make_unique<TreeWidget>()) {
    Tree().setHeaderHidden(true);
    Tree().setFrameShape((create.style & WS_BORDER) != 0 ? QFrame::StyledPanel : QFrame::NoFrame);
    WatchViewport(Tree());
    connect(&Tree(), &QTreeWidget::currentItemChanged, this, [this] { Notify(TVN_SELCHANGED); });
    connect(&Tree(), &QTreeWidget::itemExpanded, this, [this] { Notify(TVN_ITEMEXPANDED); });
    connect(&Tree(), &QTreeWidget::itemCollapsed, this, [this] { Notify(TVN_ITEMEXPANDED); });
    connect(&Tree(), &QTreeWidget::itemDoubleClicked, this, [this] { Notify(TVN_DBLCLK); });
    connect(&Tree(), &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item) { NoteChange(*item); });
  }
  TreeWidget& Tree() const { return static_cast<TreeWidget&>(*GetWidget()); }
  bool quiet = false;  ///< a change by code

 private:
  void NoteChange(const QTreeWidgetItem& item) {
    if (quiet) return;
    const bool checks = item.data(0, Qt::CheckStateRole).isValid();
    const bool wasChecked = item.data(0, kData + 1).toBool();
    const bool isChecked = item.checkState(0) == Qt::Checked;
    quiet = true;
    const_cast<QTreeWidgetItem&>(item).setData(0, kData + 1, isChecked);
    quiet = false;
    Notify(checks && wasChecked != isChecked ? TVN_ITEMCHECKED : TVN_ENDLABELEDIT);
  }
};

QTreeWidgetItem* ToItem(HTREEITEM item) {
  return reinterpret_cast<QTreeWidgetItem*>(item);
}
HTREEITEM ToHandle(const QTreeWidgetItem* item) {
  return reinterpret_cast<HTREEITEM>(const_cast<QTreeWidgetItem*>(item));
}

TreeWindow* NativeTree(const CTreeCtrl& control) {
  return coregui::NativeOf<TreeWindow>(control);
}

QTreeWidget* TreeOf(const CTreeCtrl& control) {
  const auto* native = NativeTree(control);
  return native == nullptr ? nullptr : &native->Tree();
}

/// Puts a new item in its place among its siblings.
QTreeWidgetItem* Put(const CTreeCtrl& control, const wchar_t* text, QTreeWidgetItem& parent, int index) {
  auto* native = NativeTree(control);
  auto item = std::make_unique<QTreeWidgetItem>(QStringList(coregui::ToQt(text)));
  native->quiet = true;
  if ((control.GetStyle() & TVS_CHECKBOXES) != 0) item->setCheckState(0, Qt::Unchecked);
  if ((control.GetStyle() & TVS_EDITLABELS) != 0) item->setFlags(item->flags() | Qt::ItemIsEditable);
  parent.insertChild(index, item.get());
  native->quiet = false;
  return item.release();  // the tree owns it
}

int SortedIndex(const QTreeWidgetItem& parent, const QString& text) {
  int index = 0;
  while (index < parent.childCount() && parent.child(index)->text(0).compare(text, Qt::CaseInsensitive) <= 0)
    ++index;
  return index;
}

/// The root's invisible item stands above the items without a parent.
QTreeWidgetItem& ParentOf(QTreeWidget& tree, QTreeWidgetItem* item) {
  QTreeWidgetItem* parent = item == nullptr ? nullptr : item->parent();
  return parent == nullptr ? *tree.invisibleRootItem() : *parent;
}

}  // namespace

BOOL CTreeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
  return Create(L"TREE", L"", style, rect, parent, id);
}

std::unique_ptr<coregui::NativeWindow> CTreeCtrl::MakeNative(const CREATESTRUCT& create) {
  coregui::EnsureApplication();
  return std::make_unique<TreeWindow>(*this, create);
}

HTREEITEM CTreeCtrl::InsertItem(const wchar_t* text, HTREEITEM parent, TreePlace place) {
  auto* tree = TreeOf(*this);
  if (tree == nullptr) return nullptr;
  QTreeWidgetItem& above = parent == nullptr ? *tree->invisibleRootItem() : *ToItem(parent);
  const int index = place == TreePlace::first  ? 0
                    : place == TreePlace::last ? above.childCount()
                                               : SortedIndex(above, coregui::ToQt(text));
  return ToHandle(Put(*this, text, above, index));
}

HTREEITEM CTreeCtrl::InsertItemAfter(const wchar_t* text, HTREEITEM sibling) {
  auto* tree = TreeOf(*this);
  if (tree == nullptr || sibling == nullptr) return nullptr;
  QTreeWidgetItem& above = ParentOf(*tree, ToItem(sibling));
  return ToHandle(Put(*this, text, above, above.indexOfChild(ToItem(sibling)) + 1));
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM item) {
  if (TreeOf(*this) == nullptr || item == nullptr) return FALSE;
  delete ToItem(item);
  return TRUE;
}

void CTreeCtrl::DeleteAllItems() {
  if (auto* tree = TreeOf(*this)) tree->clear();
}

int CTreeCtrl::GetCount() const {
  auto* tree = TreeOf(*this);
  if (tree == nullptr) return 0;
  int count = 0;
  for (QTreeWidgetItemIterator it(tree); *it != nullptr; ++it) ++count;
  return count;
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const {
  return item == nullptr ? CString() : coregui::FromQt(ToItem(item)->text(0));
}

void CTreeCtrl::SetItemText(HTREEITEM item, const wchar_t* text) {
  auto* native = NativeTree(*this);
  if (native == nullptr || item == nullptr) return;
  native->quiet = true;
  ToItem(item)->setText(0, coregui::ToQt(text));
  native->quiet = false;
}

LPARAM CTreeCtrl::GetItemData(HTREEITEM item) const {
  return item == nullptr ? 0 : static_cast<LPARAM>(ToItem(item)->data(0, kData).toLongLong());
}

void CTreeCtrl::SetItemData(HTREEITEM item, LPARAM data) {
  auto* native = NativeTree(*this);
  if (native == nullptr || item == nullptr) return;
  native->quiet = true;
  ToItem(item)->setData(0, kData, static_cast<qlonglong>(data));
  native->quiet = false;
}

BOOL CTreeCtrl::GetCheck(HTREEITEM item) const {
  return item != nullptr && ToItem(item)->checkState(0) == Qt::Checked ? TRUE : FALSE;
}

void CTreeCtrl::SetCheck(HTREEITEM item, BOOL checked) {
  auto* native = NativeTree(*this);
  if (native == nullptr || item == nullptr) return;
  native->quiet = true;
  ToItem(item)->setCheckState(0, checked != FALSE ? Qt::Checked : Qt::Unchecked);
  ToItem(item)->setData(0, kData + 1, checked != FALSE);
  native->quiet = false;
}

HTREEITEM CTreeCtrl::GetRootItem() const {
  auto* tree = TreeOf(*this);
  return tree == nullptr ? nullptr : ToHandle(tree->topLevelItem(0));
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM item) const {
  return item == nullptr ? GetRootItem() : ToHandle(ToItem(item)->child(0));
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM item) const {
  auto* tree = TreeOf(*this);
  if (tree == nullptr || item == nullptr) return nullptr;
  const QTreeWidgetItem& above = ParentOf(*tree, ToItem(item));
  return ToHandle(above.child(above.indexOfChild(ToItem(item)) + 1));
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM item) const {
  return item == nullptr ? nullptr : ToHandle(ToItem(item)->parent());
}

HTREEITEM CTreeCtrl::GetSelectedItem() const {
  auto* tree = TreeOf(*this);
  return tree == nullptr ? nullptr : ToHandle(tree->currentItem());
}

BOOL CTreeCtrl::SelectItem(HTREEITEM item) {
  auto* tree = TreeOf(*this);
  if (tree == nullptr) return FALSE;
  tree->setCurrentItem(ToItem(item));
  return TRUE;
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT command) {
  if (TreeOf(*this) == nullptr || item == nullptr) return FALSE;
  const bool expand = command == TVE_TOGGLE ? !ToItem(item)->isExpanded() : command == TVE_EXPAND;
  ToItem(item)->setExpanded(expand);
  return TRUE;
}

BOOL CTreeCtrl::IsExpanded(HTREEITEM item) const {
  return item != nullptr && ToItem(item)->isExpanded() ? TRUE : FALSE;
}

void CTreeCtrl::EnsureVisible(HTREEITEM item) {
  auto* tree = TreeOf(*this);
  if (tree != nullptr && item != nullptr) tree->scrollToItem(ToItem(item));
}

void CTreeCtrl::SetItemLook(HTREEITEM item, const TreeItemLook& look) {
  auto* native = NativeTree(*this);
  if (native == nullptr || item == nullptr) return;
  const auto brush = [](COLORREF colour) {
    return colour == TreeItemLook::kThemeColour
               ? QVariant()
               : QVariant(QBrush(QColor(GetRValue(colour), GetGValue(colour), GetBValue(colour))));
  };
  QTreeWidgetItem& row = *ToItem(item);
  native->quiet = true;
  row.setData(0, Qt::ForegroundRole, brush(look.text));
  row.setData(0, Qt::BackgroundRole, brush(look.ground));
  QFont font;
  font.setBold(look.bold);
  row.setData(0, Qt::FontRole, look.bold ? QVariant(font) : QVariant());
  const bool checks = look.checkBox || (GetStyle() & TVS_CHECKBOXES) != 0;
  if (!checks) {
    row.setData(0, Qt::CheckStateRole, QVariant());
    row.setData(0, kData + 1, false);
  } else if (!row.data(0, Qt::CheckStateRole).isValid()) {
    row.setCheckState(0, Qt::Unchecked);
  }
  native->quiet = false;
}

void CTreeCtrl::SetEmptyText(const wchar_t* text) {
  if (auto* native = NativeTree(*this)) native->Tree().SetEmptyText(coregui::ToQt(text));
}
