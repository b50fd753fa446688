#include "platform/Clipboard.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <optional>

#include "platform/Toolkit.h"

namespace {

/// The clipboard of a process without an application.
std::optional<CString>& OwnText() {
  static std::optional<CString> text;
  return text;
}

}  // namespace

namespace coregui {

bool SetClipboardText(const CString& text) {
  if (!HasToolkit()) {
    OwnText() = text;
    return true;
  }
  QApplication::clipboard()->setText(QString::fromStdWString(text.Str()));
  CString stored;
  return GetClipboardText(stored) && stored == text;
}

bool GetClipboardText(CString& text) {
  if (!HasToolkit()) {
    if (OwnText()) text = *OwnText();
    return OwnText().has_value();
  }
  const QMimeData* data = QApplication::clipboard()->mimeData();
  if (data == nullptr || !data->hasText()) return false;
  text = CString(data->text().toStdWString());
  return true;
}

void EmptyClipboard() {
  OwnText().reset();
  if (HasToolkit()) QApplication::clipboard()->clear();
}

}  // namespace coregui
