#include "platform/CDC.h"

#include <limits>

#include "platform/CallLog.h"
#include "platform/DrawTarget.h"

namespace coregui {

namespace {

/// Draws nothing; the context writes its calls to the log. Every character has the same size.
class RecordingTarget final : public DrawTarget {
 public:
  RecordingTarget(CSize character, CSize device) : DrawTarget(1.0), m_character(character), m_device(device) {
    m_log.SetDevice(CRect(CPoint(), device));
  }
  CSize Dots() const override { return m_device; }
  CallLog* Log() override { return &m_log; }
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
  CallLog m_log;
};

}  // namespace

}  // namespace coregui

CRecordingDC::CRecordingDC(int characterWidth, int characterHeight, CSize device)
    : CDC(std::make_shared<coregui::RecordingTarget>(CSize(characterWidth, characterHeight), device)) {}

CRecordingDC::~CRecordingDC() = default;

CString CRecordingDC::GetLog() const {
  std::wstring all;
  for (const std::wstring& line : Target()->Log()->Lines()) {
    if (!all.empty()) {
      all += L'\n';
    }
    all += line;
  }
  return all;
}

void CRecordingDC::ClearLog() {
  Target()->Log()->Clear();
}

int CRecordingDC::CountOf(const wchar_t* call) const {
  const std::vector<std::wstring>& lines = Target()->Log()->Lines();
  const std::wstring start(call);
  return static_cast<int>(std::count_if(
      lines.begin(), lines.end(), [&start](const std::wstring& line) { return line.starts_with(start); }));
}
