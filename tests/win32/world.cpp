#include "tests/platform/contract/world.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "platform/later.h"
#include "platform/win32/system/text.h"

namespace korventally::testing {
namespace {

namespace fs = std::filesystem;
using win32::toWide;

/// A folder of the system's temporary one, deleted with all that is in it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    static int count = 0;
    const std::wstring name = L"KorvenTally Ä " + std::to_wstring(GetCurrentProcessId()) + L" " +
                              std::to_wstring(++count);
    path_ = fs::temp_directory_path() / name;
    fs::create_directories(path_);
  }

  ~TemporaryFolder() {
    std::error_code ignored;
    for (const auto& entry : fs::recursive_directory_iterator(path_, ignored)) {
      if (entry.is_regular_file(ignored)) {
        SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
      }
    }
    fs::remove_all(path_, ignored);
  }

  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

void setAttribute(const std::string& path, DWORD attribute) {
  if (!SetFileAttributesW(toWide(path).c_str(), attribute)) throw std::runtime_error(path);
}

}  // namespace

World::World() : backEnd_(std::make_shared<TemporaryFolder>()) { forgetLater(); }
World::~World() = default;

std::string World::freshFolder() {
  return win32::fromWide(static_cast<TemporaryFolder*>(backEnd_.get())->path().wstring()) + "\\";
}

void World::makeFolder(const std::string& path) { fs::create_directories(fs::path(toWide(path))); }

void World::append(const std::string& path, const std::string& bytes) {
  std::ofstream file(fs::path(toWide(path)), std::ios::binary | std::ios::app);
  if (!(file << bytes).flush()) throw std::runtime_error(path);
}

void World::hide(const std::string& path) { setAttribute(path, FILE_ATTRIBUTE_HIDDEN); }
void World::makeReadOnly(const std::string& path) { setAttribute(path, FILE_ATTRIBUTE_READONLY); }

bool World::guardsReadOnlyFiles() {
  const std::string path = freshFolder() + "guarded";
  append(path, "x");
  makeReadOnly(path);
  const HANDLE file = CreateFileW(toWide(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
  return file == INVALID_HANDLE_VALUE;
}

std::shared_ptr<void> World::hold(const std::string& path) {
  constexpr DWORD kShareNothing = 0;
  const HANDLE file = CreateFileW(toWide(path).c_str(), GENERIC_READ, kShareNothing, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw std::runtime_error(path);
  return std::shared_ptr<void>(file, CloseHandle);
}

}  // namespace korventally::testing
