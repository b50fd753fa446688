#include "grid/data/CGridSourceOwner.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <string_view>

#include "grid/data/CGridCell.h"

namespace coregui {
namespace {

int Compare(double a, double b) {
  return a < b ? -1 : a > b ? 1 : 0;
}

bool ComparesByNumber(const CGridCell& cell) {
  const short type = cell.GetDataType();
  return type == CELLDATA_NUMBER || type == CELLDATA_BOOL || type == CELLDATA_CURRENCY;
}

/// An owner that overrides nothing but what it must: its function table shows the standard comparison.
class PlainOwner final : public CGridSourceOwner {
 public:
  int GetNumberCols() const override { return 0; }
  long GetNumberRows() const override { return 0; }
  int GetColTranslation(int col) const override { return col; }
  void SetColTranslation(int /*col*/, int /*dataColumn*/) override {}
};

/// The address of the comparison that a call through `owner` reaches. A pointer to a virtual member holds one
/// more than the function's offset in the table that the object points to (the C++ ABI of g++ and clang++;
/// 64-bit ARM keeps the mark elsewhere and the offset plain). Null where the ABI is another one.
const void* ReachedComparison(const CGridSourceOwner& owner) {
#if defined(__GNUC__) && (defined(__x86_64__) || defined(__i386__) || defined(__aarch64__))
  struct MemberPointer {
    std::ptrdiff_t function;
    std::ptrdiff_t adjustment;
  };
  auto offset = std::bit_cast<MemberPointer>(&CGridSourceOwner::OnSortEvaluate).function;
#if !defined(__aarch64__)
  offset -= 1;
#endif
  const auto* const table = *reinterpret_cast<const std::byte* const*>(&owner);
  return *reinterpret_cast<const void* const*>(table + offset);
#else
  return nullptr;
#endif
}

}  // namespace

int CGridSourceOwner::OnSortEvaluate(CGridCell* a, CGridCell* b, int flags) {
  if (a == nullptr) return b != nullptr ? 1 : 0;
  if (b == nullptr) return -1;
  const CGridCell* first = a;
  const CGridCell* second = b;
  if ((flags & SORT_DESCENDING) != 0) std::swap(first, second);
  if (ComparesByNumber(*first)) return Compare(first->GetNumber(), second->GetNumber());
  const wchar_t* const firstText = first->GetText();
  // Kept: two cells without text give 1 too, so that each goes behind those already placed.
  if (firstText == nullptr) return 1;
  const wchar_t* const secondText = second->GetText();
  if (secondText == nullptr) return -1;
  const int order = std::wstring_view(firstText).compare(secondText);
  return order < 0 ? -1 : order > 0 ? 1 : 0;
}

SortOrder CGridSourceOwner::GetSortOrder() const {
  static const PlainOwner plain;
  const void* const reached = ReachedComparison(*this);
  return reached != nullptr && reached == ReachedComparison(plain) ? SortOrder::standard : SortOrder::unknown;
}

int CGridSourceOwner::FindColOfData(int dataColumn) const {
  const int count = GetNumberCols();
  for (int col = 0; col < count; ++col) {
    if (GetColTranslation(col) == dataColumn) return col;
  }
  return -1;
}

}  // namespace coregui
