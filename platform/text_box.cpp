#include "platform/text_box.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/container.h"
#include "platform/control.h"
#include "platform/files.h"
#include "platform/font.h"
#include "platform/geometry.h"
#include "platform/window.h"

namespace korventally {
namespace {

constexpr std::int16_t kEnter = 13;

}  // namespace

TextBox::TextBox(Container& container, Rect place, std::string text, int limit, Font font)
    : Control(Kind::kTextBox, &container, place, font), limit_(limit) {
  text_ = std::move(text);
}

void TextBox::setPlaceholder(std::string text) {
  setText(text);
  placeholder_ = std::move(text);
}

void TextBox::dropPlaceholder() {
  if (text() == placeholder_) setText("");
}

bool TextBox::acceptsKey(std::int16_t keyCode) {
  raise([&] {
    if (onKeyPress) onKeyPress(keyCode);
  });
  return keyCode != 0 && keyCode != kEnter;
}

void TextBox::dropFiles(const std::vector<std::string>& paths) {
  if (!takesPath_ || !usable() || paths.empty()) return;
  if (takesFolder_ && window().takesFiles() && fileExists(paths.front())) {
    return window().dropFiles(paths);
  }
  window().setFocus(*this);
  // Whole, however long it is: the limit is one of typing, and a path cut short leads nowhere.
  setText(paths.front());
}

}  // namespace korventally
