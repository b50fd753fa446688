#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>

#include "tests/support/LogWatch.h"
#include "tests/support/TestEnvironment.h"

namespace {

/// Fails a test for what it left behind, and gives the next one a clean start.
class CleanTests : public testing::EmptyTestEventListener {
 private:
  void OnTestStart(const testing::TestInfo& /*test*/) override { ReportLog("before the test"); }
  void OnTestEnd(const testing::TestInfo& /*test*/) override {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      EXPECT_FALSE(window->isVisible())
          << "the test left a window open: " << window->windowTitle().toStdString();
    }
    ReportLog("in the test");
    coregui::test::ResetGlobalState();
  }
  static void ReportLog(const char* when) {
    const std::string faults = coregui::test::CloseLog();
    EXPECT_TRUE(faults.empty()) << when << ":\n" << faults;
  }
};

}  // namespace

int main(int argc, char** argv) {
  coregui::test::FixEnvironment();
  testing::InitGoogleMock(&argc, argv);
  coregui::test::InstallLogWatch();
  const QApplication application(argc, argv);
  coregui::test::ResetGlobalState();
  testing::UnitTest::GetInstance()->listeners().Append(new CleanTests);
  return RUN_ALL_TESTS();
}
