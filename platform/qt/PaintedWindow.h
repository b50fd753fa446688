#pragma once

#include "platform/qt/QtWindow.h"
#include "platform/qt/RasterTarget.h"
#include "platform/qt/Surface.h"

namespace coregui {

/// A window that we paint: its retained surface, and the widget that shows it.
class PaintedWindow : public QtWindow {
 public:
  PaintedWindow(CWnd& window, const CREATESTRUCT& create);
  ~PaintedWindow() override;

  void Move(const CRect& rect) override;
  void StyleChanged() override;
  std::shared_ptr<DrawTarget> Target() override { return m_target; }
  double Scale() const override { return m_surface->Scale(); }
  void Expose(const CRect& rect) override;
  bool HasDamage() const override { return m_surface->HasDamage(); }
  void ShowDamage(bool now) override;
  bool MovePixels(const CRect& rect, const CRect& clip, int dx, int dy) override;
  void PrintTo(CDC& dc) override;

 protected:
  bool HasOwnBehaviour() const override { return false; }
  void NoteGrid() override;
  void NoteWidgetSize() override;
  bool FilterOther(QWidget& receiver, QEvent& event) override;

 private:
  PaintedWindow(CWnd& window, const CREATESTRUCT& create, const std::shared_ptr<Surface>& surface);
  void FitSurface(CSize size);
  /// Has the toolkit move what it shows as the surface did. False where it cannot.
  bool MoveShown(const CRect& to, int dx, int dy);
  void TellScale();

  std::shared_ptr<Surface> m_surface;
  std::shared_ptr<RasterTarget> m_target;
  double m_toldScale = 1.0;   ///< what the window knows
  bool m_tellsScale = false;  ///< it is about to be told
};

}  // namespace coregui
