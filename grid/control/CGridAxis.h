#pragma once

#include <cstdint>

#include "core/Export.h"
#include "grid/control/SizeTable.h"

namespace coregui {

/// One direction of a sheet: how many rows (or columns) there are, how large each is, which are locked, which
/// part is in view, and the current one. Rows and columns share all arithmetic here. Indexes count from 0,
/// sizes are pixels, sums have 64 bits. A hidden row or column has size 0.
class COREGUI_API CGridAxis {
 public:
  // --- Count and sizes

  long Count() const { return m_count; }
  /// New entries get the default size.
  void SetCount(long count);
  /// One size for all: the table is released. Switching back gives every entry the default size.
  void SetUniform(bool uniform);
  bool IsUniform() const { return m_uniform; }
  int DefaultSize() const { return m_defaultSize; }
  /// The size of new entries, and of all entries of a uniform axis.
  void SetDefaultSize(int size);
  /// The size of an entry; 0 outside the axis.
  int SizeOf(long index) const;
  /// What the step from one entry to its neighbour costs: SizeOf, or the default size outside the axis.
  int CostOf(long index) const;
  /// On a uniform axis the size goes to all entries.
  void SetSize(long index, int size);
  void Insert(long index);
  void Erase(long index);
  void Move(long from, long to);
  /// The pixels before an entry, from the first entry on; `index` is clipped to 0 … Count().
  std::int64_t OffsetOf(long index) const;
  /// The pixels of all entries.
  std::int64_t TotalSize() const { return OffsetOf(m_count); }
  /// The entry that covers a pixel counted from the first entry; Count() behind the end, 0 before the start.
  /// A hidden entry covers none.
  long IndexAtOffset(std::int64_t pixel) const;

  /// The nearest entry that is not hidden, `index` first, then in the direction of `step` (-1 or 1); -1 when
  /// none.
  long NearestShown(long index, int step) const;

  // --- View

  /// The entries before this one stay in view at the start.
  long Locked() const { return m_locked; }
  void SetLocked(long count) { m_locked = count; }
  std::int64_t LockedSize() const { return OffsetOf(m_locked); }
  /// The first scrollable entry in view.
  long First() const { return m_first; }
  void SetFirst(long first) { m_first = first; }
  /// Pixels of the view, and of what the locked entries leave of it (which may be negative).
  int Extent() const { return m_extent; }
  void SetExtent(int pixels) { m_extent = pixels; }
  std::int64_t Room() const { return m_extent - LockedSize(); }
  /// The largest first entry with which the view is still filled; never below the locked ones.
  long MaxFirst() const;
  /// `first` brought into Locked() … MaxFirst().
  long ClampFirst(long first) const;
  /// Where an entry starts in the view. Scrollable entries before First() start before the locked ones' end.
  std::int64_t PositionOf(long index) const;
  /// The entry at a position of the view: a locked one where those are, else a scrollable one. -1 when none.
  long IndexAtPosition(std::int64_t position) const;
  /// How many locked entries are at least partly in view.
  long LockedInView() const;
  /// The last entry that is at least partly in view (from First() on); First() when the view has no room.
  long LastInView() const;
  /// Calls `call(index)` for the locked entries in view, then for the scrollable ones; hidden ones too.
  template <class Call>
  void ForEachInView(Call call) const {
    if (m_extent <= 0) return;
    const long lockedEnd = LockedInView();
    const long end = LastInView() + 1;
    for (long index = 0; index < lockedEnd; ++index) call(index);
    for (long index = m_first; index < end; ++index) call(index);
  }
  /// The first entry that a view must start with to show `index` in full, starting at First() or later;
  /// never behind `index` itself.
  long FirstThatShows(long index) const;
  /// The target of a page move from `index`: as far as whole entries fit into the room, one entry's start to
  /// another's. `step` is -1 or 1. The entry itself when the room is negative. Forward, the page may end
  /// behind the last entry: what is there counts as of the default size.
  long PageTarget(long index, int step) const;

  /// Moves the view as little as needed for `drag` to be in it.
  void KeepDragInView();

  /// True when the sizes fit the count, the first entry in view lies in its range, and no entry that does not
  /// exist is current or dragged.
  bool Check() const;

  // --- Position: -1 is none

  long current = -1;
  long lastCurrent = -1;   ///< as it was at the last move
  long drag = -1;          ///< the anchor of relative moves
  long last = 0;           ///< the last entry that the last paint pass reached
  long reportedFirst = 0;  ///< First() as the application was last told
  long paintedFirst = 0;   ///< First() as it was at the last paint pass

 private:
  long m_count = 0;
  int m_defaultSize = 0;
  bool m_uniform = false;
  SizeTable m_table;  ///< one size per entry, unless uniform
  long m_locked = 0;
  long m_first = 0;
  int m_extent = 0;
};

}  // namespace coregui
