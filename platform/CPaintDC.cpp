#include "platform/CDC.h"
#include "platform/CWnd.h"
#include "platform/DrawTarget.h"
#include "platform/WindowDevice.h"
#include "platform/WindowState.h"

CPaintDC::CPaintDC(CWnd* window) : CDC(coregui::WindowDevice(window)) {
  bool erase = false;
  const coregui::Region update = coregui::TakeUpdateRegion(*window, erase);
  m_paint = update.Bounds();
  auto dots = std::make_shared<coregui::Region>();
  const coregui::DrawAttributes plain;
  for (const CRect& piece : update.Rects()) {
    dots->Add(Target()->DotRect(plain, piece));
  }
  SetBaseRegion(std::move(dots));
  if (erase && !update.IsEmpty()) {
    window->SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(static_cast<CDC*>(this)));
  }
}

CPaintDC::~CPaintDC() = default;
