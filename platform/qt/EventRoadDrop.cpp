#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "platform/CWnd.h"
#include "platform/DroppedFiles.h"
#include "platform/WindowState.h"
#include "platform/qt/ControlWindow.h"
#include "platform/qt/EventRoad.h"
#include "platform/qt/interop.h"

// Files that are dragged onto a window.

namespace coregui {
namespace {

std::vector<CString> FilesOf(const QMimeData& data) {
  std::vector<CString> files;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) files.push_back(FromQt(url.toLocalFile()));
  }
  return files;
}

/// The program that offers files moves none away: it copies them, or else we only look at them.
Qt::DropAction ActionOf(const QDropEvent& event) {
  const Qt::DropActions possible = event.possibleActions();
  return (possible & Qt::CopyAction) != 0   ? Qt::CopyAction
         : (possible & Qt::LinkAction) != 0 ? Qt::LinkAction
                                            : Qt::IgnoreAction;
}

bool IsBlocked(const QWidget& widget) {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr && modal != &widget && !modal->isAncestorOf(&widget);
}

}  // namespace

bool EventRoad::DropFiles(QDropEvent& event) {
  CWnd& window = m_window->Window();
  if ((window.GetExStyle() & WS_EX_ACCEPTFILES) == 0) {
    return Other();  // a control has its own rule
  }
  const Qt::DropAction action = ActionOf(event);
  std::vector<CString> files = FilesOf(*event.mimeData());
  if (files.empty() || action == Qt::IgnoreAction || IsBlocked(m_receiver)) {
    event.ignore();
    return true;
  }
  event.setDropAction(action);
  event.accept();
  if (event.type() == QEvent::Drop) {
    coregui::DropFiles(window, std::move(files));
  }
  return true;
}

}  // namespace coregui

void DragAcceptFiles(HWND window, BOOL accept) {
  CWnd* target = CWnd::FromHandle(window);
  if (target == nullptr) {
    return;
  }
  DWORD& style = target->State().look.exStyle;
  style = accept != FALSE ? style | WS_EX_ACCEPTFILES : style & ~WS_EX_ACCEPTFILES;
  if (QWidget* widget = coregui::WidgetOf(target)) {
    widget->setAcceptDrops(accept != FALSE);
  }
}
