#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/headless/desktop.h"

namespace korventally::headless {

/// A file or a folder.
struct Node {
  std::string path;  ///< in the case in which it was created
  bool isFolder = false;
  Desktop::Attribute attribute = Desktop::Attribute::kNormal;
  /// Shared with whoever has the file open, so that a deleted file can still be read to its end.
  std::shared_ptr<std::string> bytes;
  std::uint64_t lockedUntil = 0;
  bool held = false;  ///< by this program or another one, who lets others read it only
};

/// All files and folders of the world. Paths are full paths.
class FileSystem {
 public:
  /// None when there is no such file or folder.
  Node* find(const std::string& path);
  /// Creates the folder with every folder above it.
  Node& makeFolder(const std::string& path);
  /// Creates the file with every folder above it, or replaces the bytes of the one that is there.
  Node& put(const std::string& path, std::string bytes);
  void remove(const std::string& path);
  /// From now on this folder alone is out of the program's reach; none with the empty text.
  void cutOff(const std::string& folder);
  bool reaches(const std::string& path) const;
  /// What stands in the folder, by name.
  std::vector<const Node*> entries(const std::string& folder) const;

 private:
  /// By path in folded case.
  std::map<std::string, Node> nodes_;
  std::string lost_;  ///< the folder that is cut off, in folded case
};

}  // namespace korventally::headless
