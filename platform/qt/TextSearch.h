#pragma once

#include <algorithm>

#include "platform/CString.h"

namespace coregui {

/// The first of `count` texts behind `after`, going round, that equals `wanted` (`exact`) or begins with it,
/// ignoring case; -1 when there is none.
template <class TextOf>
int FindText(int count, int after, const wchar_t* wanted, bool exact, TextOf textOf) {
  const CString text(wanted);
  const int start = after < -1 || after >= count ? -1 : after;
  for (int i = 1; i <= count; ++i) {
    const int index = (start + i) % count;
    const CString item = textOf(index);
    if ((exact ? item : item.Left(text.GetLength())).CompareNoCase(text) == 0) return index;
  }
  return -1;
}

/// Where a text belongs among `count` sorted ones: behind its equals.
template <class TextOf>
int SortedPlace(int count, const wchar_t* text, TextOf textOf) {
  int low = 0;
  int high = count;
  while (low < high) {
    const int middle = low + (high - low) / 2;
    if (textOf(middle).CompareNoCase(text) <= 0) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low;
}

}  // namespace coregui
