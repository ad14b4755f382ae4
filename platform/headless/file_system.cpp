#include "platform/headless/file_system.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/headless/path.h"

namespace korventally::headless {

Node* FileSystem::find(const std::string& path) {
  const auto found = nodes_.find(foldCase(path));
  return found == nodes_.end() ? nullptr : &found->second;
}

Node& FileSystem::makeFolder(const std::string& path) {
  if (Node* node = find(path)) return *node;
  if (parentOf(path) != path) makeFolder(parentOf(path));
  Node& node = nodes_[foldCase(path)];
  node.path = path;
  node.isFolder = true;
  return node;
}

Node& FileSystem::put(const std::string& path, std::string bytes) {
  makeFolder(parentOf(path));
  Node& node = nodes_[foldCase(path)];
  if (!node.bytes) {
    node.path = path;
    node.bytes = std::make_shared<std::string>();
  }
  *node.bytes = std::move(bytes);
  return node;
}

void FileSystem::remove(const std::string& path) { nodes_.erase(foldCase(path)); }

void FileSystem::cutOff(const std::string& folder) {
  lost_ = foldCase(folder);
  std::erase_if(
      nodes_, [this](const auto& node) { return node.second.held && !reaches(node.second.path); });
}

bool FileSystem::reaches(const std::string& path) const {
  return lost_.empty() || !(foldCase(path) + '\\').starts_with(lost_ + '\\');
}

std::vector<const Node*> FileSystem::entries(const std::string& folder) const {
  std::vector<const Node*> found;
  const std::string start = foldCase(folder) + '\\';
  for (auto at = nodes_.lower_bound(start); at != nodes_.end(); ++at) {
    if (!at->first.starts_with(start)) break;
    if (at->first.find('\\', start.size()) == std::string::npos) found.push_back(&at->second);
  }
  return found;
}

}  // namespace korventally::headless
