#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "controls/CNameEdit.h"
#include "module/CCoreGUIApp.h"
#include "module/ClassFactories.h"
#include "module/Registration.h"
#include "platform/Keys.h"
#include "tests/support/ShownWindow.h"
#include "tests/support/TestEnvironment.h"

namespace {

using coregui::ClassFactories;
using namespace coregui::test;

std::unique_ptr<CObject> MakeNameEdit() {
  return std::make_unique<CNameEdit>();
}

TEST(ClassFactories, MakeObjectsByNameUntilTheyAreRevoked) {
  ClassFactories factories;
  EXPECT_TRUE(factories.Register(L"App.Name", MakeNameEdit));
  EXPECT_FALSE(factories.Register(L"APP.NAME", MakeNameEdit)) << "the name is taken";
  EXPECT_FALSE(factories.Register(L"", MakeNameEdit));
  EXPECT_FALSE(factories.Register(L"App.None", nullptr));
  const auto made = factories.Create(L"app.name");
  EXPECT_NE(dynamic_cast<CNameEdit*>(made.get()), nullptr);
  EXPECT_EQ(factories.GetNames(), std::vector<CString>{L"App.Name"});
  EXPECT_TRUE(factories.Revoke(L"app.NAME"));
  EXPECT_FALSE(factories.Revoke(L"App.Name"));
  EXPECT_EQ(factories.Create(L"App.Name"), nullptr);
}

TEST(Registration, IsCountedAndUndoneAndLeavesANameThatAnotherModuleTook) {
  ClassFactories& factories = ClassFactories::Get();
  ASSERT_TRUE(factories.GetNames().empty()) << "nothing registers itself";
  EXPECT_FALSE(coregui::UnregisterLibrary());
  EXPECT_TRUE(coregui::RegisterLibrary());
  EXPECT_TRUE(coregui::RegisterLibrary());
  const auto names = factories.GetNames();
  for (const CString& name : names) EXPECT_NE(factories.Create(name), nullptr) << name.ToUtf8();
  EXPECT_TRUE(factories.Has(L"CoreGUI.NameEdit"));
  EXPECT_TRUE(coregui::UnregisterLibrary());
  EXPECT_EQ(factories.GetNames(), names);
  EXPECT_TRUE(coregui::UnregisterLibrary());
  EXPECT_TRUE(factories.GetNames().empty());
  factories.Register(L"CoreGUI.WidthComboBox", MakeNameEdit);
  EXPECT_FALSE(coregui::RegisterLibrary());
  EXPECT_FALSE(coregui::IsLibraryRegistered());
  EXPECT_EQ(factories.GetNames().size(), 1U);
  factories.Revoke(L"CoreGUI.WidthComboBox");
}

TEST(CoreGUIApp, SetsUpOnceAndUndoesItsRegistration) {
  unsetenv("USERNAME");
  {
    CCoreGUIApp app;
    EXPECT_NE(getenv("USERNAME"), nullptr);
    EXPECT_TRUE(app.InitInstance());
    EXPECT_TRUE(app.InitInstance());
    EXPECT_TRUE(app.WriteProfileInt(L"S", L"E", 5));
    const CString path = coregui::Profile::Get().GetPath();
    EXPECT_GE(path.Find(L"/Fenwarrow/Strandmere 8.1.ini"), 0) << path.ToUtf8();
    EXPECT_TRUE(std::filesystem::exists(path.ToUtf8()));
    app.ExitInstance();
    EXPECT_FALSE(coregui::IsLibraryRegistered());
    EXPECT_TRUE(app.InitInstance());
  }
  EXPECT_FALSE(coregui::IsLibraryRegistered());
  setenv("USERNAME", "tester", 1);
}

struct HelpedApp : CCoreGUIApp {
  bool OnShowHelp(const CString& file) override {
    shown = file;
    return viewer;
  }
  CString shown;
  bool viewer = true;
};

TEST(CoreGUIApp, TellsWhichHelpFileIsMissing) {
  HelpedApp app;
  EXPECT_EQ(app.GetHelpFile().Right(15), L"/Strandmere.chm");
  const std::string file = ScratchFolder() + "/Strandmere.chm";
  app.SetHelpFolder(CString::FromUtf8(ScratchFolder()));
  const auto failure = [&app] { return Told([&app] { EXPECT_FALSE(app.OpenHelp()); }); };
  EXPECT_EQ(failure(), "Error (stop): The help file \"" + file + "\" was not found.");
  EXPECT_EQ(app.shown, L"");
  std::ofstream(file) << "x";
  EXPECT_TRUE(app.OpenHelp());
  EXPECT_EQ(app.shown.ToUtf8(), file);
  app.viewer = false;
  EXPECT_EQ(failure(), "Error (stop): There is no program to open the help file \"" + file + "\" with.");
}

}  // namespace
