#include "platform/MessageBox.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <limits>
#include <memory>

#include "platform/Toolkit.h"
#include "platform/WindowFocus.h"
#include "platform/qt/ControlWindow.h"
#include "platform/qt/Transient.h"

namespace coregui {
namespace {

constexpr std::size_t kMostButtons = 4;

std::vector<MessageBoxButton> StandardButtons(UINT type) {
  const auto ok = MessageBoxButton{IDOK, L"OK"};
  const auto cancel = MessageBoxButton{IDCANCEL, L"Cancel"};
  const auto retry = MessageBoxButton{IDRETRY, L"&Retry"};
  switch (type & MB_TYPEMASK) {
    case MB_OKCANCEL:
      return {ok, cancel};
    case MB_ABORTRETRYIGNORE:
      return {{IDABORT, L"&Abort"}, retry, {IDIGNORE, L"&Ignore"}};
    case MB_YESNOCANCEL:
      return {{IDYES, L"&Yes"}, {IDNO, L"&No"}, cancel};
    case MB_YESNO:
      return {{IDYES, L"&Yes"}, {IDNO, L"&No"}};
    case MB_RETRYCANCEL:
      return {retry, cancel};
    default:
      return {ok};
  }
}

QMessageBox::Icon IconOf(UINT style) {
  switch (style & MB_ICONMASK) {
    case MB_ICONSTOP:
      return QMessageBox::Critical;
    case MB_ICONQUESTION:
      return QMessageBox::Question;
    case MB_ICONWARNING:
      return QMessageBox::Warning;
    case MB_ICONINFORMATION:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

/// The button that Esc and closing press; null: none.
const MessageBoxButton* EscapeButton(const std::vector<MessageBoxButton>& buttons) {
  const auto cancel =
      std::find_if(buttons.begin(), buttons.end(), [](const auto& b) { return b.id == IDCANCEL; });
  if (cancel != buttons.end()) return &*cancel;
  return buttons.size() == 1 ? &buttons.front() : nullptr;
}

/// One role for all keeps them in the order given, whatever the desktop's habit.
/// Esc and the frame's cross do nothing where no button stands for them.
void AddButtons(QMessageBox& box, const std::vector<MessageBoxButton>& buttons, UINT style) {
  const std::size_t wanted = (style & MB_DEFMASK) >> 8U;
  const MessageBoxButton* escape = EscapeButton(buttons);
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    QPushButton* button = box.addButton(ToQt(buttons[i].text), QMessageBox::ActionRole);
    button->setProperty("id", buttons[i].id);
    if (i == wanted || i == 0) box.setDefaultButton(button);
    if (escape == &buttons[i]) box.setEscapeButton(button);
  }
}

/// A text that leaves no room for the buttons on the screen is scrolled.
void ScrollLongText(QMessageBox& box) {
  auto* label = box.findChild<QLabel*>("qt_msgbox_label");
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (label == nullptr || grid == nullptr) return;
  const QSize most = box.screen()->availableSize() * 0.5;
  const QRect limits(0, 0, most.width(), std::numeric_limits<int>::max() / 2);
  const QSize needed = label->fontMetrics().boundingRect(limits, Qt::TextWordWrap, label->text()).size();
  if (needed.height() <= most.height()) return;
  auto text = std::make_unique<QLabel>(label->text());
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  auto area = std::make_unique<QScrollArea>();
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setWidgetResizable(true);
  area->setMinimumSize(needed.width() + area->verticalScrollBar()->sizeHint().width(), most.height());
  area->setWidget(text.release());
  int row = 0;
  int column = 0;
  int rows = 1;
  int columns = 1;
  grid->getItemPosition(grid->indexOf(label), &row, &column, &rows, &columns);
  label->hide();
  grid->addWidget(area.release(), row, column, rows, columns);
}

}  // namespace

int ShowMessageBox(const MessageBoxParams& params) {
  if (!EnsureToolkit()) return 0;
  const WindowRef focus(CWnd::GetFocus());
  const Transient<QMessageBox> box(params.owner);
  box->setTextFormat(Qt::PlainText);
  box->setText(ToQt(params.text));
  box->setWindowTitle(ToQt(params.caption));
  box->setIcon(IconOf(params.style));
  std::vector<MessageBoxButton> buttons = params.buttons;
  if (buttons.empty()) buttons = StandardButtons(params.style);
  buttons.resize(std::min(buttons.size(), kMostButtons));
  AddButtons(*box, buttons, params.style);
  if (!params.checkText.IsEmpty()) {
    auto check = std::make_unique<QCheckBox>(ToQt(params.checkText));
    check->setChecked(params.checked != nullptr && *params.checked != 0);
    box->setCheckBox(check.release());
  }
  ScrollLongText(*box);
  CWnd::ReleaseCapture();
  box->exec();
  if (!box) return 0;
  if (params.checked != nullptr && box->checkBox() != nullptr)
    *params.checked = box->checkBox()->isChecked() ? 1 : 0;
  if (CWnd* before = focus.Get()) before->SetFocus();
  const QAbstractButton* pressed = box->clickedButton();
  return pressed == nullptr ? 0 : pressed->property("id").toInt();
}

}  // namespace coregui

int CWnd::MessageBox(const wchar_t* text, const wchar_t* caption, UINT type) {
  coregui::MessageBoxParams params;
  params.owner = this;
  params.text = text;
  params.caption = caption;
  params.style = type;
  return coregui::ShowMessageBox(params);
}
