#include "SurveyLock.h"

#include <utility>

namespace desk {

namespace {

constexpr wchar_t kExtension[] = L"lck";
constexpr std::size_t kLongestPath = 260;  // of which a lock is made

std::wstring LockOf(const std::wstring& survey) {
  return coreChangeFileExt(survey.c_str(), kExtension);
}

/// A lock file that is looked at as a table would be its own lock, and closing it would delete it. A longer
/// path would be cut off, and name another file's lock.
bool CanHaveLock(const std::wstring& survey) {
  return LockOf(survey) != survey && survey.size() <= kLongestPath;
}

}  // namespace

SurveyLock& SurveyLock::operator=(SurveyLock&& other) noexcept {
  if (this != &other) {
    Release();
    m_state = std::exchange(other.m_state, State::none);
    m_survey = std::exchange(other.m_survey, {});
    m_holder = std::exchange(other.m_holder, {});
  }
  return *this;
}

void SurveyLock::Take(const std::wstring& survey, CWnd* owner) {
  if (!IsFor(survey)) {
    Release();
  }
  m_survey = survey;
  m_state = State::unavailable;
  if (CanHaveLock(survey)) {
    Learn(coreCheckLockStatus(survey.c_str(), kExtension, false, owner), State::held);
  }
}

void SurveyLock::Look(const std::wstring& survey) {
  Release();
  m_survey = survey;
  if (CanHaveLock(survey)) {
    Learn(coreCheckLockStatus(survey.c_str(), kExtension, true, nullptr), State::none);
  }
}

void SurveyLock::Learn(bool mayUse, State whenFree) {
  bool own = false;
  if (mayUse) {
    m_state = whenFree;
  } else {
    const bool held = coreGetLockHolder(m_survey.c_str(), kExtension, m_holder, &own);
    m_state = held ? State::others : State::unavailable;
  }
}

void SurveyLock::Release() {
  if (m_state == State::held) {
    coreReleaseLock(m_survey.c_str(), kExtension);
  }
  m_state = State::none;
  m_survey.clear();
  m_holder.Empty();
}

bool SurveyLock::IsFor(const std::wstring& survey) const {
  return !m_survey.empty() && LockOf(survey) == LockOf(m_survey);
}

std::wstring SurveyLock::Text() const {
  switch (m_state) {
    case State::held:
      return L"locked for you";
    case State::others:
      return L"read-only: in use by " + (m_holder.IsEmpty() ? std::wstring(L"somebody") : m_holder.Str());
    case State::unavailable:
      return L"read-only: no lock can be made here";
    case State::none:
      break;
  }
  return {};
}

}  // namespace desk
