#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace korventally::win32 {

/// Whether files may fall on a window. Does what DragAcceptFiles does, for which the whole shell
/// would have to be loaded.
void acceptFiles(HWND window, bool accept);

/// The full paths of what was dropped on a window, as WM_DROPFILES brings it; none when the window
/// lies under a modal one, where Windows lets files fall all the same. Brings the window to the
/// front, where that of the program was that the files come from, so that a message about them is
/// seen. To be called once for each drop.
std::vector<std::string> takeDrop(HWND on, WPARAM drop);

}  // namespace korventally::win32
