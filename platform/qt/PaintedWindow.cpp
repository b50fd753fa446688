#include "platform/qt/PaintedWindow.h"

#include <QBackingStore>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "platform/CDC.h"
#include "platform/CWnd.h"
#include "platform/System.h"
#include "platform/Toolkit.h"
#include "platform/WindowState.h"
#include "platform/qt/AccessibleWindow.h"
#include "platform/qt/PictureMemory.h"
#include "platform/qt/Pump.h"

namespace coregui {
namespace {

/// Whether the object is a widget that lies on its parent, and shows.
const QWidget* ShownChild(const QObject* object) {
  const auto* child = object->isWidgetType() ? static_cast<const QWidget*>(object) : nullptr;
  return child != nullptr && child->isVisible() && !child->isWindow() ? child : nullptr;
}

/// What of a part of the widget can be seen, or shines through what lies above.
QRegion Seen(const QWidget& widget, QRegion part) {
  for (const QObject* object : widget.children()) {
    const QWidget* above = ShownChild(object);
    if (above != nullptr && above->testAttribute(Qt::WA_OpaquePaintEvent) && above->mask().isEmpty()) {
      part -= above->geometry();
    }
  }
  return part;
}

CRect ToRect(const QRect& rect) {
  return {CPoint(rect.left(), rect.top()), CSize(rect.width(), rect.height())};
}

/// Which dots of the screen the pixels of a widget have, a border round them left out.
DotGrid GridOf(const QWidget& widget, int border) {
  const QPoint start = widget.mapTo(widget.window(), QPoint(border, border));
  return {widget.devicePixelRatioF(), CPoint(start.x(), start.y())};
}

/// Shows a surface. Painting it copies pixels and calls nothing of the library.
class SurfaceWidget : public QWidget {
 public:
  explicit SurfaceWidget(std::shared_ptr<Surface> surface) : m_surface(std::move(surface)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_InputMethodEnabled);
    setFocusPolicy(Qt::NoFocus);
  }
  /// Called by a paint where the pixels have other dots than on the surface: the screen's own scale was
  /// changed, or a program moved a widget of its own that the window lies on.
  std::function<void()> onOtherGrid;
  /// Pixels round the surface.
  int border = 0;

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (IsElsewhere() && onOtherGrid) onOtherGrid();
    const bool whole = event->region().boundingRect() == rect();
    const QRect client = rect().adjusted(border, border, -border, -border);
    QPoint corner;  // of the device, in this widget
    QPaintDevice* device = redirected(&corner);
    // Not a picture that somebody takes of the window.
    const bool onScreen = backingStore() != nullptr && device == backingStore()->paintDevice();
    QImage* picture =
        onScreen && device->devType() == QInternal::Image ? static_cast<QImage*>(device) : nullptr;
    if (picture != nullptr && whole) ExpectPicture(*picture);
    if (picture == nullptr || !CopyTo(*picture, corner, event->region(), client)) {
      Paint(event->region(), client);
    }
    if (onScreen && (whole || m_surface->HasDamage()) && (Seen(*this, client) - event->region()).isEmpty()) {
      m_surface->ForgetDamage();
    }
  }

 private:
  /// Whether the pixels have other dots here than on the surface.
  bool IsElsewhere() const {
    const DotGrid& grid = m_surface->Grid();
    return devicePixelRatioF() != grid.Scale() || (!grid.IsWhole() && !(GridOf(*this, border) == grid));
  }

  /// Copies a part of the surface, and of the border round it, where a picture has dots like the surface's;
  /// false where it has not. Between whole scales the toolkit's painter would leave out dots: it rounds the
  /// corner and the size of a part, which may have one more in its place.
  bool CopyTo(QImage& picture, const QPoint& corner, const QRegion& part, const QRect& client) {
    const DotGrid grid(m_surface->Scale());  // of the picture
    if (picture.format() != QImage::Format_RGB32 || grid.Scale() != picture.devicePixelRatio()) return false;
    const CRect shown = grid.Dots(ToRect(client.translated(-corner)));
    const CRect room(0, 0, picture.width(), picture.height());
    const CRect surface(shown.TopLeft(), m_surface->Dots());
    const std::ptrdiff_t stride = picture.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(std::uint32_t));
    auto* const first = reinterpret_cast<std::uint32_t*>(picture.bits());
    for (const QRect& exposed : part& client) {
      CRect dots = grid.Dots(ToRect(exposed.translated(-corner)));
      if (!dots.IntersectRect(dots, room) || !dots.IntersectRect(dots, surface)) continue;
      const CPoint from(dots.left - shown.left, dots.top - shown.top);
      m_surface->CopyDots(first + dots.top * stride + dots.left, stride, CRect(from, dots.Size()));
    }
    if (border > 0) {
      const COLORREF colour = GetSysColor(COLOR_3DDKSHADOW);
      for (const QRect& edge : part - client) {
        CRect dots = grid.Dots(ToRect(edge.translated(-corner)));
        dots.IntersectRect(dots, room);
        for (int y = dots.top; y < dots.bottom; ++y) {
          std::fill_n(first + y * stride + dots.left, dots.Width(), Opaque(colour));
        }
      }
    }
    return true;
  }

  void Paint(const QRegion& part, const QRect& client) {
    QPainter painter(this);
    if (border > 0) {
      const COLORREF colour = GetSysColor(COLOR_3DDKSHADOW);
      for (const QRect& edge : part - client) {
        painter.fillRect(edge, QColor::fromRgb(Opaque(colour)));
      }
      painter.translate(border, border);
    }
    for (const QRect& exposed : part& client) {
      m_surface->Expose(painter, ToRect(exposed.translated(-border, -border)));
    }
  }

  /// The toolkit has made memory for the picture of a whole window, which its widgets are to fill one by one.
  void ExpectPicture(const QImage& picture) {
    static qint64 last = 0;
    const qint64 number = picture.cacheKey() >> 32;
    if (std::exchange(m_picture, number) == number || std::exchange(last, number) == number) return;
    ExpectFill(picture.constBits(), static_cast<std::size_t>(picture.sizeInBytes()));
  }

  std::shared_ptr<Surface> m_surface;
  qint64 m_picture = 0;  ///< the number of the toolkit's picture of the window
};

/// A caption's frame is the desktop's.
bool HasBorder(const CWnd& window) {
  return (window.GetStyle() & WS_CAPTION) == WS_BORDER;
}

}  // namespace

std::unique_ptr<NativeWindow> MakePaintedWindow(CWnd& window, const CREATESTRUCT& create) {
  if (!EnsureToolkit()) {
    return nullptr;
  }
  DescribePaintedWindows();
  return std::make_unique<PaintedWindow>(window, create);
}

PaintedWindow::PaintedWindow(CWnd& window, const CREATESTRUCT& create)
    : PaintedWindow(window, create, std::make_shared<Surface>(CSize(), 1.0)) {}

PaintedWindow::PaintedWindow(CWnd& window, const CREATESTRUCT& create,
                             const std::shared_ptr<Surface>& surface)
    : QtWindow(window, create, std::make_unique<SurfaceWidget>(surface)),
      m_surface(surface),
      m_target(std::make_shared<RasterTarget>(surface)) {
  m_surface->onDamage = [this] { Pump::Get().QueueExposure(this); };
  m_surface->onMove = [this](const CRect& to, int dx, int dy) { return MoveShown(to, dx, dy); };
  PaintedWindow::StyleChanged();
  FitSurface(window.GetClientRectangle().Size());
  m_toldScale = m_surface->Scale();
  static_cast<SurfaceWidget*>(GetWidget())->onOtherGrid = [this] {
    QMetaObject::invokeMethod(
        this, [this] { NoteGrid(); }, Qt::QueuedConnection);
  };
}

PaintedWindow::~PaintedWindow() {
  if (auto* widget = static_cast<SurfaceWidget*>(GetWidget())) widget->onOtherGrid = nullptr;
  m_surface->onDamage = nullptr;
  m_surface->onMove = nullptr;
}

void PaintedWindow::FitSurface(CSize size) {
  QWidget* const widget = GetWidget();
  const DotGrid grid =
      widget == nullptr ? m_surface->Grid() : GridOf(*widget, static_cast<SurfaceWidget*>(widget)->border);
  const bool moved = !(grid == m_surface->Grid());
  m_surface->Resize(size, grid);
  if (moved) {
    // Between dots, the toolkit would move what it takes for opaque by whole ones.
    GetWidget()->setAttribute(Qt::WA_OpaquePaintEvent, grid.IsWhole());
    m_target = std::make_shared<RasterTarget>(m_surface);
    Window().Invalidate();
  }
}

void PaintedWindow::Move(const CRect& rect) {
  FitSurface(Window().GetClientRectangle().Size());
  QtWindow::Move(rect);
}

void PaintedWindow::StyleChanged() {
  auto* widget = static_cast<SurfaceWidget*>(GetWidget());
  const int border = HasBorder(Window()) ? 1 : 0;
  if (widget == nullptr || widget->border == border) {
    return;
  }
  widget->border = border;
  widget->update();
  Window().State().look.border = border;
  FitSurface(Window().GetClientRectangle().Size());
  for (const CWnd* child : Window().State().family.children) {
    if (child->State().native != nullptr) child->State().native->Move(child->State().look.rect);
  }
}

void PaintedWindow::NoteGrid() {
  const double before = m_surface->Scale();
  FitSurface(m_surface->Size());
  // Told later: the toolkit changes the screen of a window that moves before its place.
  if (m_surface->Scale() != before && !std::exchange(m_tellsScale, true)) {
    QMetaObject::invokeMethod(
        this, [this] { TellScale(); }, Qt::QueuedConnection);
  }
}

void PaintedWindow::TellScale() {
  m_tellsScale = false;
  if (std::exchange(m_toldScale, m_surface->Scale()) == m_surface->Scale()) {
    return;
  }
  // Logical pixels are what they were: so are the dots per inch that fonts are measured with, and the place.
  const int dots = Window().GetDpi();
  RECT place = Window().State().look.rect;
  Window().SendMessage(WM_DPICHANGED, MAKEWPARAM(dots, dots), reinterpret_cast<LPARAM>(&place));
}

void PaintedWindow::NoteWidgetSize() {
  if (GetWidget() != nullptr && GetWidget()->isVisible()) {
    const int edges = 2 * Window().State().look.border;
    FitSurface({std::max(0, GetWidget()->width() - edges), std::max(0, GetWidget()->height() - edges)});
  }
}

void PaintedWindow::Expose(const CRect& /*rect*/) {
  ShowDamage(false);
}

void PaintedWindow::ShowDamage(bool now) {
  constexpr int most = 8;  // pieces that are cheaper shown one by one
  const LONG border = Window().State().look.border;
  QRegion changed;
  for (const CRect& piece : m_surface->TakeDamage()) {
    changed += QRect(piece.left + border, piece.top + border, piece.Width(), piece.Height());
  }
  if (changed.rectCount() > most) changed = changed.boundingRect();
  // The toolkit would paint what lies above once more, though nobody sees what changed below it.
  if (GetWidget() != nullptr) changed = Seen(*GetWidget(), changed);
  if (!changed.isEmpty()) QtWindow::Expose(changed, now);
}

bool PaintedWindow::MoveShown(const CRect& to, int dx, int dy) {
  QWidget* widget = GetWidget();
  const int scale = static_cast<int>(m_surface->Scale());
  const auto isWhole = [scale](LONG dots) { return dots % scale == 0; };
  if (widget == nullptr || !widget->isVisible() || scale != m_surface->Scale() ||
      !(isWhole(to.left) && isWhole(to.top) && isWhole(to.right) && isWhole(to.bottom) && isWhole(dx) &&
        isWhole(dy))) {
    return false;
  }
  CRect from = to;
  from.OffsetRect(-dx, -dy);
  CRect both;
  both.UnionRect(from, to);
  const LONG border = Window().State().look.border;
  const QRect area(both.left / scale + border, both.top / scale + border, both.Width() / scale,
                   both.Height() / scale);
  // The toolkit would take the pixels of its children along.
  for (const QObject* object : widget->children()) {
    const QWidget* above = ShownChild(object);
    if (above != nullptr && above->geometry().intersects(area)) return false;
  }
  ShowDamage(false);  // what is not shown yet moves too
  widget->scroll(dx / scale, dy / scale, area);
  return true;
}

bool PaintedWindow::MovePixels(const CRect& rect, const CRect& clip, int dx, int dy) {
  return m_surface->MovePixels(rect, dx, dy, clip);
}

void PaintedWindow::PrintTo(CDC& dc) {
  CClientDC source(&Window());
  const CSize size = m_surface->Size();
  dc.BitBlt(0, 0, size.cx, size.cy, &source, 0, 0, SRCCOPY);
}

bool PaintedWindow::FilterOther(QWidget& /*receiver*/, QEvent& event) {
  if (event.type() == QEvent::ShortcutOverride) {
    // Characters typed into the window are for the window, not for single-key commands of a host program.
    auto& key = static_cast<QKeyEvent&>(event);
    const bool plain = (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
    if (plain && !key.text().isEmpty() && key.text().at(0).isPrint()) event.accept();
  }
  return false;
}

}  // namespace coregui
