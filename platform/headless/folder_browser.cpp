#include "platform/folder_browser.h"

#include <memory>
#include <string>
#include <utility>

#include "platform/headless/world.h"

namespace korventally {

struct BrowseDialog {
  std::string preselected;
};

namespace {

/// An item of the simulated shell is its path; the computer's drives have the name of no path.
ItemIdList itemOf(const std::string& path) { return std::make_shared<std::string>(path); }

std::string nameOf(const ItemIdList& item) {
  return item ? *static_cast<std::string*>(item.get()) : std::string();
}

}  // namespace

ItemIdList shBrowseForFolder(const BrowseInfo& info) {
  auto& expected = Desktop::current().world().browsers;
  if (expected.empty()) {
    Desktop::onFailure("a folder browser that nobody expected: " + info.title);
    return nullptr;
  }
  const headless::ExpectedFolder folder = std::move(expected.front());
  expected.pop_front();
  BrowseDialog dialog;
  if (info.callback) info.callback(&dialog, kBffmInitialized, 0, info.data);
  const bool rootIsDrives = nameOf(info.root) == Desktop::kThisComputer;
  if (folder.look) folder.look({info.title, info.flags, rootIsDrives, dialog.preselected});
  return folder.path.empty() ? nullptr : itemOf(folder.path);
}

std::string shGetPathFromIdList(const ItemIdList& item) {
  return nameOf(item) == Desktop::kThisComputer ? std::string() : nameOf(item);
}

ItemIdList shGetSpecialFolderLocation(Window& /*owner*/, int folder) {
  return folder == kCsidlDrives ? itemOf(Desktop::kThisComputer) : nullptr;
}

void sendMessage(BrowseDialog* dialog, unsigned message, bool parameter, const char* path) {
  if (message == kBffmSetSelection && parameter) dialog->preselected = path;
}

}  // namespace korventally
