#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <functional>

#include "dialogs/CFileCopyProgressDlg.h"
#include "platform/System.h"
#include "tests/support/FolderTest.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/ShownWindow.h"

namespace {

namespace fs = std::filesystem;
using namespace coregui::test;

class FileCopyProgressTest : public FolderTest {
 protected:
  static CString Text(const ShownWindow& window, UINT id) {
    return window.Window()->GetDlgItem(static_cast<int>(id))->GetWindowTextString();
  }
  /// Copies, with the timers fired by hand, where that fails, with the rights of an ordinary user where asked
  /// for: `error` is shown.
  void ExpectFailure(const std::string& from, const std::string& to, int error, bool ordinary = false) {
    const CString reason = GetErrorText(static_cast<DWORD>(error));
    std::unique_ptr<NextWindow> message;
    const NextWindow dialog([&](ShownWindow& window) {
      {
        const auto user = ordinary ? std::make_unique<OrdinaryUser>() : nullptr;
        window.Window()->SendMessage(WM_TIMER, CFileCopyProgressDlg::kStartTimer);
      }
      message = std::make_unique<NextWindow>([&](ShownWindow& box) {
        EXPECT_EQ(CString::FromUtf8(box.Title() + ": " + box.Text()),
                  CString::Formatted(L"Error: File Copy Error failed with error %d: %s", error,
                                     reason.GetString()));
        box.Click("OK");
      });
      window.Window()->SendMessage(WM_TIMER, CFileCopyProgressDlg::kCloseTimer);
    });
    EXPECT_FALSE(coreCopyFilesWithProgress(Wide(from), Wide(to), L""));
  }
};

TEST_F(FileCopyProgressTest, TheBarAndTheAmountFollowTheCopy) {
  struct Row {
    std::size_t size;
    std::size_t then;  // when the copy starts
    const wchar_t* before;
    const wchar_t* after;
  };
  constexpr Row rows[] = {{0, 0, L"0 bytes", L"0 bytes/0 bytes"},
                          {1536, 15, L"1.50 KB", L"15 bytes/15 bytes"}};
  for (const Row& row : rows) {
    Write("a", std::string(row.size, 'x'));
    Write("b", "old");
    const NextWindow next([&](ShownWindow& window) {
      EXPECT_EQ(Text(window, CFileCopyProgressDlg::kAmountId), row.before);
      EXPECT_EQ(Text(window, CFileCopyProgressDlg::kDescriptionId), L"A && B");
      EXPECT_EQ(Read("b"), "old");  // nothing happens before the dialog has been seen
      Write("a", std::string(row.then, 'y'));
      window.Window()->SendMessage(WM_TIMER, CFileCopyProgressDlg::kStartTimer);
      EXPECT_EQ(Text(window, CFileCopyProgressDlg::kAmountId), row.after);
      const CWnd* bar = window.Window()->GetDlgItem(CFileCopyProgressDlg::kBarId);
      EXPECT_EQ(static_cast<const CProgressCtrl*>(bar)->GetPos(), 201);
      window.Window()->SendMessage(WM_TIMER, CFileCopyProgressDlg::kCloseTimer);
    });
    EXPECT_TRUE(coreCopyFilesWithProgress(Wide("a"), Wide("b"), L"A & B"));
    EXPECT_EQ(Read("b"), std::string(row.then, 'y'));
  }
}

TEST_F(FileCopyProgressTest, TheEndIsOnePastTheBarsRangeIsKept) {
  constexpr std::uint64_t kTenGiga = std::uint64_t{10} << 30U;
  constexpr std::uint64_t rows[][3] = {
      {1000, 0, 0},  {1000, 1, 1}, {1000, 500, 100}, {kTenGiga, kTenGiga - 1, 200}, {kTenGiga, kTenGiga, 201},
      {10, 11, 201}, {0, 0, 201}};
  for (const auto& [total, transferred, position] : rows) {
    EXPECT_EQ(CFileCopyProgressDlg::BarPosition(total, transferred), static_cast<int>(position))
        << transferred;
  }
}

/// Acts when its posted message arrives: in the midst of the copy.
class Meanwhile : public CWnd {
 public:
  explicit Meanwhile(std::function<void()> act) : m_act(std::move(act)) {
    Create(L"", L"", WS_POPUP, CRect(0, 0, 1, 1), nullptr, 0);
    PostMessage(WM_APP);
  }
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_APP) m_act();
    return CWnd::WindowProc(message, wParam, lParam);
  }

 private:
  std::function<void()> m_act;
};

TEST_F(FileCopyProgressTest, NeitherKeysNorTheFrameEndTheDialog) {
  Write("a", std::string(3'000'000, 'x'));
  int pressed = 0;
  const NextWindow next([&](ShownWindow& window) {
    const auto press = [&] {
      ++pressed;
      window.Key(VK_RETURN);
      window.Key(VK_ESCAPE);
      window.Window()->SendMessage(WM_CLOSE);
      EXPECT_TRUE(window.IsOpen());
    };
    const Meanwhile inTheCopy([&] {
      EXPECT_FALSE(fs::exists(At("b")));
      fs::remove(At("a"));  // what was opened is copied to its end
      press();
    });
    window.Window()->SendMessage(WM_TIMER, CFileCopyProgressDlg::kStartTimer);
    press();
    window.Window()->SendMessage(WM_TIMER, CFileCopyProgressDlg::kCloseTimer);
    EXPECT_FALSE(window.IsOpen());
  });
  EXPECT_TRUE(coreCopyFilesWithProgress(Wide("a"), Wide("b"), L""));
  EXPECT_EQ(pressed, 2);
  EXPECT_EQ(fs::file_size(At("b")), 3'000'000U);
}

TEST_F(FileCopyProgressTest, AFailureIsShownAndLeavesWhatWasThere) {
  ExpectFailure("missing", "b", ENOENT);
  Write("a", "x");
  ExpectFailure("a", "a", EINVAL);
  EXPECT_EQ(Read("a"), "x");
  EXPECT_EQ(Count(), 1U);
}

TEST_F(FileCopyProgressTest, WhatMayNotBeWrittenOrReadIsLeft) {
  fs::create_directory(At("folder"));
  // The rights of the folder, of the target and of the source.
  constexpr int rows[][3] = {{0555, 0666, 0644}, {0777, 0444, 0644}, {0777, 0666, 0200}};
  for (const auto& [folder, target, source] : rows) {
    Write("a", "new");
    Write("folder/b", "old");
    fs::permissions(At("folder/b"), fs::perms(target));
    fs::permissions(At("folder"), fs::perms(folder));
    fs::permissions(At("a"), fs::perms(source));
    ExpectFailure("a", "folder/b", EACCES, true);
    fs::permissions(At("folder"), fs::perms(0777));
    EXPECT_EQ(Count("folder"), 1U);
    EXPECT_EQ(Read("folder/b"), "old");
    fs::remove(At("folder/b"));
    fs::remove(At("a"));
  }
}

}  // namespace
