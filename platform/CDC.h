#pragma once

#include <memory>

#include "core/Export.h"
#include "platform/CBitmap.h"
#include "platform/CFont.h"
#include "platform/CGdiObject.h"
#include "platform/CObject.h"
#include "platform/CString.h"
#include "platform/Geometry.h"

class CWnd;

namespace coregui {
class DrawTarget;
struct DrawState;
class Region;
struct TextLine;
}  // namespace coregui

// Formats of DrawText.
inline constexpr UINT DT_LEFT = 0x0000;
inline constexpr UINT DT_TOP = 0x0000;
inline constexpr UINT DT_CENTER = 0x0001;
inline constexpr UINT DT_RIGHT = 0x0002;
inline constexpr UINT DT_VCENTER = 0x0004;  ///< with DT_SINGLELINE only
inline constexpr UINT DT_BOTTOM = 0x0008;   ///< with DT_SINGLELINE only
inline constexpr UINT DT_WORDBREAK = 0x0010;
inline constexpr UINT DT_SINGLELINE = 0x0020;
inline constexpr UINT DT_EXPANDTABS = 0x0040;
inline constexpr UINT DT_NOCLIP = 0x0100;
inline constexpr UINT DT_CALCRECT = 0x0400;
inline constexpr UINT DT_NOPREFIX = 0x0800;
inline constexpr UINT DT_EDITCONTROL = 0x2000;
inline constexpr UINT DT_END_ELLIPSIS = 0x8000;
inline constexpr UINT DT_WORD_ELLIPSIS = 0x40000;

// Options of ExtTextOut.
inline constexpr UINT ETO_OPAQUE = 0x0002;
inline constexpr UINT ETO_CLIPPED = 0x0004;

// Text alignment for TextOut and ExtTextOut.
inline constexpr UINT TA_LEFT = 0;
inline constexpr UINT TA_RIGHT = 2;
inline constexpr UINT TA_CENTER = 6;
inline constexpr UINT TA_TOP = 0;
inline constexpr UINT TA_BOTTOM = 8;
inline constexpr UINT TA_BASELINE = 24;

// Background modes.
inline constexpr int TRANSPARENT = 1;
inline constexpr int OPAQUE = 2;

// Raster modes of pens.
inline constexpr int R2_XORPEN = 7;
inline constexpr int R2_NOT = 6;
inline constexpr int R2_COPYPEN = 13;

// Raster operation of BitBlt: a plain copy of the source.
inline constexpr DWORD SRCCOPY = 0x00CC0020;
inline constexpr DWORD SRCINVERT = 0x00660046;

// Device capabilities.
inline constexpr int HORZRES = 8;
inline constexpr int VERTRES = 10;
inline constexpr int LOGPIXELSX = 88;
inline constexpr int LOGPIXELSY = 90;

// Stock objects.
enum class StockObject { blackPen, whitePen, nullPen, nullBrush, whiteBrush, blackBrush, systemFont };

/// The measures of a font on a device, in logical pixels.
struct TEXTMETRIC {
  LONG tmHeight = 0;  ///< ascent + descent
  LONG tmAscent = 0;
  LONG tmDescent = 0;
  LONG tmExternalLeading = 0;
  LONG tmAveCharWidth = 0;
  LONG tmMaxCharWidth = 0;
};

/// A device context: what everything is drawn with. Coordinates are logical pixels of its device; outlines
/// and fills cover the pixels that the well-known rules give (a line leaves out its last point; a rectangle's
/// right and bottom lie outside).
///
/// The selected objects are borrowed and must stay alive while selected. A context that the library hands out
/// is valid for the call it is handed to.
///
/// All text drawing is left to right in logical order of the shaped text; combining and right-to-left texts
/// are shaped by the toolkit. Text with only simple glyphs takes a fast path: glyphs, extents and runs are
/// cached per font, and nothing is allocated per call.
class COREGUI_API CDC : public CObject {
 public:
  ~CDC() override;
  CDC(const CDC&) = delete;
  CDC& operator=(const CDC&) = delete;

  // --- State
  int SaveDC();                   ///< returns the level to restore to, from 1
  BOOL RestoreDC(int saved);      ///< -1: the last saved state
  CPen* SelectObject(CPen* pen);  ///< returns the one selected before; null selects the stock one
  CBrush* SelectObject(CBrush* brush);
  CFont* SelectObject(CFont* font);
  void SelectStockObject(StockObject object);
  static CPen* GetStockPen(StockObject object);
  CPen* GetCurrentPen() const;
  CFont* GetCurrentFont() const;
  COLORREF SetTextColor(COLORREF colour);
  COLORREF GetTextColor() const;
  COLORREF SetBkColor(COLORREF colour);
  COLORREF GetBkColor() const;
  int SetBkMode(int mode);
  int GetBkMode() const;
  int SetROP2(int mode);
  int GetROP2() const;
  UINT SetTextAlign(UINT align);
  /// Smooth edges for lines and shapes from here on (default off: hard pixels). Text is always smooth.
  bool SetAntiAliasing(bool on);
  CPoint SetViewportOrg(int x, int y);
  CPoint GetViewportOrg() const;
  int GetDeviceCaps(int index) const;
  double GetScaleFactor() const;

  // --- Clipping, in logical pixels
  void IntersectClipRect(const RECT& rect);
  void ExcludeClipRect(const RECT& rect);
  void SelectClipRect(const RECT* rect);  ///< null: the whole device (within the update region of a CPaintDC)
  bool GetClipBox(RECT* rect) const;      ///< false when everything is clipped
  bool RectVisible(const RECT& rect) const;

  // --- Lines and shapes, with the selected pen and brush in the raster mode
  CPoint MoveTo(int x, int y);
  void LineTo(int x, int y);
  void Polyline(const POINT* points, int count);
  void PolyPolyline(const POINT* points, const DWORD* counts, int polylines);
  void Polygon(const POINT* points, int count);
  void Rectangle(const RECT& rect);
  void RoundRect(const RECT& rect, int cornerWidth, int cornerHeight);
  void Ellipse(const RECT& rect);
  /// Part of the ellipse inside rect, anticlockwise from `start` towards `end` (points on the rays).
  void Arc(const RECT& rect, POINT start, POINT end);
  void Pie(const RECT& rect, POINT start, POINT end);
  /// The same with fractional pixels, for smooth plots.
  void PolylineF(const double* xy, int count);
  void FillSolidRect(const RECT& rect, COLORREF colour);  ///< sets the background colour too
  void FillRect(const RECT& rect, const CBrush* brush);
  void FrameRect(const RECT& rect, COLORREF colour);  ///< one pixel wide, inside
  void InvertRect(const RECT& rect);
  /// A dotted one-pixel frame that drawing twice removes.
  void DrawFocusRect(const RECT& rect);
  void Draw3dRect(const RECT& rect, COLORREF topLeft, COLORREF bottomRight);
  void SetPixel(int x, int y, COLORREF colour);
  COLORREF GetPixel(int x, int y) const;  ///< 0xFFFFFFFF outside or where it cannot be read back

  // --- Text, with the selected font, colour and background mode
  void TextOut(int x, int y, const wchar_t* text, int length);
  /// Text at (x, y) by the alignment, clipped to rect with ETO_CLIPPED, on a filled rect with ETO_OPAQUE.
  void ExtTextOut(int x, int y, UINT options, const RECT* rect, const wchar_t* text, int length);
  /// Lays the text out in rect; returns its height. DT_CALCRECT only measures and sets rect's right and
  /// bottom.
  int DrawText(const wchar_t* text, int length, RECT* rect, UINT format);
  CSize GetTextExtent(const wchar_t* text, int length) const;
  void GetTextMetrics(TEXTMETRIC* metrics) const;

  // --- Bitmaps
  void DrawBitmap(const CBitmap& bitmap, int x, int y);
  void StretchBitmap(const CBitmap& bitmap, const RECT& to);
  /// Copies a rectangle of another context's device (its own included: overlapping parts move right).
  BOOL BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY, DWORD operation);

  /// Internal: what the calls end in.
  coregui::DrawTarget* Target() const { return m_target.get(); }

 protected:
  explicit CDC(std::shared_ptr<coregui::DrawTarget> target);
  /// Confines the context for good: what SelectClipRect(nullptr) goes back to. In device dots.
  void SetBaseRegion(std::shared_ptr<const coregui::Region> region);

 private:
  void FillEdges(const RECT& rect, COLORREF topLeft, COLORREF bottomRight);
  /// Draws one line of text whose cell begins at (x, y), with its background when that is opaque.
  void PutText(int x, int y, const wchar_t* text, int length);
  void PutLine(const coregui::TextLine& line, int x, int y);
  CPoint AlignedStart(int x, int y, const wchar_t* text, int length);
  int LayText(const wchar_t* text, int count, RECT* rect, UINT format);

  std::shared_ptr<coregui::DrawTarget> m_target;
  std::unique_ptr<coregui::DrawState> m_state;
};

/// Draws on a window's surface at once, clipped to its client area and off the update region's bookkeeping.
class COREGUI_API CClientDC : public CDC {
 public:
  explicit CClientDC(CWnd* window);
  /// False when the window has no surface (not created, or a control over a widget).
  bool IsValid() const;
  ~CClientDC() override;
};

/// For WM_PAINT: clipped to the update region, which it validates; erases first when that was asked.
class COREGUI_API CPaintDC : public CDC {
 public:
  explicit CPaintDC(CWnd* window);
  ~CPaintDC() override;
  const RECT& GetPaintRect() const { return m_paint; }

 private:
  RECT m_paint;
};

/// Draws on a bitmap, with the fonts and scale of `like` (null: the screen's). The bitmap is borrowed.
class COREGUI_API CMemoryDC : public CDC {
 public:
  CMemoryDC(const CDC* like, CBitmap* bitmap);
  ~CMemoryDC() override;
};

/// Logs every drawing call as one line of text instead of drawing, for tests: "FillSolidRect 0,0,10,20
/// #0000FF". Text measures as if every character were `characterWidth` wide and `characterHeight` tall; no
/// display and no fonts are needed.
///
/// A line is the call's name, its points and rectangles ("l,t,r,b", viewport origin added), its numbers, then
/// what it draws with; changes of state (SelectObject, SaveDC, clipping) have no line of their own but show
/// in the lines of the calls that they affect:
/// - colours as `#RRGGBB`; a pen as its colour, " w3" when its width is not 1, " style2" when it is not
///   solid, or "nopen"; a brush as its colour, "hatch1" before it when hatched, or "nobrush";
/// - text as its colour, ` font "Face",height,weight[,italic]` when a font is selected, and the text in
/// quotes
///   with the escapes of C: `DrawText 2,0,73,20 0x24 #000000 "12.50"` (format in hexadecimal);
///   ExtTextOut writes point, options and rectangle first (0,0,0,0 for none);
/// - at the end " rop7" when the raster mode is not copy, and " clip l,t,r,b" when drawing is clipped.
/// LineTo writes both ends, PolylineF only the number of points. Measuring calls have no line.
class COREGUI_API CRecordingDC : public CDC {
 public:
  explicit CRecordingDC(int characterWidth = 7, int characterHeight = 13, CSize device = CSize(1600, 1000));
  ~CRecordingDC() override;
  /// The lines so far, joined with '\n'.
  CString GetLog() const;
  void ClearLog();
  /// How many lines start with `call`.
  int CountOf(const wchar_t* call) const;
};
