#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace korventally {

class Window;

/// The shell's folder browser, as the shell publishes it: a structure with a callback. Texts are
/// UTF-8; a back end converts them at the border.

/// A shell item identifier list, released with its last owner.
using ItemIdList = std::shared_ptr<void>;

/// The dialog that a callback may send messages to.
struct BrowseDialog;

inline constexpr int kCsidlDrives = 17;
inline constexpr unsigned kBifNewDialogStyle = 0x40;
inline constexpr unsigned kBifNoNewFolderButton = 0x200;
inline constexpr unsigned kBffmInitialized = 1;
inline constexpr unsigned kBffmSetSelection = 0x466;
inline constexpr std::size_t kMaxPath = 260;

using BrowseCallback = int (*)(BrowseDialog* dialog, unsigned message, std::intptr_t parameter,
                               const char* data);

/// What the folder browser is to show.
struct BrowseInfo {
  Window* owner = nullptr;
  ItemIdList root;  ///< none: the desktop
  std::string title;
  unsigned flags = 0;
  BrowseCallback callback = nullptr;
  const char* data = nullptr;  ///< handed to the callback; lives as long as the dialog
};

/// Shows the browser modally. Returns the chosen item, or none when the user cancels.
ItemIdList shBrowseForFolder(const BrowseInfo& info);
/// The file-system path of an item; empty when it has none.
std::string shGetPathFromIdList(const ItemIdList& item);
/// The item list of a special folder, or none when the shell knows none.
ItemIdList shGetSpecialFolderLocation(Window& owner, int folder);
/// Sends the open browser a message whose second parameter is a path.
void sendMessage(BrowseDialog* dialog, unsigned message, bool parameter, const char* path);

}  // namespace korventally
