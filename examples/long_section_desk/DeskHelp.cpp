#include "DeskHelp.h"

namespace desk {

const wchar_t* HelpText() {
  return L"A survey as a table, as a long-section, and as cut and fill.\n"
         L"\n"
         L"Ctrl+O  open,   F5  read again,   Ctrl+Shift+S  save a copy\n"
         L"Ctrl+P  print to PDF,   Ctrl+Q  quit\n"
         L"Tab, F6  the next pane,   Esc  stops what takes a while\n"
         L"\n"
         L"Table\n"
         L"Ctrl+F  find,   F3, Shift+F3  again and back\n"
         L"Ctrl+C  copy,   Menu or right click  sort by a column\n"
         L"\n"
         L"Long-section\n"
         L"Ctrl+G  go to a chainage,   Ctrl+E  exaggeration\n"
         L"Left, Right, Home, End  from station to station\n"
         L"Plus, Minus, wheel  zoom,   Z  zoom box,   F4  fit\n"
         L"Ctrl+arrows, Shift+wheel, middle button  move\n"
         L"Alt+Left, Alt+Right  the views before and after";
}

}  // namespace desk
