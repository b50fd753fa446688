#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "core/Export.h"
#include "platform/CObject.h"
#include "platform/CString.h"

namespace coregui {

/// Makes a new object of one class; the caller owns it.
using ClassFactory = std::function<std::unique_ptr<CObject>()>;

/// The classes that can be made by name ("CoreGUI.NameEdit"), for programs and scripts that know a class only
/// by its name. Names are compared ignoring case. Used by the windows' thread only.
class COREGUI_API ClassFactories {
 public:
  /// The program's registry. It starts empty: nothing registers itself.
  static ClassFactories& Get();

  /// False, with nothing changed, when the name is empty or taken or the factory makes nothing.
  bool Register(const CString& name, ClassFactory factory);
  /// False when there is no such name. Objects made before live on.
  bool Revoke(const CString& name);
  bool Has(const CString& name) const;
  /// A new object; null for an unknown name.
  std::unique_ptr<CObject> Create(const CString& name) const;
  /// In alphabetical order, ignoring case, in the case that they were registered with.
  std::vector<CString> GetNames() const;

 private:
  struct Entry {
    CString name;
    ClassFactory factory;
  };
  std::map<CString, Entry> m_entries;  ///< by the name in upper case
};

}  // namespace coregui
