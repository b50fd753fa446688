#include "grid/control/CGridSourceTable.h"

#include <algorithm>

#include "grid/control/CGridSheets.h"
#include "grid/data/CGridDataSource.h"
#include "grid/data/CGridMem.h"
#include "grid/data/CGridSourceOwner.h"

namespace coregui {

int CGridSourceTable::Add(CGridDataSource* source) {
  if (source == nullptr) {
    return -1;
  }
  const auto free = std::find(m_sources.begin() + 1, m_sources.end(), nullptr);
  if (free == m_sources.end() && m_sources.size() > maxSources) {
    return -1;
  }
  source->SetOwner(&m_owner);
  const auto index = free - m_sources.begin();
  if (free == m_sources.end()) {
    m_sources.push_back(source);
  } else {
    *free = source;
  }
  return static_cast<int>(index);
}

int CGridSourceTable::Remove(int index) {
  CGridDataSource* const source = index > 0 ? At(index) : nullptr;
  if (source == nullptr) {
    return 1;
  }
  for (int sheet = 0; sheet < m_sheets.Count(); ++sheet) {
    CGridInfo& info = m_sheets.At(sheet);
    if (info.defaultSource == source) {
      info.defaultSource = info.memory.get();
      info.defaultSourceIndex = 0;
    }
    for (long col = 0; col < info.columns.Count(); ++col) {
      if (info.columns.At(col).source == source) {
        info.columns.At(col).source = nullptr;
      }
    }
  }
  source->SetOwner(nullptr);
  m_sources[static_cast<std::size_t>(index)] = nullptr;
  return 0;
}

CGridDataSource* CGridSourceTable::At(int index) const {
  if (index == 0) {
    return m_sheets.Current().memory.get();
  }
  return index > 0 && index < static_cast<int>(m_sources.size()) ? m_sources[static_cast<std::size_t>(index)]
                                                                 : nullptr;
}

int CGridSourceTable::SetDefault(int index) {
  CGridDataSource* const source = At(index);
  if (source == nullptr) {
    return 1;
  }
  CGridInfo& info = m_sheets.Current();
  info.defaultSourceIndex = index;
  info.defaultSource = source;
  for (long col = 0; col < info.columns.Count(); ++col) {
    info.columns.At(col).source = nullptr;
  }
  return 0;
}

int CGridSourceTable::SetColumnSource(int col, int index) {
  CGridDataSource* const source = At(index);
  if (source == nullptr || !m_sheets.Current().columns.Has(col)) {
    return 1;
  }
  m_sheets.Current().columns.At(col).source = source;
  return 0;
}

CGridSourceTable::Place CGridSourceTable::Of(int col) const {
  CGridInfo& info = m_sheets.Current();
  if (!info.columns.Has(col)) {
    return {info.defaultSource, col};
  }
  const CGridColumns::Column& column = info.columns.At(col);
  return {column.source == nullptr ? info.defaultSource : column.source, column.translation};
}

std::vector<CGridDataSource*> CGridSourceTable::InUse() const {
  CGridInfo& info = m_sheets.Current();
  std::vector<CGridDataSource*> sources{info.defaultSource};
  for (long col = 0; col < info.columns.Count(); ++col) {
    CGridDataSource* const source = info.columns.At(col).source;
    if (source != nullptr && std::find(sources.begin(), sources.end(), source) == sources.end()) {
      sources.push_back(source);
    }
  }
  return sources;
}

}  // namespace coregui
