#pragma once

#include "controls/NumberFormat.h"
#include "platform/CEdit.h"

/// A one-line edit box for one number in a range; the base of CIntEdit and CFloatEdit.
///
/// What is typed stays as it is typed: a number as the user's locale writes it, or an expression as "2*12.5"
/// (coregui::ParseNumberInput). While it is no number, or one outside the range, the box is marked and tells
/// the reason. When another window of the program gets the focus, the box shows the value that it takes in
/// the format, with a beep if that is not the number that was typed; a step and the text before it can be
/// undone.
///
/// Up and Down step the value, Page Up and Page Down by ten steps; so does the wheel (with Ctrl by ten steps)
/// while the box has the focus. A read-only box does not step.
class COREGUI_API CNumericEdit : public CEdit {
 public:
  /// What the text is.
  enum class Content {
    number,      ///< one that is taken as it is
    outside,     ///< a number outside the range: the nearest end is taken
    notWhole,    ///< a fraction where a whole number is asked for: it is rounded
    notANumber,  ///< the value before is taken
  };

  Content GetContent() const { return Look().content; }
  /// In words what is wrong with the text and which value is taken; empty when nothing is.
  CString GetProblem() const;
  /// By how much one step changes the value; 0 or less (the start): 1, or, where a range is less than 10
  /// wide, the power of ten that divides it into ten to a hundred steps, but no less than the last digit
  /// shown.
  void SetStep(double step) { m_step = step; }
  double GetStep() const;
  /// Shows the value that is taken in the format, as when the focus leaves.
  void Commit();

  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  const coregui::MessageTable& GetMessageTable() const override;

 protected:
  CNumericEdit(coregui::NumberFormat::Kind kind, double least, double most);
  /// Limits given the wrong way round are exchanged. The value is brought into the range.
  void SetRange(double least, double most, const wchar_t* format);
  /// Shows the nearest number in the range.
  void SetNumber(double number);
  /// The value that is taken, always in the range. One that was set keeps the digits that the format does not
  /// show, until the text is changed.
  double GetNumber() const { return Look().number; }
  static const coregui::MessageTable& Messages();

 private:
  struct Seen {
    Content content;
    double number;  ///< that is taken
    double typed;   ///< that the text gives; the one taken when it gives none
  };
  Seen Look() const;
  double InRange(double number) const;
  bool CanStep() const;
  void Step(int steps);
  void Take(double number, bool canUndo);
  void UpdateMark();
  void HandleKeyDown(UINT key, UINT repeat, UINT flags);
  BOOL HandleWheel(UINT flags, short delta, CPoint at);
  void HandleKillFocus(CWnd* next);
  void HandleColours();

  coregui::NumberFormat::Kind m_kind;
  coregui::NumberFormat m_format;
  double m_least;
  double m_most;
  double m_step = 0;
  double m_number = 0;
  CString m_shown;       ///< the text that stands for m_number
  CString m_markedText;  ///< the text that the mark was last decided for
};
