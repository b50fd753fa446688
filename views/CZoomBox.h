#pragma once

#include "core/Export.h"
#include "platform/Geometry.h"

namespace coregui {

/// What a rubber-band zoom box does to the view in which it is stretched.
class CZoomBoxHost {
 public:
  virtual ~CZoomBoxHost() = default;
  /// Draws the outline so that drawing it again removes it.
  virtual void DrawBoxOutline(CPoint anchor, CPoint corner) = 0;
  virtual void CaptureForBox() = 0;
  virtual void ReleaseFromBox() = 0;
  virtual void LeaveZoomBoxMode() = 0;
  /// False when the zoom's notification destroyed the host.
  virtual bool ZoomToBox(CPoint anchor, CPoint corner) = 0;
  virtual void TellBoxStarted() = 0;
  virtual void TellBoxFinished() = 0;
  virtual void TellBoxCancelled() = 0;
};

/// The rubber-band zoom box: events in, commands to the host out. The views of a process share one, so only
/// one box is in progress at a time. Another view may finish or cancel it; its outline and the capture stay
/// with the view where it was started. The host may be destroyed by what it is told, which is the last it
/// hears of an event.
class COREGUI_API CZoomBox {
 public:
  /// The box that all views share.
  static CZoomBox& Shared();

  bool IsInProgress() const { return m_host != nullptr; }
  /// The box that was started in a host, for who paints over it; false when there is none.
  bool GetBox(const CZoomBoxHost& host, CPoint* anchor, CPoint* corner) const;
  /// Only in the view where the box was started.
  void Move(const CZoomBoxHost& host, CPoint at);
  void Click(CZoomBoxHost& host, CPoint at);
  /// A key: only Space finishes, and only a box in progress.
  void Key(CZoomBoxHost& host, char key);
  void Cancel(CZoomBoxHost& host);
  /// The host goes away: a box that was started in it is forgotten.
  void Forget(const CZoomBoxHost& host);

 private:
  void Finish(CZoomBoxHost& host);

  CZoomBoxHost* m_host = nullptr;  ///< borrowed: where the box was started; null when there is none
  CPoint m_anchor;
  CPoint m_corner;
};

}  // namespace coregui
