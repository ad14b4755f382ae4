#pragma once

#include <string_view>

namespace korventally {

/// A font by face and size. A face named "Symbol" uses the symbol character set.
struct Font {
  const char* face = "Arial";
  double points = 8.25;
  bool bold = false;
  bool underlined = false;
  friend bool operator==(const Font& a, const Font& b) {
    return std::string_view(a.face) == b.face && a.points == b.points && a.bold == b.bold &&
           a.underlined == b.underlined;
  }
};

namespace fonts {
inline constexpr Font kDefault{};
inline constexpr Font kBold{"Arial", 8.25, true};
inline constexpr Font kArrow{"Symbol", 14.25, true};
}  // namespace fonts

}  // namespace korventally
