#include <QApplication>
#include <QEvent>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QStyleOptionSlider>
#include <array>
#include <initializer_list>
#include <optional>

#include "platform/System.h"

namespace {

constexpr std::size_t kCount = COLOR_HOTLIGHT + 1;
using Colours = std::array<COLORREF, kCount>;

struct Role {
  int index;
  QPalette::ColorGroup group;
  QPalette::ColorRole role;
  COLORREF light;
  COLORREF dark;
};

constexpr Role kRoles[] = {
    {COLOR_SCROLLBAR, QPalette::Active, QPalette::Window, RGB(200, 200, 200), RGB(45, 45, 45)},
    {COLOR_WINDOW, QPalette::Active, QPalette::Base, RGB(255, 255, 255), RGB(30, 30, 30)},
    {COLOR_WINDOWTEXT, QPalette::Active, QPalette::Text, RGB(0, 0, 0), RGB(230, 230, 230)},
    {COLOR_HIGHLIGHT, QPalette::Active, QPalette::Highlight, RGB(0, 120, 215), RGB(38, 79, 120)},
    {COLOR_HIGHLIGHTTEXT, QPalette::Active, QPalette::HighlightedText, RGB(255, 255, 255),
     RGB(255, 255, 255)},
    {COLOR_BTNFACE, QPalette::Active, QPalette::Button, RGB(240, 240, 240), RGB(51, 51, 51)},
    {COLOR_BTNSHADOW, QPalette::Active, QPalette::Dark, RGB(160, 160, 160), RGB(30, 30, 30)},
    {COLOR_GRAYTEXT, QPalette::Disabled, QPalette::Text, RGB(109, 109, 109), RGB(130, 130, 130)},
    {COLOR_BTNTEXT, QPalette::Active, QPalette::ButtonText, RGB(0, 0, 0), RGB(230, 230, 230)},
    {COLOR_BTNHIGHLIGHT, QPalette::Active, QPalette::Light, RGB(255, 255, 255), RGB(80, 80, 80)},
    {COLOR_3DDKSHADOW, QPalette::Active, QPalette::Shadow, RGB(105, 105, 105), RGB(15, 15, 15)},
    {COLOR_3DLIGHT, QPalette::Active, QPalette::Midlight, RGB(227, 227, 227), RGB(64, 64, 64)},
    {COLOR_INFOTEXT, QPalette::Active, QPalette::ToolTipText, RGB(0, 0, 0), RGB(230, 230, 230)},
    {COLOR_INFOBK, QPalette::Active, QPalette::ToolTipBase, RGB(255, 255, 225), RGB(60, 60, 50)},
    {COLOR_HOTLIGHT, QPalette::Active, QPalette::Link, RGB(0, 102, 204), RGB(90, 170, 255)},
};

/// What the style draws a scroll bar on, where there is no thumb.
COLORREF ScrollBarGround() {
  QStyleOptionSlider bar;
  bar.palette = QApplication::palette();
  bar.state = QStyle::State_Enabled;
  bar.orientation = Qt::Vertical;
  bar.subControls = QStyle::SC_All;
  bar.maximum = 1;
  bar.sliderPosition = bar.sliderValue = 1;
  const QStyle& style = *QApplication::style();
  bar.rect = QRect(0, 0, style.pixelMetric(QStyle::PM_ScrollBarExtent, &bar), 300);
  QImage picture(bar.rect.size(), QImage::Format_RGB32);
  picture.fill(bar.palette.color(QPalette::Window));
  QPainter painter(&picture);
  style.drawComplexControl(QStyle::CC_ScrollBar, &bar, &painter);
  painter.end();
  const QRect above = style.subControlRect(QStyle::CC_ScrollBar, &bar, QStyle::SC_ScrollBarSubPage);
  const QColor ground = picture.pixelColor(above.isEmpty() ? bar.rect.center() : above.center());
  return RGB(ground.red(), ground.green(), ground.blue());
}

struct Theme {
  Colours colours{};  ///< what GetSysColor reads: the fixed ones over the theme's
  std::array<std::optional<COLORREF>, kCount> fixed;
  std::optional<QPalette> original;  ///< the desktop's palette, while another is chosen
  bool dark = false;                 ///< chosen before there was an application
  bool attached = false;             ///< to the application's palette
  bool choosing = false;             ///< SetDarkTheme is at work
  bool drawn = false;                ///< the scroll bar's colour was read from the style

  Theme() { Fill(nullptr); }

  /// From the palette; null: the defaults of the chosen look.
  void Fill(const QPalette* palette) {
    for (const Role& role : kRoles) {
      COLORREF colour = dark ? role.dark : role.light;
      if (palette != nullptr) {
        const QColor wanted = palette->color(role.group, role.role);
        colour = RGB(wanted.red(), wanted.green(), wanted.blue());
      }
      const auto index = static_cast<std::size_t>(role.index);
      colours[index] = fixed[index].value_or(colour);
    }
    drawn = false;
  }

  /// Reads the scroll bar's colour from the style: when it is wanted, for that takes long.
  void ReadScrollBar() {
    drawn = true;
    if (attached && !fixed[COLOR_SCROLLBAR]) colours[COLOR_SCROLLBAR] = ScrollBarGround();
  }
};

Theme& TheTheme() {
  static auto& theme = *new Theme;  // never destroyed: see WindowRegistry.cpp
  return theme;
}

/// Keeps the table with the application's palette. Owned by the application.
class PaletteWatch : public QObject {
 public:
  explicit PaletteWatch(QObject* application) : QObject(application) {
    application->installEventFilter(this);
  }
  ~PaletteWatch() override {
    TheTheme().attached = false;
    TheTheme().original.reset();
    TheTheme().Fill(nullptr);
  }
  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() == QEvent::ApplicationPaletteChange && receiver == parent()) Refresh();
    return false;
  }
  static void Refresh() {
    if (!TheTheme().choosing) TheTheme().original.reset();  // the desktop has a new one
    const QPalette palette = QApplication::palette();
    TheTheme().Fill(&palette);
  }
};

QPalette PaletteOf(bool dark) {
  QPalette palette;
  for (const Role& role : kRoles) {
    const COLORREF colour = dark ? role.dark : role.light;
    const QColor wanted(GetRValue(colour), GetGValue(colour), GetBValue(colour));
    if (role.index == COLOR_SCROLLBAR) continue;
    if (role.group == QPalette::Disabled) {
      palette.setColor(QPalette::Disabled, QPalette::Text, wanted);
      palette.setColor(QPalette::Disabled, QPalette::WindowText, wanted);
      palette.setColor(QPalette::Disabled, QPalette::ButtonText, wanted);
      continue;
    }
    palette.setColor(QPalette::Active, role.role, wanted);
    palette.setColor(QPalette::Inactive, role.role, wanted);
    if (role.role != QPalette::Text && role.role != QPalette::ButtonText) {
      palette.setColor(QPalette::Disabled, role.role, wanted);
    }
  }
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    palette.setColor(group, QPalette::Window, palette.color(QPalette::Active, QPalette::Button));
    palette.setColor(group, QPalette::AlternateBase, palette.color(QPalette::Active, QPalette::Midlight));
    if (group != QPalette::Disabled) {
      palette.setColor(group, QPalette::WindowText, palette.color(QPalette::Active, QPalette::Text));
    }
  }
  palette.setColor(QPalette::PlaceholderText, palette.color(QPalette::Disabled, QPalette::Text));
  return palette;
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < 128;
}

void SetRole(QPalette::ColorRole role, const QColor& colour, std::initializer_list<const char*> widgets) {
  QPalette palette = QApplication::palette();
  palette.setResolveMask(0);
  palette.setColor(role, colour);
  for (const char* widget : widgets) QApplication::setPalette(palette, widget);
}

/// The style draws the edge of a check box and the mark of the focus in darker shades of the window's and the
/// selection's colour, which cannot be seen on dark ground: there they are shades of lighter ones. The next
/// palette of the application takes this back.
void ShowEdgesOnDark() {
  SetRole(QPalette::Window, QColor(150, 150, 150), {"QCheckBox", "QRadioButton"});
  SetRole(QPalette::Highlight, QColor(90, 170, 255), {"QPushButton", "QComboBox", "QSlider"});
}

/// Gives the application a palette; keeps the one to come back to, if any.
void SwitchTo(Theme& theme, const QPalette& palette, const std::optional<QPalette>& original) {
  theme.choosing = true;
  QApplication::setPalette(palette);
  if (IsDark(palette)) ShowEdgesOnDark();
  theme.choosing = false;
  theme.original = original;
}

/// Joins the application as soon as there is one.
void Attach(Theme& theme) {
  auto* application = qobject_cast<QApplication*>(QCoreApplication::instance());
  if (application == nullptr) return;  // none, or one without windows, which has no palette
  theme.attached = true;
  new PaletteWatch(application);
  if (theme.dark && !IsDark(QApplication::palette())) {
    SwitchTo(theme, PaletteOf(true), QApplication::palette());
  }
  const QPalette palette = QApplication::palette();
  theme.Fill(&palette);
}

Theme& AttachedTheme() {
  Theme& theme = TheTheme();
  if (!theme.attached) Attach(theme);
  return theme;
}

void Refill(Theme& theme) {
  if (theme.attached) {
    const QPalette palette = QApplication::palette();
    theme.Fill(&palette);
  } else {
    theme.Fill(nullptr);
  }
}

}  // namespace

COLORREF GetSysColor(int index) {
  Theme& theme = AttachedTheme();
  if (index == COLOR_SCROLLBAR && !theme.drawn) theme.ReadScrollBar();
  return index >= 0 && index < static_cast<int>(kCount) ? theme.colours[static_cast<std::size_t>(index)] : 0;
}

void SetSysColor(int index, COLORREF colour) {
  if (index < 0 || index >= static_cast<int>(kCount)) return;
  Theme& theme = AttachedTheme();
  theme.fixed[static_cast<std::size_t>(index)] = colour;
  theme.colours[static_cast<std::size_t>(index)] = colour;
}

void ResetSysColors() {
  Theme& theme = AttachedTheme();
  theme.fixed = {};
  Refill(theme);
}

void SetDarkTheme(bool dark) {
  Theme& theme = AttachedTheme();
  theme.dark = dark;
  if (!theme.attached) {
    theme.Fill(nullptr);
  } else if (IsDarkTheme() != dark) {
    const bool back = theme.original.has_value() && IsDark(*theme.original) == dark;
    if (back) {
      SwitchTo(theme, *theme.original, std::nullopt);
    } else {
      SwitchTo(theme, PaletteOf(dark), theme.original ? theme.original : QApplication::palette());
    }
  }
}

bool IsDarkTheme() {
  const Theme& theme = AttachedTheme();
  return theme.attached ? IsDark(QApplication::palette()) : theme.dark;
}
