#pragma once

#include <cstdint>
#include <string>

#include "platform/folder_browser.h"

namespace korventally {

/// Shows the shell's folder browser with the initial folder selected. Returns the chosen folder's
/// path, or the initial path when none with a file-system path was chosen.
std::string BrowseForFolder(const std::string& initialPath, const std::string& title,
                            bool newDialogStyle, Window& owner);

/// The item identifier list of a special folder, or none when the identifier is below 1 or the
/// shell does not know the folder.
ItemIdList GetSpecialFolderRoot(int specialFolder, Window& owner);

/// The browser's callback: selects the initial folder, which `data` names, as soon as the dialog is
/// there. Always returns 0.
int BrowseCallbackProc(BrowseDialog* dialog, unsigned message, std::intptr_t parameter,
                       const char* data);

}  // namespace korventally
