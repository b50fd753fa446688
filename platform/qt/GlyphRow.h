#pragma once

#include <cstddef>
#include <cstdint>

namespace coregui {

/// Lays `colour` (with full alpha) over dots by 8-bit coverage: dot · (255 − cover) + colour · cover, divided
/// by 255 with rounding, channel by channel.
void BlendRow(std::uint32_t* dots, const std::uint8_t* coverage, int count, std::uint32_t colour);

/// The same for rows of coverage whose length is a multiple of 4, four dots at a time. The dots beyond the
/// ink must exist; a coverage of 0 leaves them as they are.
void BlendBlock(std::uint32_t* dots, std::ptrdiff_t dotStride, const std::uint8_t* coverage, int stride,
                int rows, std::uint32_t colour);

}  // namespace coregui
