#include "platform/folder_browser.h"

// The other headers need the types of the first.
// clang-format off
#include <windows.h>
#include <commctrl.h>
#include <ole2.h>
#include <shlobj.h>
// clang-format on

#include <iterator>
#include <string>

#include "platform/win32/system/ole.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/native_lookup.h"
#include "platform/window.h"

namespace korventally {
namespace {

using win32::toWide;

HWND handleOf(const Window* owner) {
  return owner == nullptr ? nullptr : win32::nativeHandle(*owner);
}

ItemIdList ownItem(void* item) {
  return item == nullptr ? ItemIdList() : ItemIdList(item, &CoTaskMemFree);
}

BOOL CALLBACK revealIfTree(HWND child, LPARAM) {
  wchar_t name[32] = L"";
  GetClassNameW(child, name, static_cast<int>(std::size(name)));
  if (std::wstring(name) != WC_TREEVIEWW) return TRUE;
  if (const HTREEITEM selected = TreeView_GetSelection(child)) {
    TreeView_EnsureVisible(child, selected);
  }
  return FALSE;
}

void CALLBACK reveal(HWND dialog, UINT, UINT_PTR timer, DWORD) {
  KillTimer(dialog, timer);
  EnumChildWindows(dialog, &revealIfTree, 0);
}

/// The browser scrolls to a selection before it lays itself out and before all folders are listed,
/// so that the selection can end up out of sight. A moment later it is scrolled to again.
void revealSoon(HWND dialog) {
  constexpr UINT_PTR kTimer = 0x4B54;
  constexpr UINT kDelayMs = 150;
  SetTimer(dialog, kTimer, kDelayMs, &reveal);
}

int CALLBACK callBack(HWND dialog, UINT message, LPARAM parameter, LPARAM context) {
  const BrowseInfo& info = *reinterpret_cast<const BrowseInfo*>(context);
  if (message == BFFM_INITIALIZED || message == BFFM_SELCHANGED) revealSoon(dialog);
  return info.callback(reinterpret_cast<BrowseDialog*>(dialog), message, parameter, info.data);
}

}  // namespace

ItemIdList shBrowseForFolder(const BrowseInfo& info) {
  win32::useOle();
  const std::wstring title = toWide(info.title);
  wchar_t displayName[kMaxPath] = L"";
  BROWSEINFOW browse{};
  browse.hwndOwner = handleOf(info.owner);
  browse.pidlRoot = static_cast<LPCITEMIDLIST>(info.root.get());
  browse.pszDisplayName = displayName;
  browse.lpszTitle = title.c_str();
  browse.ulFlags = info.flags;
  browse.lpfn = info.callback == nullptr ? nullptr : &callBack;
  browse.lParam = reinterpret_cast<LPARAM>(&info);
  return ownItem(SHBrowseForFolderW(&browse));
}

std::string shGetPathFromIdList(const ItemIdList& item) {
  wchar_t path[kMaxPath] = L"";
  if (!item || !SHGetPathFromIDListW(static_cast<LPCITEMIDLIST>(item.get()), path)) return {};
  return win32::fromWide(path);
}

ItemIdList shGetSpecialFolderLocation(Window& owner, int folder) {
  LPITEMIDLIST item = nullptr;
  if (FAILED(SHGetSpecialFolderLocation(handleOf(&owner), folder, &item))) return {};
  return ownItem(item);
}

void sendMessage(BrowseDialog* dialog, unsigned message, bool parameter, const char* path) {
  // The portable side names the message by its ANSI number; the text goes out wide.
  static_assert(kBffmSetSelection == BFFM_SETSELECTIONA);
  const UINT number = message == kBffmSetSelection ? BFFM_SETSELECTIONW : message;
  const std::wstring text = path == nullptr ? std::wstring() : toWide(path);
  SendMessageW(reinterpret_cast<HWND>(dialog), number, parameter ? TRUE : FALSE,
               reinterpret_cast<LPARAM>(text.c_str()));
}

}  // namespace korventally
