#include "platform/Locale.h"

#include "platform/LocaleData.h"

namespace coregui {
namespace {

struct State {
  LocaleData data;
  std::uint32_t version = 1;
  State() { LoadLocaleData("", data); }
};

State& TheState() {
  static auto& state = *new State;  // never destroyed: see WindowRegistry.cpp
  return state;
}

}  // namespace

const LocaleData& CurrentLocaleData() {
  return TheState().data;
}

const DateWords& EnglishDateWords() {
  static const DateWords words = [] {
    LocaleData english;
    LoadLocaleData("en_US", english);
    return english.dates;
  }();
  return words;
}

const UserLocale& GetUserLocale() {
  return TheState().data.numbers;
}

std::uint32_t GetUserLocaleVersion() {
  return TheState().version;
}

bool SetUserLocale(const wchar_t* name) {
  LocaleData data;
  if (!LoadLocaleData(CString(name).ToUtf8(), data)) return false;
  TheState().data = std::move(data);
  ++TheState().version;
  return true;
}

void SetUserLocale(const UserLocale& locale) {
  TheState().data.numbers = locale;
  ++TheState().version;
}

}  // namespace coregui
