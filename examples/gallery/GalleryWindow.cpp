#include "GalleryWindow.h"

#include "DialogList.h"

namespace gallery {

namespace {

constexpr int kWidth = 960;  // lengths at 96 dots per inch
constexpr int kMargin = 14;
constexpr int kButtonHeight = 28;
constexpr int kGap = 8;
constexpr int kPerRow = 8;
constexpr UINT kPictureDelay = 50;

}  // namespace

const coregui::MessageTable& GalleryWindow::GetMessageTable() const {
  static const coregui::MessageTable table =
      coregui::MessageTable(CDialog::Messages())
          .OnCommand(kHelpCommand, BN_CLICKED, &GalleryWindow::HandleHelp)
          .OnCommand(kWebLink, CLinkButton::kLinkFailed, &GalleryWindow::HandleDeadLink)
          .On<WM_TIMER>(&GalleryWindow::HandleTimer);
  return table;
}

BOOL GalleryWindow::OnInitDialog() {
  const int bottom = m_pane.Create(*this, ScaleByDpi(kWidth));
  MakeButtons(bottom + ScaleByDpi(kMargin));
  return TRUE;
}

void GalleryWindow::MakeButtons(int top) {
  const int margin = ScaleByDpi(kMargin);
  const int gap = ScaleByDpi(kGap);
  const int height = ScaleByDpi(kButtonHeight);
  const int width = (ScaleByDpi(kWidth) - 2 * margin - (kPerRow - 1) * gap) / kPerRow;
  m_title.Create(L"Dialogs", WS_CHILD | WS_VISIBLE,
                 CRect(margin, top, margin + ScaleByDpi(200), top + height), this);
  const int first = top + height;
  int row = 0;
  for (const DialogEntry& entry : Dialogs()) {
    const auto index = static_cast<int>(m_buttons.size());
    row = index / kPerRow;
    const CPoint place(margin + index % kPerRow * (width + gap), first + row * (height + gap));
    auto& button = *m_buttons.emplace_back(std::make_unique<CButton>());
    button.Create(entry.name, WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON,
                  CRect(place, CSize(width, height)), this, kFirstDialog + static_cast<UINT>(index));
  }
  SetClientSize(CSize(ScaleByDpi(kWidth), first + (row + 1) * (height + gap) - gap + margin));
}

LRESULT GalleryWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  const UINT id = LOWORD(wParam);
  if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED && id >= kFirstDialog &&
      id < kFirstDialog + Dialogs().size()) {
    Dialogs()[id - kFirstDialog].open(*this);
    return 0;
  }
  return CDialog::WindowProc(message, wParam, lParam);
}

void GalleryWindow::HandleHelp() {
  if (auto* app = dynamic_cast<CCoreGUIApp*>(CWinApp::Get())) app->OpenHelp(this);
}

void GalleryWindow::HandleDeadLink() {
  ErrorMessage(L"There is no program to open " + m_pane.WebAddress() + L" with.", this);
}

void GalleryWindow::HandleTimer(UINT id) {
  auto picture = std::make_unique<CBitmap>();
  if (id != kPictureTimer || !coregui::DrawModalBox(*picture)) return;  // not shown yet
  if (m_taken == nullptr) m_taken = std::move(picture);
  coregui::CloseModalBox();  // also what opens behind the first
}

std::unique_ptr<CBitmap> GalleryWindow::PictureOfWindow() {
  const CRect client = GetClientRectangle();
  const CClientDC like(this);
  auto picture = std::make_unique<CBitmap>();
  if (!picture->CreateCompatibleBitmap(&like, client.Width(), client.Height())) return nullptr;
  CMemoryDC dc(&like, picture.get());
  PrintTo(&dc);
  return picture;
}

bool GalleryWindow::WriteSheet(const CString& path) {
  CWinApp::PumpPending();
  PictureSheet sheet(ScaleByDpi(kWidth) + 2 * ScaleByDpi(kMargin) + ScaleByDpi(240));
  auto window = PictureOfWindow();
  if (window == nullptr) return false;
  sheet.Add(std::move(window), L"Controls");
  for (const DialogEntry& entry : Dialogs()) {
    SetTimer(kPictureTimer, kPictureDelay);
    entry.open(*this);
    KillTimer(kPictureTimer);
    CString caption = entry.name;
    caption.Remove(L'&');
    if (m_taken == nullptr) {
      coreStatusOut((L"The dialog \"" + caption + L"\" did not show.").GetString());
      return false;
    }
    sheet.Add(std::move(m_taken), caption);
  }
  return sheet.Write(*this, path);
}

}  // namespace gallery
