// Pages to PDF and SVG.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QXmlStreamReader>
#include <cmath>
#include <filesystem>
#include <string>

#include "platform/CPrinterDC.h"
#include "tests/support/FolderTest.h"

namespace {

using testing::HasSubstr;

class Printing : public coregui::test::FolderTest {};

void DrawSheet(CDC& dc, const wchar_t* text) {
  CFont font;
  font.CreatePointFont(120, L"");
  dc.SelectObject(&font);
  TEXTMETRIC metrics;
  dc.GetTextMetrics(&metrics);
  EXPECT_NEAR(metrics.tmHeight, dc.GetDeviceCaps(LOGPIXELSX) / 4.8, 10) << "12 points are a sixth of an inch";
  dc.SetBkMode(TRANSPARENT);
  dc.TextOut(600, 600, text, -1);
  dc.MoveTo(600, 1000);
  dc.LineTo(1200, 1000);
  dc.FillSolidRect(CRect(600, 1200, 900, 1300), RGB(0, 0, 255));
  dc.SelectStockObject(StockObject::systemFont);
}

TEST_F(Printing, Pdf_HasTheSheetsItsSizeAndItsText) {
  const CString path = Wide("plot.pdf");
  CPrinterDC dc(PrintOutput::pdf, path, {420.0, 297.0, 600});
  EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSX), 600);
  EXPECT_EQ(dc.GetDeviceCaps(HORZRES), static_cast<int>(std::lround(420.0 / 25.4 * 600)));
  EXPECT_FALSE(dc.StartPage()) << "no document yet";
  ASSERT_TRUE(dc.StartDoc(L"Long section"));
  EXPECT_FALSE(dc.StartDoc(L"again"));
  dc.TextOut(0, 0, L"dropped", -1);
  for (const wchar_t* text : {L"Sheet one", L"Sheet two"}) {
    EXPECT_TRUE(dc.StartPage());
    DrawSheet(dc, text);
    EXPECT_TRUE(dc.EndPage());
  }
  EXPECT_FALSE(dc.EndPage());
  EXPECT_TRUE(dc.EndDoc());
  EXPECT_FALSE(dc.EndDoc());

  const QString pdf = QString::fromStdString(Read("plot.pdf"));
  const QRegularExpression box(R"(/MediaBox \[0 0 ([\d.]+) ([\d.]+)\])");
  const QRegularExpressionMatch match = box.match(pdf);
  ASSERT_TRUE(match.hasMatch());
  EXPECT_NEAR(match.captured(1).toDouble(), 420.0 / 25.4 * 72.0, 1.0);
  EXPECT_NEAR(match.captured(2).toDouble(), 297.0 / 25.4 * 72.0, 1.0);
  if (QStandardPaths::findExecutable("pdftotext").isEmpty()) {
    GTEST_SKIP() << "pdftotext is not installed: the text is not checked";
  }
  QProcess reader;
  reader.start("pdftotext", {QString::fromStdString(At("plot.pdf")), "-"});
  ASSERT_TRUE(reader.waitForFinished());
  const QByteArray text = reader.readAllStandardOutput();
  EXPECT_TRUE(text.contains("Sheet one") && text.contains("Sheet two")) << text.constData();
  EXPECT_FALSE(text.contains("dropped"));
}

/// The outer groups of an SVG file in their order with the rectangle that each is clipped to and its texts; a
/// note of what is wrong with the file.
std::string ClippedTexts(const std::string& svg) {
  QXmlStreamReader reader(QString::fromStdString(svg));
  std::string found;
  int depth = 0;
  while (!reader.atEnd()) {
    const QXmlStreamReader::TokenType token = reader.readNext();
    if (token == QXmlStreamReader::EndElement) --depth;
    if (token != QXmlStreamReader::StartElement) continue;
    const QXmlStreamAttributes with = reader.attributes();
    if (depth == 1 && with.hasAttribute("clip-path")) found += "clipped ";
    if (depth == 1) found += reader.name().toString().toStdString() + ": ";
    if (++depth == 3 && reader.name() == QStringLiteral("rect")) {
      for (const char* name : {"x", "y", "width", "height"}) {
        found += with.value(QLatin1String(name)).toString().toStdString() + " ";
      }
    }
    if (reader.name() == QStringLiteral("text")) {
      found += reader.readElementText().trimmed().toStdString() + "; ";
      --depth;  // its end is read already
    }
  }
  return found + reader.errorString().toStdString();
}

TEST_F(Printing, Svg_IsClippedAsItIsDrawnOnOneFileASheet) {
  const CString path = Wide("plot.svg");
  CPrinterDC dc(PrintOutput::svg, path, {210.0, 297.0, 96});
  ASSERT_TRUE(dc.StartDoc(L"Cut & <fill>"));
  ASSERT_TRUE(dc.StartPage());
  dc.TextOut(10, 10, L"whole", -1);
  const CRect part(50, 60, 250, 160);
  const int saved = dc.SaveDC();
  dc.SelectClipRect(&part);
  dc.TextOut(60, 100, L"a < b & c", -1);
  dc.LineTo(900, 900);
  dc.TextOut(60, 120, L"too", -1);
  dc.RestoreDC(saved);
  dc.TextOut(60, 300, L"after", -1);
  dc.MoveTo(400, 500);
  dc.LineTo(450, 500);
  CPen wide(PS_SOLID, 2, RGB(0, 0, 0));
  dc.SelectObject(&wide);
  dc.LineTo(450, 550);
  EXPECT_TRUE(dc.EndPage());
  ASSERT_TRUE(dc.StartPage());
  DrawSheet(dc, L"Second");
  EXPECT_TRUE(dc.EndDoc()) << "ends the open page too";
  EXPECT_THAT(Read("plot-2.svg"), HasSubstr("Second"));
  const std::string svg = Read("plot.svg");
  EXPECT_THAT(svg, HasSubstr("<title>Cut &amp; &lt;fill&gt;</title>"));
  EXPECT_THAT(svg, HasSubstr("viewBox=\"0 0 794 1123\""));
  EXPECT_THAT(svg, HasSubstr("width=\"210"));
  EXPECT_EQ(ClippedTexts(svg),
            "title: g: whole; clipPath: 50 60 200 100 clipped g: a < b & c; too; g: after; ");
  // A line fills the dots that it fills on the screen: no fill beside it hides a part of it.
  EXPECT_THAT(svg, HasSubstr("points=\"400.5,500.5 450.5,500.5 \""));
  EXPECT_THAT(svg, HasSubstr("points=\"450,500 450,550 \""));
}

TEST_F(Printing, Failures_AreReported) {
  const CString nowhere = Wide("no/such/folder/plot.pdf");
  CPrinterDC dc(PrintOutput::pdf, nowhere);
  EXPECT_FALSE(dc.StartDoc(L"x"));
  EXPECT_FALSE(dc.EndDoc());
  CPrinterDC printer(PrintOutput::printer, L"no such printer at all");
  EXPECT_FALSE(printer.StartDoc(L"x"));
  const CString dropped = Wide("dropped.pdf");
  CPrinterDC aborted(PrintOutput::pdf, dropped);
  ASSERT_TRUE(aborted.StartDoc(L"x"));
  ASSERT_TRUE(aborted.StartPage());
  aborted.AbortDoc();
  EXPECT_FALSE(std::filesystem::exists(At("dropped.pdf")));
}

}  // namespace
