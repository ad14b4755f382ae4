#pragma once

#include <functional>
#include <string>
#include <vector>

namespace korventally {

/// One entry of a menu; "-" is a separator. An "&" marks the access key and is not shown.
struct MenuEntry {
  std::string text;
  std::function<void()> onClick;
};

/// One menu of a window's menu bar.
struct Menu {
  std::string text;
  std::vector<MenuEntry*> entries;
};

}  // namespace korventally
