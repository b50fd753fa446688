#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace coregui::test {

/// Leaves out of a row of operations what its fault does not need, in ever smaller parts. `faultAfter` runs a
/// row from scratch and returns its fault as text, an empty one for none.
template <typename Operation, typename FaultAfter>
std::vector<Operation> ShortestFailing(std::vector<Operation> operations, FaultAfter faultAfter) {
  for (std::size_t part = operations.size() / 2; part > 0; part /= 2) {
    for (std::size_t at = 0; at + part <= operations.size();) {
      const auto from = operations.begin() + static_cast<std::ptrdiff_t>(at);
      std::vector<Operation> fewer(operations.begin(), from);
      fewer.insert(fewer.end(), from + static_cast<std::ptrdiff_t>(part), operations.end());
      if (faultAfter(fewer).empty()) {
        at += part;
      } else {
        operations = std::move(fewer);
      }
    }
  }
  return operations;
}

}  // namespace coregui::test
