#include "platform/Links.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QFont>
#include <QPushButton>
#include <QUrl>

#include "platform/CButton.h"
#include "platform/qt/Application.h"
#include "platform/qt/ControlWindow.h"

namespace coregui {

bool OpenLink(const CString& target) {
  EnsureApplication();
  const QString text = ToQt(target).trimmed();
  const bool isPath = text.startsWith(QLatin1Char('/'));
  const QUrl link = isPath ? QUrl::fromLocalFile(text) : QUrl(text, QUrl::StrictMode);
  if (text.isEmpty() || !link.isValid() || link.scheme().isEmpty()) return false;
  if (link.isLocalFile() && !QFileInfo::exists(link.toLocalFile())) return false;
  return QDesktopServices::openUrl(link);
}

void ShowAsLink(CButton& button, bool visited) {
  auto* widget = qobject_cast<QPushButton*>(WidgetOf(&button));
  if (widget == nullptr) return;
  widget->setFlat(true);
  widget->setCursor(Qt::PointingHandCursor);
  // A style sheet, so that the colour follows the theme and the focus has a frame.
  widget->setStyleSheet(QStringLiteral("QPushButton { border: 1px solid transparent; padding: 1px 3px;"
                                       " text-align: left; text-decoration: underline; color: palette(%1); }"
                                       "QPushButton:focus { border: 1px dotted palette(window-text); }"
                                       "QPushButton:disabled { color: palette(mid); }")
                            .arg(visited ? QLatin1String("link-visited") : QLatin1String("link")));
}

}  // namespace coregui
