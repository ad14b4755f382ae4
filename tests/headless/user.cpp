#include "tests/user.h"

#include <cstdint>

#include "platform/button.h"
#include "platform/check_box.h"
#include "platform/headless/desktop.h"
#include "platform/headless/utf8.h"
#include "platform/option_button.h"

namespace korventally::testing {
namespace {

constexpr std::int16_t kBackspaceCode = 8;
constexpr char32_t kEnterCode = '\r';

/// A user can only deal with what is on the screen; a test that asks for more has lost its way.
bool inReach(const Window& window) {
  if (!window.isOpen()) Desktop::onFailure("the user sees no such window: " + window.text());
  return Desktop::current().takesInput(window);
}

bool inReach(const Control& control) { return inReach(control.window()) && control.usable(); }

/// Whether the user has got the focus there. It leaves the old control first, and what happens on
/// leaving may put this one out of reach.
bool focusOn(Control& control) {
  if (!inReach(control)) return false;
  control.window().setFocus(control);
  return inReach(control) && control.window().focused() == &control;
}

bool pressButton(Control& control) {
  switch (control.kind()) {
    case Control::Kind::kButton:
      static_cast<Button&>(control).press();
      return true;
    case Control::Kind::kOptionButton:
      static_cast<OptionButton&>(control).press();
      return true;
    case Control::Kind::kCheckBox:
      static_cast<CheckBox&>(control).press();
      return true;
    default:
      return false;
  }
}

std::u32string charactersOf(const std::string& text) {
  return headless::decodeUtf8(text).value_or(U"");
}

/// Limits count as Windows counts: two for a character beyond the basic plane.
int lengthOf(const std::string& text) {
  int length = 0;
  for (const char32_t character : charactersOf(text)) {
    length += character < 0x10000 ? 1 : 2;
  }
  return length;
}

void typeCharacter(TextBox& box, char32_t character) {
  if (!inReach(box) || !box.acceptsKey(static_cast<std::int16_t>(character))) return;
  std::string text = box.text();
  headless::appendUtf8(text, character);
  if (box.limit() == 0 || lengthOf(text) <= box.limit()) box.edited(text);
}

void pressBackspace(TextBox& box) {
  if (!box.acceptsKey(kBackspaceCode)) return;
  std::u32string characters = charactersOf(box.text());
  if (!characters.empty()) characters.pop_back();
  std::string text;
  for (const char32_t character : characters) headless::appendUtf8(text, character);
  box.edited(text);
}

void pressInTextBox(TextBox& box, Key key) {
  if (key == Key::kBackspace) pressBackspace(box);
  if (key == Key::kSpace) typeCharacter(box, ' ');
  if (key == Key::kEnter) typeCharacter(box, kEnterCode);
}

void pressInOption(OptionButton& option, Key key) {
  if (key == Key::kSpace) option.press();
  if (key == Key::kDown || key == Key::kRight) option.moveSelection(true);
  if (key == Key::kUp || key == Key::kLeft) option.moveSelection(false);
}

void pressInControl(Control& control, Key key) {
  if (control.kind() == Control::Kind::kTextBox) {
    pressInTextBox(static_cast<TextBox&>(control), key);
  } else if (control.kind() == Control::Kind::kOptionButton) {
    pressInOption(static_cast<OptionButton&>(control), key);
  } else if (key == Key::kSpace ||
             (key == Key::kEnter && control.kind() == Control::Kind::kButton)) {
    pressButton(control);
  }
}

bool takesFocus(const Control& control) {
  return control.kind() == Control::Kind::kTextBox || control.kind() == Control::Kind::kButton ||
         control.kind() == Control::Kind::kOptionButton ||
         control.kind() == Control::Kind::kCheckBox;
}

}  // namespace

void click(Control& control) {
  if (takesFocus(control) && focusOn(control)) pressButton(control);
}

void type(TextBox& box, const std::string& text) {
  if (!focusOn(box)) return;
  for (const char32_t character : charactersOf(text)) typeCharacter(box, character);
}

void paste(TextBox& box, const std::string& text) {
  if (!focusOn(box)) return;
  // A single line takes the first line only.
  std::string line = text.substr(0, text.find_first_of("\r\n"));
  const bool quoted = line.size() >= 2 && line.starts_with('"') && line.ends_with('"');
  if (box.takesPath() && quoted) line = line.substr(1, line.size() - 2);
  std::string pasted;
  for (const char32_t character : charactersOf(line)) {
    std::string longer = pasted;
    headless::appendUtf8(longer, character);
    if (box.limit() != 0 && lengthOf(longer) > box.limit()) break;
    pasted = longer;
  }
  box.edited(pasted);
}

void press(Window& window, Key key) {
  if (!inReach(window)) return;
  if (key == Key::kTab || key == Key::kShiftTab) return window.moveFocus(key == Key::kTab);
  if (key == Key::kEscape) {
    if (window.closesOnEscape()) window.requestClose();
    return;
  }
  Control* control = window.focused();
  if (control != nullptr && control->usable()) pressInControl(*control, key);
}

void drop(Control& on, const std::vector<std::string>& paths) {
  if (!inReach(on.window())) return;
  auto* const box = on.kind() == Control::Kind::kTextBox ? static_cast<TextBox*>(&on) : nullptr;
  if (box != nullptr && box->takesPath() && box->usable()) return box->dropFiles(paths);
  on.window().dropFiles(paths);
}

void clickCloseBox(Window& window) {
  if (inReach(window)) window.requestClose();
}

}  // namespace korventally::testing
