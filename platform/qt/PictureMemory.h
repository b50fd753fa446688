#pragma once

#include <cstddef>

namespace coregui {

/// The system's large pages: how many bytes, and what their addresses are multiples of.
inline constexpr std::size_t kLargePage = std::size_t{1} << 21U;

/// Tells the system that the memory of a picture is about to be filled, all of it. It comes then in a few
/// large pages, and the rest in one go, where it would come in thousands of small ones at the first touch of
/// each: a third of the time, and what moves the picture later is quicker too. Large pages are taken only
/// where they lie in the picture as a whole, so that no more memory is used. A hint: nothing more than the
/// time depends on it.
void ExpectFill(const void* memory, std::size_t bytes);

}  // namespace coregui
