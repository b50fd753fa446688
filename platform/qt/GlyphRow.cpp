#include "platform/qt/GlyphRow.h"

#include <cstddef>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace coregui {

namespace {

constexpr std::uint32_t fullCover = 255;

// Two channels at a time in one word.
inline std::uint32_t Blend(std::uint32_t dot, std::uint32_t colour, std::uint32_t cover) {
  constexpr std::uint32_t mask = 0x00FF00FF;
  constexpr std::uint32_t half = 0x00800080;
  const std::uint32_t rest = fullCover - cover;
  std::uint32_t low = (dot & mask) * rest + (colour & mask) * cover + half;
  low = ((low + ((low >> 8U) & mask)) >> 8U) & mask;
  std::uint32_t high = ((dot >> 8U) & mask) * rest + ((colour >> 8U) & mask) * cover + half;
  high = (high + ((high >> 8U) & mask)) & ~mask;
  return high | low;
}

#ifdef __SSE2__
// Two dots widened to 16 bits a channel.
inline __m128i BlendWide(__m128i dots, __m128i colour, __m128i cover) {
  const __m128i rest = _mm_sub_epi16(_mm_set1_epi16(fullCover), cover);
  __m128i sum = _mm_add_epi16(_mm_mullo_epi16(dots, rest), _mm_mullo_epi16(colour, cover));
  sum = _mm_add_epi16(sum, _mm_set1_epi16(128));
  return _mm_srli_epi16(_mm_add_epi16(sum, _mm_srli_epi16(sum, 8)), 8);
}

inline void BlendFour(std::uint32_t* dots, std::uint32_t covers, __m128i colour) {
  const __m128i zero = _mm_setzero_si128();
  const __m128i old = _mm_loadu_si128(reinterpret_cast<const __m128i*>(dots));
  // c0 c1 c2 c3 -> each cover four times, once for every channel of its dot.
  __m128i cover = _mm_cvtsi32_si128(static_cast<int>(covers));
  cover = _mm_unpacklo_epi8(cover, cover);
  cover = _mm_unpacklo_epi16(cover, cover);
  const __m128i low = BlendWide(_mm_unpacklo_epi8(old, zero), colour, _mm_unpacklo_epi8(cover, zero));
  const __m128i high = BlendWide(_mm_unpackhi_epi8(old, zero), colour, _mm_unpackhi_epi8(cover, zero));
  _mm_storeu_si128(reinterpret_cast<__m128i*>(dots), _mm_packus_epi16(low, high));
}
#endif

}  // namespace

void BlendRow(std::uint32_t* dots, const std::uint8_t* coverage, int count, std::uint32_t colour) {
  for (int i = 0; i < count; ++i) {
    if (coverage[i] != 0U) {
      dots[i] = Blend(dots[i], colour, coverage[i]);
    }
  }
}

void BlendBlock(std::uint32_t* dots, std::ptrdiff_t dotStride, const std::uint8_t* coverage, int stride,
                int rows, std::uint32_t colour) {
#ifdef __SSE2__
  const __m128i wide = _mm_unpacklo_epi8(_mm_set1_epi32(static_cast<int>(colour)), _mm_setzero_si128());
  for (int row = 0; row < rows; ++row) {
    for (int x = 0; x < stride; x += 4) {
      std::uint32_t covers = 0;
      std::memcpy(&covers, coverage + x, sizeof covers);
      if (covers != 0U) {
        BlendFour(dots + x, covers, wide);
      }
    }
    dots += dotStride;
    coverage += stride;
  }
#else
  for (int row = 0; row < rows; ++row) {
    BlendRow(dots, coverage, stride, colour);
    dots += dotStride;
    coverage += stride;
  }
#endif
}

}  // namespace coregui
