#pragma once

#include <cstdint>

namespace korventally {

/// An OLE colour: 0x00BBGGRR, or 0x800000nn for Windows' colour number nn. The model compares
/// colours as stored, because the colour of a text field is also its state; only views resolve
/// them.
using OleColor = std::uint32_t;

namespace colors {
inline constexpr OleColor kWhite = 0x00FFFFFF;
inline constexpr OleColor kYellow = 0x0000FFFF;
inline constexpr OleColor kDarkYellow = 0x0000C0C0;
inline constexpr OleColor kGreen = 0x0000FF00;
inline constexpr OleColor kNavy = 0x00800000;
inline constexpr OleColor kBlue = 0x00FF0000;
inline constexpr OleColor kLightGrey = 0x00C0C0C0;
inline constexpr OleColor kLightBlue = 0x00FFC0C0;
inline constexpr OleColor kButtonFace = 0x8000000F;
inline constexpr OleColor kWindowText = 0x80000008;
inline constexpr OleColor kTitleBarText = 0x80000009;
}  // namespace colors

}  // namespace korventally
