#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>

#include "platform/CDC.h"
#include "platform/CWnd.h"
#include "platform/WindowState.h"

namespace {

class ClickWindow : public CWnd {
 public:
  const coregui::MessageTable& GetMessageTable() const override {
    static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                   .On<WM_LBUTTONDOWN>(&ClickWindow::HandleDown)
                                                   .On<WM_PAINT>(&ClickWindow::HandlePaint);
    return table;
  }
  CString log;

 private:
  void HandleDown(UINT flags, CPoint at) { log.AppendFormat(L"down %u %d,%d;", flags, at.x, at.y); }
  void HandlePaint() {
    CPaintDC dc(this);
    dc.FillSolidRect(GetClientRectangle(), RGB(10, 20, 30));
    log += L"paint;";
  }
};

QWidget* WidgetOf(CWnd& window) { return static_cast<QWidget*>(window.State().native->Widget()); }

TEST(WindowRoad, AClickAndAMessageReachTheSameHandlerWithTheSameArguments) {
  ClickWindow window;
  ASSERT_TRUE(window.Create(L"", L"road", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 200, 100), nullptr, 0));
  QCoreApplication::processEvents();
  EXPECT_EQ(window.log, L"paint;");
  window.log.Empty();
  QTest::mousePress(WidgetOf(window), Qt::LeftButton, Qt::ControlModifier, QPoint(12, 34));
  const CString byHand = window.log;
  window.log.Empty();
  window.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_CONTROL, MAKELPARAM(12, 34));
  EXPECT_EQ(byHand, L"down 9 12,34;");
  EXPECT_EQ(window.log, byHand);
  CClientDC dc(&window);
  EXPECT_EQ(dc.GetPixel(5, 5), RGB(10, 20, 30));
}

}  // namespace
