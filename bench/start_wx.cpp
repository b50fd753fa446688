// Shows an empty table in another toolkit's grid, and says when its first frame is there.

#include <wx/app.h>
#include <wx/frame.h>
#include <wx/grid.h>

#include <cstdio>
#include <cstdlib>

namespace {

class StartApp : public wxApp {
 public:
  bool OnInit() override {
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "", wxDefaultPosition, wxSize(1600, 1000));
    auto* const grid = new wxGrid(frame, wxID_ANY);
    grid->CreateGrid(16384, 256);
    grid->GetGridWindow()->Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
      event.Skip();
      CallAfter([] {
        std::puts("frame");
        std::fflush(stdout);
        std::_Exit(0);
      });
    });
    frame->Show();
    return true;
  }
};

}  // namespace

wxIMPLEMENT_APP(StartApp);
