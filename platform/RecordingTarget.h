#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

#include "platform/CallLog.h"
#include "platform/DrawTarget.h"

namespace coregui {

/// Draws nothing; the context writes its calls to the log, where there is one. Every character has the same
/// size. Without a log and without dots it stands behind contexts that have no device.
class RecordingTarget final : public DrawTarget {
 public:
  RecordingTarget(CSize character, CSize device, bool logs)
      : DrawTarget(1.0), m_character(character), m_device(device), m_logs(logs) {
    m_log.SetDevice(CRect(CPoint(), device));
  }
  CSize Dots() const override { return m_device; }
  CallLog* Log() override { return m_logs ? &m_log : nullptr; }
  int Capability(int index) const override {
    switch (index) {
      case HORZRES:
        return m_device.cx;
      case VERTRES:
        return m_device.cy;
      default:
        return DotsPerInch();
    }
  }
  void Polyline(const DrawAttributes&, const POINT*, int) override {}
  void PolylineF(const DrawAttributes&, const double*, int) override {}
  void Polygon(const DrawAttributes&, const POINT*, int) override {}
  void DrawShape(const DrawAttributes&, Shape, const CRect&, const ShapeDetail&) override {}
  void Fill(const DrawAttributes&, const CRect&, COLORREF) override {}
  void FillHatched(const DrawAttributes&, const CRect&, const CBrush&) override {}
  void Invert(const DrawAttributes&, const CRect&) override {}
  void FocusRect(const DrawAttributes&, const CRect&) override {}
  COLORREF ReadPixel(const DrawAttributes&, int, int) const override { return 0xFFFFFFFF; }
  int TextWidth(const DrawAttributes&, const wchar_t*, int length) override {
    constexpr std::int64_t limit = std::numeric_limits<int>::max();
    return static_cast<int>(std::min<std::int64_t>(std::int64_t{length} * m_character.cx, limit));
  }
  TEXTMETRIC Metrics(const DrawAttributes&) override {
    TEXTMETRIC metrics;
    metrics.tmHeight = m_character.cy;
    metrics.tmDescent = m_character.cy / 4;
    metrics.tmAscent = m_character.cy - metrics.tmDescent;
    metrics.tmAveCharWidth = m_character.cx;
    metrics.tmMaxCharWidth = m_character.cx;
    return metrics;
  }
  void Text(const DrawAttributes&, int, int, const wchar_t*, int) override {}
  void Bitmap(const DrawAttributes&, const BitmapData&, const CRect&) override {}
  bool Copy(const DrawAttributes&, const CRect&, DrawTarget&, CPoint, bool) override { return true; }

 private:
  CSize m_character;
  CSize m_device;
  bool m_logs;
  CallLog m_log;
};

}  // namespace coregui
