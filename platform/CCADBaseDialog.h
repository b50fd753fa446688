#pragma once

#include "platform/CDialog.h"

/// The application's base of its dialogs: a dialog of the platform, in one place for what they all share.
class COREGUI_API CCADBaseDialog : public CDialog {
 public:
  using CDialog::CDialog;
};
