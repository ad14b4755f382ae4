#pragma once

#include <memory>
#include <string>

namespace korventally::testing {

/// The world in which a test of the contract runs, and what other programs do in it. Each back end
/// brings its own; a test owns one from its first line to its last.
class World {
 public:
  World();
  ~World();
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  /// A new folder with nothing in it, named with its final backslash.
  std::string freshFolder();

  void makeFolder(const std::string& path);
  /// Adds bytes to a file, which is created if need be. May run while this program reads it.
  void append(const std::string& path, const std::string& bytes);
  void hide(const std::string& path);
  void makeReadOnly(const std::string& path);
  /// Whether the system keeps this program from writing to a read-only file. Wine does not, when it
  /// runs as root.
  bool guardsReadOnlyFiles();
  /// Holds the file open and shares it with nobody for as long as the result lives.
  std::shared_ptr<void> hold(const std::string& path);

 private:
  std::shared_ptr<void> backEnd_;
};

}  // namespace korventally::testing
