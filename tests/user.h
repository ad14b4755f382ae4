#pragma once

#include <string>
#include <vector>

#include "platform/text_box.h"
#include "platform/window.h"

namespace korventally::testing {

/// What a user does with mouse and keyboard, on whichever back end the tests are linked with.
/// Each returns when the window has dealt with it. On a control that is not usable nothing happens.
void click(Control& control);
/// Puts the focus on the box and types the text, character by character, behind what it holds.
void type(TextBox& box, const std::string& text);
/// Replaces the whole text of the box by a paste.
void paste(TextBox& box, const std::string& text);
enum class Key { kTab, kShiftTab, kEnter, kBackspace, kEscape, kSpace, kUp, kDown, kLeft, kRight };
/// Presses a key in the control that has the focus.
void press(Window& window, Key key);
/// Drops files or folders, full paths, on a control or on a window, as from another program. What
/// takes none there leaves them to what is around it.
void drop(Control& on, const std::vector<std::string>& paths);
/// Clicks the window's close box.
void clickCloseBox(Window& window);

}  // namespace korventally::testing
