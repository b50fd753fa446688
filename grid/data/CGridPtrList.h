#pragma once

#include <vector>

#include "core/Export.h"
#include "grid/data/GridID.h"

/// A growable table of borrowed pointers, each with a number and an identifier. An entry's index never
/// changes; freed slots are used again first, the lowest before the others.
class COREGUI_API CGridPtrList {
 public:
  /// Puts the pointer in the lowest free slot and returns the slot's index. A null `id` leaves the slot's
  /// identifier as it was.
  int AddPointer(void* pointer, long param = 0, const GridID* id = nullptr);
  /// Frees the slot and clears its pointer. 1 when the index is out of range, else 0, for a free slot too.
  int DeletePointer(int index);
  /// The pointer of a used slot, else null.
  void* GetPointer(int index) const;
  /// The first used slot that holds the pointer, or -1.
  int GetPointerIndex(const void* pointer) const;
  /// The slot's number; 0 when the index is out of range.
  long GetParam(int index) const;
  /// 1 when the index is out of range, 2 for a free slot, 0 when stored.
  int UpdateParam(int index, long param);
  /// The slot's identifier, or null when the index is out of range.
  const GridID* GetID(int index) const;
  /// The number of used slots.
  int GetCount() const { return m_count; }
  /// The number of slots.
  int GetMaxCount() const { return static_cast<int>(m_entries.size()); }
  /// Frees the table.
  void EmptyList();
  /// Whether the count of used slots is right and every free slot is clear.
  bool Check() const;

 private:
  struct Entry {
    GridID id;
    void* pointer = nullptr;  ///< borrowed; null in a free slot
    long param = 0;
    bool inUse = false;
  };
  bool IsInRange(int index) const { return index >= 0 && index < GetMaxCount(); }

  std::vector<Entry> m_entries;
  int m_count = 0;
};
