#include "platform/device_name.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace korventally {
namespace {

constexpr std::array kDevices = {"con", "prn", "aux", "nul", "conin$", "conout$", "clock$"};
constexpr std::array kNumberedDevices = {"com", "lpt"};
// Windows takes the superscript digits for numbers, too.
constexpr std::array kNumbers = {"0", "1", "2", "3",      "4",      "5",     "6",
                                 "7", "8", "9", "\u00B9", "\u00B2", "\u00B3"};

/// What a device goes by: the name in small letters without its extension and the blanks around it.
std::string stemOf(std::string_view name) {
  std::string stem;
  for (const char c : name.substr(0, name.find_first_of(".:"))) {
    stem += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  }
  stem.erase(stem.find_last_not_of(' ') + 1);
  return stem.erase(0, stem.find_first_not_of(' '));
}

bool contains(const auto& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

bool isDeviceName(std::string_view name) {
  const std::string stem = stemOf(name);
  return contains(kDevices, stem) ||
         (stem.size() > 3 && contains(kNumberedDevices, std::string_view(stem).substr(0, 3)) &&
          contains(kNumbers, std::string_view(stem).substr(3)));
}

}  // namespace korventally
