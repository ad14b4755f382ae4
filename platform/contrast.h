#pragma once

#include <cstdint>

namespace korventally {

/// The least contrast at which a text of ordinary size is easily read.
inline constexpr double kReadableContrast = 4.5;

/// How far two colours (0x00BBGGRR, no system colours) lie apart for the eye: the ratio of their
/// relative luminances, from 1, the same, to 21, black and white.
double contrastRatio(std::uint32_t one, std::uint32_t other);

}  // namespace korventally
