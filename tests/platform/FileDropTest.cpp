#include "platform/FileDrop.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include "platform/CEdit.h"
#include "platform/CWinApp.h"
#include "tests/platform/LogWindow.h"

namespace {

using namespace coregui::test;

/// Takes files as a program does, and writes down their paths.
class DropTarget : public LogWindow {
 public:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != WM_DROPFILES) return LogWindow::WindowProc(message, wParam, lParam);
    drop = reinterpret_cast<HDROP>(wParam);
    for (UINT i = 0; i < DragQueryFile(drop, DRAG_COUNT, nullptr, 0); ++i) {
      std::wstring path(DragQueryFile(drop, i, nullptr, 0) + 1, L'?');
      EXPECT_EQ(DragQueryFile(drop, i, path.data(), static_cast<UINT>(path.size())) + 1, path.size());
      dropped += path.c_str() + CString(L"|");
    }
    return 0;
  }
  CString dropped;
  HDROP drop = nullptr;
};

class FileDrop : public testing::Test {
 protected:
  FileDrop() {
    EXPECT_TRUE(window.Open());
    DragAcceptFiles(window.GetSafeHwnd(), TRUE);
    files.setUrls({QUrl::fromLocalFile(QString::fromUtf8("/a b/L\xC3\xA4ng%20\n.csv")),
                   QUrl("http://somewhere/c.csv"), QUrl::fromLocalFile("/d.csv")});
  }
  /// Drags over a window and lets go where that is allowed; what the source is told to do.
  static Qt::DropAction Drop(CWnd& on, const QMimeData& data,
                             Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction) {
    QWidget* widget = WidgetOf(&on);
    QDragEnterEvent enter(QPoint(3, 3), offered, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &enter);
    if (!enter.isAccepted()) {
      QDragLeaveEvent leave;
      QCoreApplication::sendEvent(widget, &leave);
      return Qt::IgnoreAction;
    }
    QDragMoveEvent move(QPoint(5, 5), offered, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
    EXPECT_TRUE(move.isAccepted());
    QDropEvent drop(QPointF(5, 5), offered, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &drop);
    return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
  }

  DropTarget window;
  QMimeData files;
};

TEST_F(FileDrop, FilesReachTheWindowAfterTheirSourceIsDone) {
  OpenWindow inside(window, CRect(10, 10, 100, 60));
  EXPECT_EQ(Drop(inside, files), Qt::CopyAction);
  EXPECT_EQ(window.dropped, L"");
  CWinApp::PumpPending();
  EXPECT_EQ(window.dropped, L"/a b/L\u00E4ng%20\n.csv|/d.csv|");
  wchar_t cut[4] = L"???";
  EXPECT_EQ(DragQueryFile(window.drop, 1, cut, 4), 3U);
  EXPECT_STREQ(cut, L"/d.");
  EXPECT_EQ(DragQueryFile(window.drop, 1, cut, 0), 0U);
  EXPECT_EQ(DragQueryFile(window.drop, 2, cut, 4), 0U);
  DragFinish(window.drop);
  EXPECT_EQ(DragQueryFile(window.drop, DRAG_COUNT, nullptr, 0), 0U);
  EXPECT_EQ(DragQueryFile(nullptr, DRAG_COUNT, nullptr, 0), 0U);
}

TEST_F(FileDrop, IsRefusedWhereNothingTakesIt) {
  QMimeData text;
  text.setText("/d.csv");
  EXPECT_EQ(Drop(window, text), Qt::IgnoreAction);
  text.setUrls({QUrl("http://somewhere/c.csv")});
  EXPECT_EQ(Drop(window, text), Qt::IgnoreAction);
  EXPECT_EQ(Drop(window, files, Qt::MoveAction), Qt::IgnoreAction);  // the source would delete them
  EXPECT_EQ(Drop(window, files, Qt::LinkAction | Qt::MoveAction), Qt::LinkAction);
  CWinApp::PumpPending();
  window.dropped.Empty();
  {
    LogWindow modal;
    modal.Open();
    WidgetOf(&modal)->hide();
    WidgetOf(&modal)->setWindowModality(Qt::ApplicationModal);
    WidgetOf(&modal)->show();
    EXPECT_EQ(Drop(window, files), Qt::IgnoreAction);
  }
  window.EnableWindow(FALSE);
  EXPECT_EQ(Drop(window, files), Qt::IgnoreAction);
  window.EnableWindow(TRUE);
  DragAcceptFiles(window.GetSafeHwnd(), FALSE);
  EXPECT_EQ(Drop(window, files), Qt::IgnoreAction);
  // What is created to take files needs no more.
  DropTarget born;
  ASSERT_TRUE(born.CreateEx(WS_EX_ACCEPTFILES, L"", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                            CRect(0, 0, 90, 90), nullptr, 0));
  EXPECT_EQ(Drop(born, files), Qt::CopyAction);
  CWinApp::PumpPending();
  EXPECT_NE(born.dropped, L"");
  EXPECT_EQ(window.dropped, L"");
}

TEST_F(FileDrop, AnEditControlTakesTextsAndLeavesFilesToItsParent) {
  CEdit edit;
  ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(10, 60, 100, 90), &window, 7));
  QMimeData text;
  text.setText("12.5");
  EXPECT_EQ(Drop(edit, text), Qt::CopyAction);
  EXPECT_EQ(edit.GetWindowTextString(), L"12.5");
  EXPECT_EQ(Drop(edit, files), Qt::CopyAction);
  CWinApp::PumpPending();
  EXPECT_NE(window.dropped, L"");
  DragAcceptFiles(window.GetSafeHwnd(), FALSE);
  EXPECT_EQ(Drop(edit, files), Qt::IgnoreAction);
  EXPECT_EQ(edit.GetWindowTextString(), L"12.5");
}

}  // namespace
