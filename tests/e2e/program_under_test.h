#pragma once

#include <string>

#include "driver/walk.h"
#include "tests/e2e/test_folder.h"

namespace korventally::driver {

/// A message box of the program, as the user sees it.
struct Message {
  HWND window;
  std::wstring title, text;
  std::wstring buttons;  ///< captions without access keys, with blanks between them
};

Message waitForMessage(const Program& program, const std::wstring& title);
/// Presses a button and waits until the box is gone.
void answer(const Message& message, int button);
/// What Windows asks and tells all windows of a program when the user logs off. In the end the
/// session ends, or somebody has objected and it goes on.
bool agreesToSessionEnd(const Program& program);
void tellSessionEnd(const Program& program, bool ends);

/// The shortest case, two groups with all options as they are, to the open run summary.
void walkShortCase(const Program& program, const TestFolder& study);

}  // namespace korventally::driver
