#include "tests/support/ShownWindow.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "platform/CWnd.h"
#include "platform/qt/interop.h"
#include "tests/support/ToolkitKey.h"

namespace coregui::test {
namespace {

std::string Plain(QString text) {
  return text.remove('&').toStdString();
}

void Send(QWidget& window, int key, const QString& text = {}) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QWidget* focus = window.focusWidget();
    QKeyEvent event(type, key, Qt::NoModifier, text);
    const QPointer<QWidget> alive(&window);
    QApplication::sendEvent(focus == nullptr ? &window : focus, &event);
    if (alive.isNull() || !alive->isVisible()) return;
  }
}

bool IsDialogLike(const QWidget& widget) {
  return widget.isWindow() && widget.windowType() != Qt::ToolTip && widget.windowType() != Qt::Popup;
}

void CloseWindow(QWidget& widget) {
  if (auto* dialog = qobject_cast<QDialog*>(&widget)) {
    dialog->done(0);
  } else {
    widget.close();
  }
}

/// The window that a NextWindow waits for or has met last.
const QWidget*& Expected() {
  static const QWidget* expected = nullptr;
  return expected;
}

}  // namespace

std::string ShownWindow::Title() const {
  return m_widget.windowTitle().toStdString();
}

std::string ShownWindow::Text() const {
  const auto* box = qobject_cast<QMessageBox*>(&m_widget);
  return box == nullptr ? "no message box" : box->text().toStdString();
}

std::string ShownWindow::Icon() const {
  const auto* box = qobject_cast<QMessageBox*>(&m_widget);
  if (box == nullptr) return "no message box";
  constexpr const char* kNames[] = {"none", "information", "warning", "stop", "question"};
  return kNames[box->icon()];
}

std::vector<std::string> ShownWindow::Buttons() const {
  QList<QPushButton*> buttons = m_widget.findChildren<QPushButton*>();
  std::sort(buttons.begin(), buttons.end(), [](const auto* a, const auto* b) { return a->x() < b->x(); });
  std::vector<std::string> texts;
  for (const QPushButton* button : buttons) {
    if (button->isVisible()) texts.push_back(Plain(button->text()));
  }
  return texts;
}

std::string ShownWindow::CheckBox() const {
  const auto* box = m_widget.findChild<QCheckBox*>();
  return box == nullptr ? "" : Plain(box->text()) + (box->isChecked() ? " x" : "");
}

std::string ShownWindow::Focus() const {
  QWidget* focus = m_widget.focusWidget();
  if (focus == nullptr) return "none";
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(focus);
  const QString description = face->text(QAccessible::Description);
  return Plain(face->text(QAccessible::Name) + (description.isEmpty() ? "" : " (" + description + ")"));
}

CWnd* ShownWindow::Window() const {
  return WindowOf(&m_widget);
}

CWnd* ShownWindow::Owner() const {
  return WindowOf(m_widget.parentWidget());
}

void ShownWindow::Click(const std::string& text) {
  for (QAbstractButton* button : m_widget.findChildren<QAbstractButton*>()) {
    if (button->isVisible() && Plain(button->text()) == text) {
      button->click();
      return;
    }
  }
  ADD_FAILURE() << "no button " << text;
}

void ShownWindow::Key(UINT key) {
  Send(m_widget, ToolkitKey(key));
}

void ShownWindow::Type(const std::string& text) {
  for (const QChar character : QString::fromStdString(text)) Send(m_widget, Qt::Key_unknown, character);
}

void ShownWindow::Choose(const std::string& path) {
  auto* edit = m_widget.findChild<QLineEdit*>("fileNameEdit");
  ASSERT_NE(edit, nullptr) << "no file dialog";
  edit->setFocus();  // first: the focus may bring another name along
  edit->setText(QString::fromStdString(path));
  Send(m_widget, Qt::Key_Return);
}

void ShownWindow::Close() {
  m_widget.close();
}

bool ShownWindow::IsOpen() const {
  return m_widget.isVisible();
}

std::string ShownWindow::Folder() const {
  const auto* dialog = qobject_cast<QFileDialog*>(&m_widget);
  return dialog == nullptr ? "no file dialog" : dialog->directory().absolutePath().toStdString();
}

bool ShownWindow::CanMakeFolder() const {
  const auto* button = m_widget.findChild<QToolButton*>("newFolderButton");
  return button != nullptr && button->isVisible() && button->isEnabled();
}

std::string ShownWindow::Filters() const {
  const auto* dialog = qobject_cast<QFileDialog*>(&m_widget);
  return dialog == nullptr ? "no file dialog" : dialog->nameFilters().join('\n').toStdString();
}

void ShownWindow::Draw(const std::string& mark) const {
  const QString folder = qEnvironmentVariable("COREGUI_PICTURES");
  if (folder.isEmpty()) return;
  if (CWnd* window = Window()) window->UpdateWindow();
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  const QString path = folder + "/" + test->name() + "-" + QString::fromStdString(mark) + ".png";
  EXPECT_TRUE(m_widget.grab().save(path)) << path.toStdString();
}

class NextWindow::Watch : public QObject {
 public:
  explicit Watch(std::function<void(ShownWindow&)> act) : m_act(std::move(act)) {
    qApp->installEventFilter(this);
  }
  bool WasMet() const { return m_met; }

  bool eventFilter(QObject* object, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(object);
    if (event->type() == QEvent::Show && widget != nullptr && IsDialogLike(*widget)) {
      qApp->removeEventFilter(this);
      Expected() = widget;
      QMetaObject::invokeMethod(
          this, [this, shown = QPointer<QWidget>(widget)] { Act(shown); }, Qt::QueuedConnection);
    }
    return false;
  }

 private:
  void Act(const QPointer<QWidget>& shown) {
    if (shown.isNull()) return;
    m_met = true;
    const bool failedBefore = testing::Test::HasFailure();
    ShownWindow window(*shown);
    static int count = 0;
    window.Draw(std::to_string(++count));
    {
      const NoWindow noOther;  // it would wait for a person for ever
      m_act(window);
    }
    // A window that a failure left open would keep the run waiting for ever.
    if (!failedBefore && testing::Test::HasFailure() && !shown.isNull() && shown->isVisible())
      CloseWindow(*shown);
  }

  std::function<void(ShownWindow&)> m_act;
  bool m_met = false;
};

NextWindow::NextWindow(std::function<void(ShownWindow&)> act)
    : m_watch(std::make_unique<Watch>(std::move(act))) {}

NextWindow::~NextWindow() {
  EXPECT_TRUE(m_watch->WasMet()) << "the expected window was never shown";
}

std::string Told(const std::function<void()>& run, const std::string& press) {
  std::string told;
  const NextWindow next([&](ShownWindow& box) {
    told = box.Title() + " (" + box.Icon() + "): " + box.Text();
    std::vector<std::string> choices = box.Buttons();
    if (!box.CheckBox().empty()) choices.insert(choices.begin(), box.CheckBox());
    for (std::size_t i = 0; choices.size() > 1 && i < choices.size(); ++i)
      told += (i == 0 ? " [" : ", ") + choices[i];
    if (choices.size() > 1) told += "]";
    box.Click(press);
  });
  run();
  return told;
}

class NoWindow::Watch : public QObject {
 public:
  Watch() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(object);
    if (event->type() == QEvent::Show && widget != nullptr && IsDialogLike(*widget) && widget != Expected()) {
      ADD_FAILURE() << "unexpected window: " << widget->windowTitle().toStdString() << " "
                    << ShownWindow(*widget).Text();
      QMetaObject::invokeMethod(
          widget, [widget] { CloseWindow(*widget); }, Qt::QueuedConnection);
    }
    return false;
  }
};

NoWindow::NoWindow() : m_watch(std::make_unique<Watch>()) {}
NoWindow::~NoWindow() = default;

}  // namespace coregui::test
