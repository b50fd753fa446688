#pragma once

// The meaning of the alignment, border and extended-style bits of a cell, as every cell type reads them.

namespace coregui {

// Alignment. A cell without any of a direction's bits stands left or at the top.
inline constexpr int kAlignLeft = 0x1;
inline constexpr int kAlignRight = 0x2;
inline constexpr int kAlignCentre = 0x4;
inline constexpr int kAlignTop = 0x8;
inline constexpr int kAlignBottom = 0x10;
inline constexpr int kAlignMiddle = 0x20;

// Border. The four sides follow each other in the order left, top, right, bottom within each width: a thin
// line at the bottom is kBorderThin << 3, a box of thin lines kBorderThin * 15.
inline constexpr int kBorderThin = 0x001;    ///< left; one pixel wide
inline constexpr int kBorderMedium = 0x010;  ///< left; two pixels, inwards
inline constexpr int kBorderThick = 0x100;   ///< left; three pixels, inwards
inline constexpr int kBorderSunken = 0x1000;
inline constexpr int kBorderRaised = 0x2000;

// Extended style of the normal type; other types share kExtendedDisabled.
inline constexpr long kExtendedWrap = 0x2;
inline constexpr long kExtendedEllipsis = 0x4;
inline constexpr long kExtendedLabel = 0x8;
inline constexpr long kExtendedDisabled = 0x4000;  ///< text greyed; the check box ignores clicks and keys

}  // namespace coregui
