#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/container.h"
#include "platform/control.h"
#include "platform/font.h"
#include "platform/geometry.h"

namespace korventally {

/// A single line of text to type.
class TextBox : public Control {
 public:
  /// `limit` is the most characters that a user can type or paste; 0 for no limit. Text set from
  /// code is never cut.
  TextBox(Container& container, Rect place, std::string text = {}, int limit = 0,
          Font font = fonts::kDefault);

  int limit() const { return limit_; }
  bool isEmpty() const { return text().empty(); }

  /// A text that shows what to type: the box holds it from now on, until `dropPlaceholder`.
  void setPlaceholder(std::string text);
  /// Empties the box if it still shows its placeholder.
  void dropPlaceholder();
  /// Whether it holds a text other than its placeholder.
  bool isFilledIn() const { return !isEmpty() && text() != placeholder_; }

  /// Sees every character that is typed before it reaches the box, with Enter as 13 and Backspace
  /// as 8; setting the code to 0 discards the keystroke. What is pasted or dropped does not come
  /// by here.
  std::function<void(std::int16_t& keyCode)> onKeyPress;

  /// Whether a file or a folder can be named in the box: a path pasted in quotes loses them, and a
  /// file dropped on the box fills it.
  bool takesPath() const { return takesPath_; }
  void setTakesPath() { takesPath_ = true; }
  /// The path can only be that of a folder: a file dropped on the box goes to the window instead,
  /// if that takes files.
  void setTakesFolder() { takesPath_ = takesFolder_ = true; }

  /// Marks the whole text, so that typing replaces it.
  void selectAll() { changed(Aspect::kSelection); }

  /// A keystroke of the user's: runs `onKeyPress` and says whether the character may reach the
  /// box. Enter never does, since the box is a single line.
  bool acceptsKey(std::int16_t keyCode);
  /// The user has dropped files or folders on the box: the full path of the first fills it.
  void dropFiles(const std::vector<std::string>& paths);
  /// The user has edited the text; the view shows it already.
  void edited(std::string text) { text_ = std::move(text); }

 private:
  int limit_;
  std::string placeholder_;
  bool takesPath_ = false;
  bool takesFolder_ = false;
};

}  // namespace korventally
