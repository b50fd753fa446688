#include "platform/CFileDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QScreen>
#include <QTreeView>

#include "platform/MessageBox.h"
#include "platform/Toolkit.h"
#include "platform/qt/ControlWindow.h"
#include "platform/qt/Transient.h"

namespace {

using coregui::FromQt;
using coregui::ToQt;

/// "Name|*.a;*.b|..." in the toolkit's form; the patterns stay out of a name that shows them already.
QStringList NameFilters(const CString& filter) {
  const QStringList parts = ToQt(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size() && !parts[i + 1].isEmpty(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(';', ' ').replace(QLatin1String("*.*"), QLatin1String("*"));
    filters.append(parts[i].section('(', 0, 0).trimmed() + " (" + patterns + ")");
  }
  return filters;
}

/// The toolkit's list cuts off the times of change: they take what they need, the names what is left.
void MakeRoom(QFileDialog& dialog) {
  constexpr int kNames = 0;
  constexpr int kTimes = 3;
  constexpr QSize kSize(780, 480);
  dialog.resize(kSize.boundedTo(dialog.screen()->availableSize()));
  if (const auto* list = dialog.findChild<QTreeView*>("treeView")) {
    list->header()->setSectionResizeMode(kNames, QHeaderView::Stretch);
    list->header()->setSectionResizeMode(kTimes, QHeaderView::ResizeToContents);
  }
}

void SetStart(QFileDialog& dialog, const CString& path) {
  if (path.IsEmpty()) return;
  const QFileInfo info(ToQt(path));
  if (info.isDir()) {
    dialog.setDirectory(info.absoluteFilePath());
    return;
  }
  if (info.dir().exists()) dialog.setDirectory(info.absolutePath());
  dialog.selectFile(info.fileName());
}

}  // namespace

CFileDialog::CFileDialog(BOOL open, const wchar_t* extension, const wchar_t* name, DWORD flags,
                         const wchar_t* filter, CWnd* parent)
    : m_open(open != FALSE),
      m_extension(extension),
      m_path(name),
      m_flags(flags),
      m_filter(filter),
      m_parent(parent) {}

int CFileDialog::DoModal() {
  if (!coregui::EnsureToolkit()) return IDCANCEL;
  const coregui::Transient<QFileDialog> dialog(m_parent);
  if (!m_title.IsEmpty()) dialog->setWindowTitle(ToQt(m_title));
  dialog->setOption(QFileDialog::DontUseNativeDialog);
  dialog->setOption(QFileDialog::DontConfirmOverwrite, (m_flags & OFN_OVERWRITEPROMPT) == 0);
  dialog->setAcceptMode(m_open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  const bool mustExist = m_open && (m_flags & OFN_FILEMUSTEXIST) != 0;
  dialog->setFileMode(mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  const QStringList filters = NameFilters(m_filter);
  if (!filters.isEmpty()) dialog->setNameFilters(filters);
  if (!m_open) dialog->setDefaultSuffix(ToQt(m_extension));
  MakeRoom(*dialog);
  SetStart(*dialog, m_path);
  if (dialog->exec() != QDialog::Accepted || !dialog || dialog->selectedFiles().isEmpty()) return IDCANCEL;
  m_path = FromQt(dialog->selectedFiles().constFirst());
  return IDOK;
}

CString CFileDialog::GetFileName() const {
  return FromQt(QFileInfo(ToQt(m_path)).fileName());
}

CString CFileDialog::GetFileTitle() const {
  return FromQt(QFileInfo(ToQt(m_path)).completeBaseName());
}

CString CFileDialog::GetFileExt() const {
  return FromQt(QFileInfo(ToQt(m_path)).suffix());
}

namespace coregui {

bool ChooseFolder(CString& folder, const wchar_t* title, CWnd* parent) {
  if (!EnsureToolkit()) return false;
  const Transient<QFileDialog> dialog(parent);
  if (title != nullptr && *title != 0) dialog->setWindowTitle(ToQt(title));
  dialog->setOption(QFileDialog::DontUseNativeDialog);
  dialog->setOption(QFileDialog::ShowDirsOnly);
  dialog->setOption(QFileDialog::ReadOnly);
  dialog->setFileMode(QFileDialog::Directory);
  MakeRoom(*dialog);
  if (!folder.IsEmpty() && QFileInfo(ToQt(folder)).isDir()) dialog->setDirectory(ToQt(folder));
  if (dialog->exec() != QDialog::Accepted || !dialog || dialog->selectedFiles().isEmpty()) return false;
  folder = FromQt(dialog->selectedFiles().constFirst());
  return true;
}

}  // namespace coregui
