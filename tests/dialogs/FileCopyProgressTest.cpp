#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

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
  static int Bar(const ShownWindow& window) {
    return static_cast<CProgressCtrl*>(window.Window()->GetDlgItem(CFileCopyProgressDlg::kBarId))->GetPos();
  }
  /// Copies, with the timers fired by hand, where that fails, with the rights of an ordinary user where asked
  /// for: `error` is shown.
  bool FailingCopy(const std::string& from, const std::string& to, int error, bool ordinary = false) {
    const NextWindow dialog([&](ShownWindow& window) {
      CWnd* shown = window.Window();
      {
        const auto user = ordinary ? std::make_unique<OrdinaryUser>() : nullptr;
        shown->SendMessage(WM_TIMER, CFileCopyProgressDlg::kStartTimer);
      }
      m_box = std::make_unique<NextWindow>([&](ShownWindow& box) {
        EXPECT_EQ(box.Title(), "Error");
        const CString reason = GetErrorText(static_cast<DWORD>(error));
        EXPECT_EQ(box.Text(),
                  CString::Formatted(L"File Copy Error failed with error %d: %s", error, reason.GetString())
                      .ToUtf8());
        box.Click("OK");
      });
      shown->SendMessage(WM_TIMER, CFileCopyProgressDlg::kCloseTimer);
    });
    const bool copied = coreCopyFilesWithProgress(Wide(from), Wide(to), L"");
    m_box.reset();
    return copied;
  }
  std::unique_ptr<NextWindow> m_box;
};

TEST_F(FileCopyProgressTest, TheBarAndTheAmountFollowTheCopy) {
  struct Row {
    std::size_t size;
    std::size_t then;  // when the copy starts
    const wchar_t* before;
    const wchar_t* after;
  };
  constexpr Row rows[] = {{0, 0, L"0 bytes", L"0 bytes/0 bytes"},
                          {4, 15, L"4 bytes", L"15 bytes/15 bytes"},
                          {1536, 1536, L"1.50 KB", L"1.50 KB/1.50 KB"}};
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
      EXPECT_EQ(Bar(window), 201);
      EXPECT_TRUE(window.IsOpen());
      window.Window()->SendMessage(WM_TIMER, CFileCopyProgressDlg::kCloseTimer);
    });
    EXPECT_TRUE(coreCopyFilesWithProgress(Wide("a"), Wide("b"), L"A & B"));
    EXPECT_EQ(Read("b"), std::string(row.then, 'y'));
  }
}

TEST_F(FileCopyProgressTest, TheEndIsOnePastTheBarsRangeIsKept) {
  constexpr std::uint64_t kGiga = std::uint64_t{1} << 30U;
  EXPECT_EQ(CFileCopyProgressDlg::BarPosition(1000, 0), 0);
  EXPECT_EQ(CFileCopyProgressDlg::BarPosition(1000, 1), 1);
  EXPECT_EQ(CFileCopyProgressDlg::BarPosition(1000, 500), 100);
  EXPECT_EQ(CFileCopyProgressDlg::BarPosition(10 * kGiga, 10 * kGiga - 1), 200);
  EXPECT_EQ(CFileCopyProgressDlg::BarPosition(10 * kGiga, 10 * kGiga), 201);
  EXPECT_EQ(CFileCopyProgressDlg::BarPosition(10, 11), 201);
  EXPECT_EQ(CFileCopyProgressDlg::BarPosition(0, 0), 201);
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
    CWnd* dialog = window.Window();
    const auto press = [&] {
      ++pressed;
      window.Key(VK_RETURN);
      window.Key(VK_ESCAPE);
      dialog->SendMessage(WM_CLOSE);
      EXPECT_TRUE(window.IsOpen());
    };
    press();
    const Meanwhile inTheCopy([&] {
      EXPECT_FALSE(fs::exists(At("b")));
      fs::remove(At("a"));  // what was opened is copied to its end
      press();
    });
    dialog->SendMessage(WM_TIMER, CFileCopyProgressDlg::kStartTimer);
    press();
    dialog->SendMessage(WM_TIMER, CFileCopyProgressDlg::kCloseTimer);
    EXPECT_FALSE(window.IsOpen());
  });
  EXPECT_TRUE(coreCopyFilesWithProgress(Wide("a"), Wide("b"), L""));
  EXPECT_EQ(pressed, 3);
  EXPECT_EQ(fs::file_size(At("b")), 3'000'000U);
}

TEST_F(FileCopyProgressTest, AFailureIsShownAndLeavesWhatWasThere) {
  EXPECT_FALSE(FailingCopy("missing", "b", ENOENT));
  Write("a", "x");
  EXPECT_FALSE(FailingCopy("a", "a", EINVAL));
  EXPECT_EQ(Read("a"), "x");
  EXPECT_EQ(Count(), 1U);
}

TEST_F(FileCopyProgressTest, ADiskThatIsFullOrFillsUpKeepsWhatItHas) {
  const std::string disk = At("disk");
  fs::create_directory(disk);
  if (::mount("none", disk.c_str(), "tmpfs", 0, "size=3m") != 0) {
    GTEST_SKIP() << "no small file system can be mounted here: " << GetErrorText(GetLastError()).ToUtf8();
  }
  Write("disk/b", "old");
  Write("a", std::string(5'000'000, 'x'));
  EXPECT_FALSE(FailingCopy("a", "disk/b", ENOSPC));
  Write("a", std::string(2'000'000, 'x'));
  {
    const Meanwhile someoneElse([&] { Write("disk/c", std::string(2'000'000, 'y')); });
    EXPECT_FALSE(FailingCopy("a", "disk/b", ENOSPC));
  }
  EXPECT_EQ(Read("disk/b"), "old");
  EXPECT_EQ(Count("disk"), 2U);
  EXPECT_EQ(::umount(disk.c_str()), 0);
}

TEST_F(FileCopyProgressTest, WhatMayNotBeWrittenOrReadIsLeft) {
  Write("a", "new");
  fs::permissions(m_folder, fs::perms(0755));
  fs::create_directory(At("folder"));
  Write("folder/b", "old");
  const auto allow = [this](int folder, int target, int source) {
    fs::permissions(At("folder"), fs::perms(folder));
    fs::permissions(At("folder/b"), fs::perms(target));
    fs::permissions(At("a"), fs::perms(source));
  };
  constexpr int rows[][3] = {{0555, 0666, 0644}, {0777, 0444, 0644}, {0777, 0666, 0200}};
  for (const auto& [folder, target, source] : rows) {
    allow(folder, target, source);
    EXPECT_FALSE(FailingCopy("a", "folder/b", EACCES, true));
    allow(0777, 0666, 0644);
    EXPECT_EQ(Count("folder"), 1U);
    EXPECT_EQ(Read("folder/b"), "old");
  }
}

}  // namespace
