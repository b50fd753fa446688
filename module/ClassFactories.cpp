#include "module/ClassFactories.h"

#include <memory>
#include <utility>

namespace coregui {
namespace {

CString KeyOf(const CString& name) {
  return CString(name).MakeUpper();
}

}  // namespace

ClassFactories& ClassFactories::Get() {
  // Never destroyed: an application object in a program's statics undoes its registration at the exit.
  static auto& factories = *std::make_unique<ClassFactories>().release();
  return factories;
}

bool ClassFactories::Register(const CString& name, ClassFactory factory) {
  if (name.IsEmpty() || !factory) return false;
  return m_entries.try_emplace(KeyOf(name), Entry{name, std::move(factory)}).second;
}

bool ClassFactories::Revoke(const CString& name) {
  return m_entries.erase(KeyOf(name)) != 0;
}

bool ClassFactories::Has(const CString& name) const {
  return m_entries.contains(KeyOf(name));
}

std::unique_ptr<CObject> ClassFactories::Create(const CString& name) const {
  const auto found = m_entries.find(KeyOf(name));
  if (found == m_entries.end()) return nullptr;
  const ClassFactory factory = found->second.factory;  // it may revoke its own name
  return factory();
}

std::vector<CString> ClassFactories::GetNames() const {
  std::vector<CString> names;
  names.reserve(m_entries.size());
  for (const auto& [key, entry] : m_entries) names.push_back(entry.name);
  return names;
}

}  // namespace coregui
