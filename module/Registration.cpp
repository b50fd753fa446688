#include "module/Registration.h"

#include "controls/CAdvEdit.h"
#include "controls/CCustomTreeCtrl.h"
#include "controls/CEmptyTreeCtrl.h"
#include "controls/CFloatSpinCtrl.h"
#include "controls/CFontCombo.h"
#include "controls/CHexEdit.h"
#include "controls/CIntSpinCtrl.h"
#include "controls/CLinkButton.h"
#include "controls/CLinkSlider.h"
#include "controls/CNameEdit.h"
#include "controls/CSmartEdit.h"
#include "controls/CWidthComboBox.h"
#include "module/ClassFactories.h"

namespace coregui {
namespace {

struct Row {
  const wchar_t* name;
  std::unique_ptr<CObject> (*make)();
};

template <class T>
std::unique_ptr<CObject> Make() {
  return std::make_unique<T>();
}

constexpr Row kRows[] = {{L"CoreGUI.AdvEdit", &Make<CAdvEdit>},
                         {L"CoreGUI.CustomTreeCtrl", &Make<CCustomTreeCtrl>},
                         {L"CoreGUI.EmptyTreeCtrl", &Make<CEmptyTreeCtrl>},
                         {L"CoreGUI.FloatEdit", &Make<CFloatEdit>},
                         {L"CoreGUI.FloatSpinCtrl", &Make<CFloatSpinCtrl>},
                         {L"CoreGUI.FontCombo", &Make<CFontCombo>},
                         {L"CoreGUI.HexEdit", &Make<CHexEdit>},
                         {L"CoreGUI.IntEdit", &Make<CIntEdit>},
                         {L"CoreGUI.IntSpinCtrl", &Make<CIntSpinCtrl>},
                         {L"CoreGUI.LinkButton", &Make<CLinkButton>},
                         {L"CoreGUI.LinkSlider", &Make<CLinkSlider>},
                         {L"CoreGUI.NameEdit", &Make<CNameEdit>},
                         {L"CoreGUI.SmartEdit", &Make<CSmartEdit>},
                         {L"CoreGUI.WidthComboBox", &Make<CWidthComboBox>}};

int g_registrations = 0;

}  // namespace

bool RegisterLibrary() {
  auto& factories = ClassFactories::Get();
  if (g_registrations == 0) {
    for (const Row& row : kRows) {
      if (factories.Has(row.name)) return false;
    }
    for (const Row& row : kRows) factories.Register(row.name, row.make);
  }
  ++g_registrations;
  return true;
}

bool UnregisterLibrary() {
  if (g_registrations == 0) return false;
  if (--g_registrations == 0) {
    for (const Row& row : kRows) ClassFactories::Get().Revoke(row.name);
  }
  return true;
}

bool IsLibraryRegistered() {
  return g_registrations > 0;
}

}  // namespace coregui
