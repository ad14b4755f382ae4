#include "platform/control.h"

#include <functional>
#include <string>
#include <utility>

#include "platform/color.h"
#include "platform/container.h"
#include "platform/font.h"
#include "platform/geometry.h"
#include "platform/guarded.h"
#include "platform/window.h"

namespace korventally {

Control::Control(Kind kind, Container* container, Rect place, Font font)
    : kind_(kind), container_(container), place_(place), font_(font) {
  if (container_ != nullptr) container_->adopt(*this);
}

Control::~Control() = default;

Window& Control::window() { return container_->window(); }

void Control::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  changed(Aspect::kEnabled);
}

void Control::setVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  changed(Aspect::kVisible);
}

bool Control::usable() const {
  if (!enabled_ || !visible_) return false;
  return container_ == nullptr || container_->usable();
}

void Control::setBackColor(OleColor color) {
  if (backColor_ == color) return;
  backColor_ = color;
  changed(Aspect::kBackColor);
}

void Control::setText(std::string text) {
  if (text_ == text) return;
  text_ = std::move(text);
  changed(Aspect::kText);
}

void Control::setLabel(const Control& label, const Control* unit) {
  label_ = &label;
  unit_ = unit;
}

std::string Control::accessibleName() const {
  if (label_ == nullptr) return accessibleName_;
  std::string caption = label_->text();
  if (caption.ends_with(':')) caption.pop_back();
  return accessibleName_ + caption + (unit_ == nullptr ? "" : ", " + unit_->text());
}

void Control::changed(Aspect aspect) { window().controlChanged(*this, aspect); }

void Control::raise(const std::function<void()>& handler) {
  runGuarded(&window(), handler);
  window().settleFocus();
}

}  // namespace korventally
