#pragma once

#include <string>

#include "coregui/coregui.h"

namespace desk {

/// The lock file beside the survey that is open: `a.csv` has `a.lck`. It tells other programs who works with
/// the survey, and is removed when the survey is closed.
///
/// A lock belongs to a machine, so a second desk of the same machine takes it over instead of being refused,
/// and the first of the two to close removes it.
class SurveyLock {
 public:
  enum class State {
    none,         ///< nothing is locked
    held,         ///< the lock is ours
    others,       ///< somebody else holds it: look, and change nothing
    unavailable,  ///< no lock can be made or read there, as in a folder that is read-only
  };

  SurveyLock() = default;
  ~SurveyLock() { Release(); }
  SurveyLock(const SurveyLock&) = delete;
  SurveyLock& operator=(const SurveyLock&) = delete;
  SurveyLock(SurveyLock&& other) noexcept { *this = std::move(other); }
  SurveyLock& operator=(SurveyLock&& other) noexcept;

  /// Takes the lock of a survey, after giving up that of another one; the same again sees whether it still is
  /// ours. Somebody else's is told in a message box with `owner`.
  void Take(const std::wstring& survey, CWnd* owner);
  /// Only asks, and shows and makes nothing: for runs without a person.
  void Look(const std::wstring& survey);
  void Release();

  State GetState() const { return m_state; }
  /// Whether a survey's lock is the one that this is about.
  bool IsFor(const std::wstring& survey) const;
  /// "locked for you", "read-only: in use by mary"; empty when nothing is locked.
  std::wstring Text() const;

 private:
  void Learn(bool mayUse, State whenFree);

  State m_state = State::none;
  std::wstring m_survey;
  CString m_holder;  ///< who has it, with State::others
};

}  // namespace desk
