#include <cmath>

#include "SectionView.h"
#include "SheetPlan.h"

// How the section is put on sheets of paper.

namespace desk {

namespace {

constexpr int kPaperEdge = 24;    // points around what is printed
constexpr LONG kTitleBlock = 58;  // points below the table for the title block
constexpr LONG kTableEnd = 6;     // points between the table and the frame of a sheet
constexpr double kMillimetresPerInch = 25.4;

CSize EdgeDots(CSize dotsPerInch) {
  return {kPaperEdge * dotsPerInch.cx / 72, kPaperEdge * dotsPerInch.cy / 72};
}

CSize InsideEdges(CSize page, CSize dotsPerInch) {
  const CSize edges = EdgeDots(dotsPerInch);
  return {page.cx - 2 * edges.cx, page.cy - 2 * edges.cy};
}

}  // namespace

/// Of the part of a sheet inside its edges.
CRect SectionView::PrintMargins() const {
  CRect margins = Margins(false);
  margins.right += kTableEnd;
  margins.bottom += kTitleBlock;
  return margins;
}

std::vector<coregui::CViewMapping> SectionView::Plan(const PrintChoice& choice, CSize page,
                                                     CSize dotsPerInch) const {
  if (!HasData()) {
    return {};
  }
  coregui::CViewMapping view = GetMapping();
  view.margins = PrintMargins();
  const CSize inside = InsideEdges(page, dotsPerInch);
  if (choice.toScale) {
    return PlanSheets(view, choice.Scale(), inside, dotsPerInch, {&m_data->ground, &m_data->design});
  }
  view.now.dpiX = dotsPerInch.cx;
  view.now.dpiY = dotsPerInch.cy;
  view.now.vertRatio = m_exaggeration;
  view.FitToRect(CRect(CPoint(0, 0), inside));
  return {view};
}

int SectionView::CountSheets(const PrintChoice& choice) const {
  const PrintPage page = choice.Page();
  const auto dots = [&page](double millimetres) {
    return static_cast<LONG>(std::lround(millimetres / kMillimetresPerInch * page.dotsPerInch));
  };
  const CSize size(dots(page.width), dots(page.height));
  return static_cast<int>(Plan(choice, size, CSize(page.dotsPerInch, page.dotsPerInch)).size());
}

bool SectionView::PrintSheets(CPrinterDC& dc, const PrintChoice& choice) {
  const CSize page(dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES));
  const CSize dotsPerInch(dc.GetDeviceCaps(LOGPIXELSX), dc.GetDeviceCaps(LOGPIXELSY));
  const CSize edges = EdgeDots(dotsPerInch);
  const std::vector<coregui::CViewMapping> sheets = Plan(choice, page, dotsPerInch);
  const int count = static_cast<int>(sheets.size());
  m_printScale = choice.toScale ? CString::Formatted(L"Scale 1:%g / 1:%g", choice.horizontal, choice.vertical)
                                : CString();
  SetMargins(PrintMargins());
  bool good = !sheets.empty();
  for (int i = 0; i < count; ++i) {
    good = good && dc.StartPage();
    if (good) {
      dc.SetViewportOrg(edges.cx, edges.cy);
      PrintMapped(dc, InsideEdges(page, dotsPerInch), sheets[static_cast<std::size_t>(i)], {i + 1, count});
      good = dc.EndPage();
    }
  }
  SetMargins(Margins(true));
  return good;
}

}  // namespace desk
