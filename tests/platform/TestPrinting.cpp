// Pages to PDF and SVG.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QXmlStreamReader>
#include <cmath>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "platform/CPrinterDC.h"
#include "tests/support/FolderTest.h"

namespace {

using testing::HasSubstr;

class Printing : public coregui::test::FolderTest {};

void DrawSheet(CDC& dc, const wchar_t* text) {
  CFont font;
  font.CreatePointFont(120, L"");
  dc.SelectObject(&font);
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
  CFont font;
  font.CreatePointFont(120, L"");
  dc.SelectObject(&font);
  TEXTMETRIC metrics;
  dc.GetTextMetrics(&metrics);
  EXPECT_GE(metrics.tmHeight, 100) << "12 points are 100 dots";
  EXPECT_LE(metrics.tmHeight, 150);
  dc.SelectStockObject(StockObject::systemFont);

  EXPECT_FALSE(dc.StartPage()) << "no document yet";
  ASSERT_TRUE(dc.StartDoc(L"Long section"));
  EXPECT_FALSE(dc.StartDoc(L"again"));
  dc.TextOut(0, 0, L"dropped", -1);
  EXPECT_TRUE(dc.StartPage());
  DrawSheet(dc, L"Sheet one");
  EXPECT_TRUE(dc.EndPage());
  EXPECT_TRUE(dc.StartPage());
  DrawSheet(dc, L"Sheet two");
  EXPECT_TRUE(dc.EndPage());
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

TEST_F(Printing, Svg_IsOneFileASheet) {
  const CString path = Wide("plot.svg");
  CPrinterDC dc(PrintOutput::svg, path, {210.0, 297.0, 96});
  ASSERT_TRUE(dc.StartDoc(L"Plan"));
  ASSERT_TRUE(dc.StartPage());
  DrawSheet(dc, L"First");
  EXPECT_TRUE(dc.EndPage());
  ASSERT_TRUE(dc.StartPage());
  DrawSheet(dc, L"Second");
  EXPECT_TRUE(dc.EndDoc()) << "ends the open page too";
  EXPECT_THAT(Read("plot.svg"), HasSubstr("First"));
  EXPECT_THAT(Read("plot-2.svg"), HasSubstr("Second"));
  EXPECT_THAT(Read("plot.svg"), HasSubstr("viewBox=\"0 0 794 1123\""));
  EXPECT_THAT(Read("plot.svg"), HasSubstr("width=\"210"));
}

/// The texts of an SVG file in their order, each with the rectangles that it is clipped to; a note of what is
/// wrong with the file.
std::string ClippedTexts(const std::string& svg) {
  QXmlStreamReader reader(QString::fromStdString(svg));
  std::map<QString, std::string> clips;
  QString defining;
  std::vector<QString> groups;
  std::string found;
  while (!reader.atEnd()) {
    reader.readNext();
    const QXmlStreamAttributes with = reader.attributes();
    if (reader.isEndElement()) {
      groups.pop_back();
    } else if (reader.isStartElement()) {
      groups.push_back(with.value("clip-path").toString());
      if (reader.name() == QStringLiteral("clipPath")) {
        defining = QStringLiteral("url(#%1)").arg(with.value("id"));
      } else if (reader.name() == QStringLiteral("rect") && !defining.isEmpty() &&
                 !clips.contains(defining)) {
        for (const char* name : {"x", "y", "width", "height"}) {
          clips[defining] += " " + with.value(QLatin1String(name)).toString().toStdString();
        }
      } else if (reader.name() == QStringLiteral("text")) {
        found += reader.readElementText().trimmed().toStdString() + ":";
        groups.pop_back();
        for (const QString& group : groups) found += group.isEmpty() ? "" : clips[group];
        found += "; ";
      }
    }
  }
  return found + reader.errorString().toStdString();
}

TEST_F(Printing, Svg_IsClippedAsItIsDrawn) {
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
  EXPECT_TRUE(dc.EndDoc());
  EXPECT_EQ(ClippedTexts(Read("plot.svg")), "whole:; a < b & c: 50 60 200 100; too: 50 60 200 100; after:; ");
  EXPECT_THAT(Read("plot.svg"), HasSubstr("<title>Cut &amp; &lt;fill&gt;</title>"));
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
