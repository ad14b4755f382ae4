#include "platform/contrast.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace korventally {
namespace {

/// The light that a screen gives for a share from 0 to 255, as sRGB defines it.
double linear(std::uint32_t share) {
  const double value = static_cast<double>(share & 0xFF) / 255;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(std::uint32_t color) {
  return 0.2126 * linear(color) + 0.7152 * linear(color >> 8) + 0.0722 * linear(color >> 16);
}

}  // namespace

double contrastRatio(std::uint32_t one, std::uint32_t other) {
  // What a screen reflects of the room, so that black is not infinitely dark.
  constexpr double kFlare = 0.05;
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + kFlare) / (darker + kFlare);
}

}  // namespace korventally
