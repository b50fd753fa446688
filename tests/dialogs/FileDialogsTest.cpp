#include "dialogs/FileDialogs.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/DialogIds.h"
#include "platform/Profile.h"
#include "tests/support/ControlHost.h"
#include "tests/support/FolderTest.h"
#include "tests/support/ShownWindow.h"

namespace {

namespace fs = std::filesystem;
using namespace coregui::test;

class FileDialogsTest : public FolderTest {
 protected:
  FileDialogsTest() {
    fs::create_directory(At("sub"));
    Write("survey.csv", "x");
    Write("other.csv", "x");
  }
};

TEST_F(FileDialogsTest, AMissingFileIsFoundBesideTheOneThatNeedsItOrElseTheUserIsAsked) {
  CString path = L"C:\\data\\survey.csv";
  EXPECT_TRUE(coreGetNewFilePath(path, L"Survey", L"csv", Wide("project.ini"), nullptr));
  EXPECT_EQ(path, Wide("survey.csv"));
  // Without a folder to search the user is asked even for a file that exists.
  for (const wchar_t* searchIn : {L"name only", static_cast<const wchar_t*>(nullptr)}) {
    const auto find = [&] { EXPECT_FALSE(coreGetNewFilePath(path, L"Survey", L"csv", searchIn, nullptr)); };
    EXPECT_EQ(Told(find, "No"), "Confirmation (question): The following required file was not found:\n\n" +
                                    At("survey.csv") +
                                    "\n\nWould you like to look for the file yourself ? [Yes, No]");
    EXPECT_EQ(path, Wide("survey.csv"));
  }
}

TEST_F(FileDialogsTest, TheUserLooksForTheFileOrGivesUp) {
  ControlHost owner;
  for (const bool found : {true, false}) {
    coregui::Profile::Get().WriteInt(L"UnitTesting", L"PopupChoiceId", IDYES);
    const NextWindow next([&](ShownWindow& dialog) {
      EXPECT_EQ(dialog.Title(), "Find missing file");
      EXPECT_EQ(dialog.Owner(), &owner);
      EXPECT_EQ(dialog.Folder(), m_folder);
      EXPECT_EQ(dialog.Filters(), "Survey (*.csv)\nAll files (*)");
      if (!found) return dialog.Key(VK_ESCAPE);
      {
        const NextWindow refusal([](ShownWindow& box) { box.Click("OK"); });
        dialog.Choose(m_folder + "/no such file.csv");
      }
      EXPECT_TRUE(dialog.IsOpen());
      dialog.Choose(m_folder + "/other.csv");
    });
    CString path = Wide("lost.csv");
    EXPECT_EQ(coreGetNewFilePath(path, L"Survey", L"*.csv", Wide("sub/x"), &owner), found);
    EXPECT_EQ(path, Wide(found ? "other.csv" : "lost.csv"));
  }
}

TEST_F(FileDialogsTest, FiltersAreTakenWholeOrMadeOfNameAndExtension) {
  struct Row {
    const wchar_t* text1;
    const wchar_t* text2;
    const char* filters;
  };
  constexpr Row rows[] = {{L"A|*.a;*.b|All|*.*||", L"a", "A (*.a *.b)\nAll (*)"},
                          {L"", L"csv", "*.csv (*.csv)\nAll files (*)"}};
  CString path = Wide("draft.csv");
  for (const Row& row : rows) {
    const NextWindow next([&](ShownWindow& dialog) {
      EXPECT_EQ(dialog.Title(), "Open");
      EXPECT_EQ(dialog.Filters(), row.filters);
      dialog.Key(VK_ESCAPE);
    });
    EXPECT_FALSE(coreFileDialog(L"Open", path, row.text1, row.text2, true, 0));
  }
  const NextWindow next([&](ShownWindow& dialog) { dialog.Choose(m_folder + "/new"); });
  EXPECT_TRUE(coreFileDialog(L"Save", path, L"Survey", L".csv", false, OFN_OVERWRITEPROMPT));
  EXPECT_EQ(path, Wide("new.csv"));
}

TEST_F(FileDialogsTest, AFolderIsChosenAndNoneIsMade) {
  CString folder = L"before";
  {
    const NextWindow next([&](ShownWindow& dialog) {
      EXPECT_EQ(dialog.Title(), "Where to?");
      EXPECT_EQ(dialog.Folder(), m_folder);
      EXPECT_FALSE(dialog.CanMakeFolder());
      dialog.Key(VK_ESCAPE);
    });
    EXPECT_FALSE(coreGetFolder(folder, L"Where to?", nullptr, Wide("").GetString()));
    EXPECT_EQ(folder, L"before");
  }
  const NextWindow next([&](ShownWindow& dialog) { dialog.Choose(m_folder + "/sub"); });
  EXPECT_TRUE(coreGetFolder(folder, L"Where to?", nullptr, nullptr));
  EXPECT_EQ(folder, Wide("sub"));
}

}  // namespace
