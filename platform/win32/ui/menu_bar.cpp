#include "platform/win32/ui/menu_bar.h"

#include "platform/guarded.h"
#include "platform/menu.h"
#include "platform/win32/system/text.h"

namespace korventally::win32 {
namespace {

HMENU createMenu(const Menu& menu, int& id) {
  HMENU handle = CreatePopupMenu();
  for (const MenuEntry* entry : menu.entries) {
    ++id;
    if (entry->text == "-") {
      AppendMenuW(handle, MF_SEPARATOR, 0, nullptr);
    } else {
      AppendMenuW(handle, MF_STRING, static_cast<UINT_PTR>(id), toWide(entry->text).c_str());
    }
  }
  return handle;
}

}  // namespace

HMENU createMenuBar(const Window& window) {
  if (window.menus().empty()) return nullptr;
  HMENU bar = CreateMenu();
  int id = 0;
  for (const Menu& menu : window.menus()) {
    AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(createMenu(menu, id)),
                toWide(menu.text).c_str());
  }
  return bar;
}

void chooseMenuEntry(Window& window, int id) {
  for (const Menu& menu : window.menus()) {
    for (const MenuEntry* entry : menu.entries) {
      if (--id != 0) continue;
      runGuarded(&window, entry->onClick);
      window.settleFocus();
      return;
    }
  }
}

}  // namespace korventally::win32
