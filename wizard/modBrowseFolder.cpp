#include "wizard/modBrowseFolder.h"

#include <cstdint>
#include <string>

#include "platform/folder_browser.h"

namespace korventally {

std::string BrowseForFolder(const std::string& initialPath, const std::string& title,
                            bool newDialogStyle, Window& owner) {
  BrowseInfo info;
  info.owner = &owner;
  info.root = GetSpecialFolderRoot(kCsidlDrives, owner);
  info.title = title;
  info.flags = newDialogStyle ? kBifNewDialogStyle : kBifNoNewFolderButton;
  info.callback = BrowseCallbackProc;
  info.data = initialPath.c_str();
  const std::string chosen = shGetPathFromIdList(shBrowseForFolder(info));
  return chosen.empty() ? initialPath : chosen;
}

ItemIdList GetSpecialFolderRoot(int specialFolder, Window& owner) {
  if (specialFolder < 1) return nullptr;
  return shGetSpecialFolderLocation(owner, specialFolder);
}

int BrowseCallbackProc(BrowseDialog* dialog, unsigned message, std::intptr_t /*parameter*/,
                       const char* data) {
  constexpr bool kIsPath = true;
  if (message == kBffmInitialized) sendMessage(dialog, kBffmSetSelection, kIsPath, data);
  return 0;
}

}  // namespace korventally
