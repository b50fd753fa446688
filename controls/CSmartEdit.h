#pragma once

#include <limits>

#include "controls/CAdvEdit.h"

/// An edit box that knows what kind of content it is for, and checks it when the focus leaves: content that
/// is wrong is marked, with the reason as a tip, and stays as it was typed; right content of a number or a
/// chainage is written in its usual form. A mark goes as soon as what is typed is right.
class COREGUI_API CSmartEdit : public CAdvEdit {
 public:
  enum class Kind {
    text,     ///< anything
    integer,  ///< a whole number
    real,     ///< a number
    chainage  ///< metres along a line, as "1+234.500"
  };
  /// Sent to the parent after the check that leaving brings.
  static constexpr int kChecked = 0x0502;

  void SetKind(Kind kind);
  Kind GetKind() const { return m_kind; }
  /// Both ends included; exchanged when given the wrong way round. Of texts nothing is asked.
  void SetRange(double least, double most);
  /// Whether the box must not stay empty; it may at the start.
  void SetRequired(bool required) { m_required = required; }
  /// How many decimals a chainage is written with, 0 to 6; 3 at the start.
  void SetDecimals(int decimals) { m_decimals = decimals; }

  /// Checks now and marks or unmarks. True when the content is right.
  bool Validate();
  /// Why the content is wrong; empty when it is right. Marks nothing.
  CString FindFault() const;
  /// The number; false, with `value` unchanged, when the content is no number, is out of range or empty.
  bool GetNumber(double& value) const;
  /// Writes a number in the form of the kind.
  void SetNumber(double value);
  bool IsMarked() const { return !m_reason.IsEmpty(); }

  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  const coregui::MessageTable& GetMessageTable() const override;

 protected:
  void OnKillFocus(CWnd* next);

 private:
  bool Parse(double& value) const;
  CString TextOf(double value) const;
  CString KindFault() const;
  void Mark(const CString& reason);

  Kind m_kind = Kind::text;
  double m_least = std::numeric_limits<double>::lowest();
  double m_most = std::numeric_limits<double>::max();
  int m_decimals = 3;
  bool m_required = false;
  CString m_reason;      ///< of the mark that is shown
  CString m_markedText;  ///< the text that the mark was decided for
};
