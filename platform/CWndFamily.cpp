#include <algorithm>

#include "platform/CWnd.h"
#include "platform/MessageQueue.h"
#include "platform/Toolkit.h"
#include "platform/WindowState.h"

// Parents, owners, children and their order.

namespace {

using Siblings = std::vector<CWnd*>;

Siblings::const_iterator PositionOf(const Siblings& siblings, const CWnd* window) {
  return std::find(siblings.begin(), siblings.end(), window);
}

}  // namespace

CWnd* CWnd::GetParent() const {
  return m_state->family.parent;
}

CWnd* CWnd::SetParent(CWnd* parent) {
  CWnd* old = m_state->family.parent;
  if (old == parent || parent == this || (parent != nullptr && IsChild(parent))) {
    return old;
  }
  if (old != nullptr) {
    Siblings& siblings = old->m_state->family.children;
    siblings.erase(PositionOf(siblings, this));
  }
  m_state->family.parent = parent;
  if (parent != nullptr) {
    parent->m_state->family.children.push_back(this);
  }
  if (m_state->native != nullptr) {
    m_state->native->SetParent(parent == nullptr ? nullptr : parent->m_state->native.get());
    coregui::QueuePaintTree(*this);
  }
  return old;
}

CWnd* CWnd::GetOwner() const {
  CWnd* owner = m_state->family.owner.Get();
  return owner != nullptr ? owner : GetParent();
}

CWnd* CWnd::GetTopLevelParent() const {
  const CWnd* window = this;
  while (window->GetParent() != nullptr) {
    window = window->GetParent();
  }
  return const_cast<CWnd*>(window);
}

CWnd* CWnd::GetDesktopWindow() {
  static auto& desktop = *new CWnd;  // never destroyed: see WindowRegistry.cpp
  desktop.m_state->look.rect = coregui::ScreenRect();
  return &desktop;
}

CWnd* CWnd::GetDlgItem(int id) const {
  const Siblings& children = m_state->family.children;
  const auto found = std::find_if(children.begin(), children.end(),
                                  [id](const CWnd* child) { return child->GetDlgCtrlID() == id; });
  return found == children.end() ? nullptr : *found;
}

int CWnd::GetDlgCtrlID() const {
  return static_cast<int>(m_state->family.id);
}

void CWnd::SetDlgCtrlID(int id) {
  m_state->family.id = static_cast<UINT>(id);
}

CWnd* CWnd::GetWindow(UINT relation) const {
  if (relation == GW_OWNER) {
    return m_state->family.owner.Get();
  }
  const CWnd* parent = relation == GW_CHILD ? this : GetParent();
  if (parent == nullptr || parent->m_state->family.children.empty()) {
    return nullptr;
  }
  const Siblings& siblings = parent->m_state->family.children;
  const auto at = PositionOf(siblings, this);
  switch (relation) {
    case GW_CHILD:
    case GW_HWNDFIRST:
      return siblings.back();
    case GW_HWNDLAST:
      return siblings.front();
    case GW_HWNDNEXT:
      return at == siblings.begin() ? nullptr : *(at - 1);
    case GW_HWNDPREV:
      return at + 1 == siblings.end() ? nullptr : *(at + 1);
    default:
      return nullptr;
  }
}

bool CWnd::IsChild(const CWnd* window) const {
  for (const CWnd* at = window == nullptr ? nullptr : window->GetParent(); at != nullptr;
       at = at->GetParent()) {
    if (at == this) return true;
  }
  return false;
}

void CWnd::StackBelow(const CWnd* after) {
  CWnd* parent = GetParent();
  if (parent == nullptr || after == nullptr || after == this || after->GetParent() != parent) {
    BringWindowToTop();
    return;
  }
  Siblings& siblings = parent->m_state->family.children;
  siblings.erase(PositionOf(siblings, this));
  siblings.insert(PositionOf(siblings, after), this);
  if (m_state->native != nullptr && after->m_state->native != nullptr) {
    m_state->native->StackUnder(*after->m_state->native);
  }
}

void CWnd::BringWindowToTop() {
  if (CWnd* parent = GetParent()) {
    Siblings& siblings = parent->m_state->family.children;
    siblings.erase(PositionOf(siblings, this));
    siblings.push_back(this);
  }
  if (m_state->native != nullptr) {
    m_state->native->Raise();
  }
}
