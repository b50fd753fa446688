#pragma once

#include "platform/CDC.h"

/// Where printed pages go.
enum class PrintOutput {
  pdf,      ///< one file
  svg,      ///< one file a page: "plot.svg", then "plot-2.svg", "plot-3.svg"...
  printer,  ///< a printer of the system by name; empty: the standard one
};

/// The sheet to print on.
struct PrintPage {
  double width = 210.0;   ///< millimetres
  double height = 297.0;  ///< millimetres
  /// A coordinate of the context is one of these dots; a printer may choose its own. At 96 what is drawn for
  /// the screen, a grid's cells say, comes out in its size there; texts and lines stay sharp. A line lies
  /// with its middle on its coordinates, so a fill that ends there covers half of it.
  int dotsPerInch = 600;
};

/// A page device. Coordinates are its dots from the sheet's top left corner: GetDeviceCaps gives their number
/// and how many go to an inch. Point sizes of fonts come out in true size; pens are so many dots wide.
///
/// Drawing outside StartPage and EndPage is dropped; measuring works always. The destructor ends what was
/// started.
class COREGUI_API CPrinterDC : public CDC {
 public:
  /// `where`: the file's path, or the printer's name.
  CPrinterDC(PrintOutput output, const wchar_t* where, const PrintPage& page = PrintPage());
  ~CPrinterDC() override;
  /// False when the file cannot be written, there is no such printer, or a document is started already.
  bool StartDoc(const wchar_t* title);
  /// False outside a document or inside a page, or when the page cannot be begun.
  bool StartPage();
  /// False when no page was begun, or its own file could not be written.
  bool EndPage();
  /// Completes the output. False when no document was started or something could not be written.
  bool EndDoc();
  /// Drops the rest. A file that was begun is removed.
  void AbortDoc();
};
