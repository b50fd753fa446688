#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/Types.h"

class CWnd;
class QWidget;

/// Finds and operates modal windows as a person does, whoever made them: by what they show and by keys. No
/// test waits for time: what is to be done with a window is done as soon as the window is shown.
namespace coregui::test {

/// A window on the screen. Texts are UTF-8, without the marks of access keys.
class ShownWindow {
 public:
  explicit ShownWindow(QWidget& widget) : m_widget(widget) {}

  std::string Title() const;
  /// The text of a message box.
  std::string Text() const;
  /// A message box's icon: "stop", "question", "warning", "information" or "none".
  std::string Icon() const;
  /// The texts of the push buttons, from left to right.
  std::vector<std::string> Buttons() const;
  /// The text of the check box, a " x" behind it when it is checked; empty without one.
  std::string CheckBox() const;
  /// What a screen reader says of the widget with the focus: name, then description in brackets.
  std::string Focus() const;
  /// The window's object, when it is one of ours.
  CWnd* Window() const;
  /// The window that it stands in front of; null for none.
  CWnd* Owner() const;

  /// Presses the push button or check box with this text. A missing one fails the test.
  void Click(const std::string& text);
  /// Presses and releases a key (VK_ value) where the focus is.
  void Key(UINT key);
  /// Types a text where the focus is.
  void Type(const std::string& text);
  /// In a file or folder dialog: enters a path and accepts it.
  void Choose(const std::string& path);
  /// Presses the frame's cross.
  void Close();
  bool IsOpen() const;
  /// In a file or folder dialog: the folder shown, and whether a folder can be made.
  std::string Folder() const;
  bool CanMakeFolder() const;
  /// The name filters of a file dialog, one a line.
  std::string Filters() const;
  /// Draws the window into the folder of the environment variable COREGUI_PICTURES, for people to look at;
  /// the file bears the test's name and `mark`. Nothing without the variable.
  void Draw(const std::string& mark) const;

 private:
  QWidget& m_widget;
};

/// Does something with the next window that is shown, once its event loop runs. The test fails when none was
/// shown during this object's life.
///
/// With the environment variable COREGUI_PICTURES, each window met is drawn into that folder.
class NextWindow {
 public:
  explicit NextWindow(std::function<void(ShownWindow&)> act);
  ~NextWindow();
  NextWindow(const NextWindow&) = delete;
  NextWindow& operator=(const NextWindow&) = delete;

 private:
  class Watch;
  std::unique_ptr<Watch> m_watch;
};

/// Runs what shows a message box, presses a button of it, and gives the box in words: "title (icon): text",
/// with the check box and the buttons in brackets where there is more to press than one button.
std::string Told(const std::function<void()>& run, const std::string& press = "OK");

/// Fails the test when a window is shown during this object's life, and closes it.
class NoWindow {
 public:
  NoWindow();
  ~NoWindow();
  NoWindow(const NoWindow&) = delete;
  NoWindow& operator=(const NoWindow&) = delete;

 private:
  class Watch;
  std::unique_ptr<Watch> m_watch;
};

}  // namespace coregui::test
