#include "platform/option_button.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/color.h"
#include "platform/container.h"
#include "platform/control.h"
#include "platform/font.h"
#include "platform/geometry.h"
#include "platform/window.h"

namespace korventally {
namespace {

std::vector<OptionButton*> optionsOf(const Container& container) {
  std::vector<OptionButton*> options;
  for (Control* child : container.children()) {
    if (child->kind() == Control::Kind::kOptionButton) {
      options.push_back(static_cast<OptionButton*>(child));
    }
  }
  return options;
}

}  // namespace

OptionButton::OptionButton(Container& container, Rect place, std::string caption, bool selected,
                           Font font, OleColor color)
    : Control(Kind::kOptionButton, &container, place, font), selected_(selected) {
  text_ = std::move(caption);
  foreColor_ = color;
}

void OptionButton::select() {
  for (OptionButton* option : optionsOf(*container())) option->setSelected(option == this);
}

bool OptionButton::standsForGroup() const {
  const OptionButton* firstUsable = nullptr;
  for (const OptionButton* option : optionsOf(*container())) {
    if (!option->usable()) continue;
    if (option->selected()) return option == this;
    if (firstUsable == nullptr) firstUsable = option;
  }
  return firstUsable == this;
}

void OptionButton::press() {
  if (!usable()) return;
  select();
  raise(onClick);
}

void OptionButton::moveSelection(bool forward) {
  std::vector<OptionButton*> options = optionsOf(*container());
  if (!forward) std::reverse(options.begin(), options.end());
  const auto self = std::find(options.begin(), options.end(), this);
  std::rotate(options.begin(), self + 1, options.end());
  const auto next = std::find_if(options.begin(), options.end(),
                                 [](const OptionButton* option) { return option->usable(); });
  if (next == options.end() || *next == this) return;
  window().setFocus(**next);
  (*next)->press();
}

void OptionButton::setSelected(bool selected) {
  if (selected_ == selected) return;
  selected_ = selected;
  changed(Aspect::kValue);
}

}  // namespace korventally
