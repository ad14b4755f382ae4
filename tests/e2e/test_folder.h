#pragma once

#include <filesystem>
#include <string>

namespace korventally::driver {

namespace fs = std::filesystem;

/// A folder of a test's own, deleted in the end.
class TestFolder {
 public:
  explicit TestFolder(const std::wstring& name = L"study");
  ~TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  const fs::path& path() const { return path_; }
  /// As a working directory is written: with a backslash at its end.
  std::wstring workDir() const { return path_.wstring() + L"\\"; }

 private:
  fs::path parent_;
  fs::path path_;
};

std::string readFile(const fs::path& path);
void writeFile(const fs::path& path, const std::string& bytes);

/// Folders that the script names in the environment.
fs::path folderFrom(const wchar_t* variable);
/// Where the shipped program lies.
fs::path installation();

}  // namespace korventally::driver
