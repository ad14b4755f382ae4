#include "tests/e2e/test_folder.h"

#include <windows.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace korventally::driver {

TestFolder::TestFolder(const std::wstring& name) {
  // Process numbers come again; a tick that comes again does so after weeks.
  static ULONGLONG last = GetTickCount64();
  parent_ = fs::temp_directory_path() / ("korventally-" + std::to_string(++last));
  path_ = parent_ / name;
  fs::create_directories(path_);
}

/// File by file: the library's remove_all never returns while another program holds one of them.
TestFolder::~TestFolder() {
  std::error_code ignored;
  std::vector<fs::path> found;
  for (const auto& entry : fs::recursive_directory_iterator(parent_, ignored)) {
    found.push_back(entry.path());
  }
  std::for_each(found.rbegin(), found.rend(),
                [&](const fs::path& each) { fs::remove(each, ignored); });
  fs::remove(parent_, ignored);
}

std::string readFile(const fs::path& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

void writeFile(const fs::path& path, const std::string& bytes) {
  if (!(std::ofstream(path, std::ios::binary) << bytes).flush()) {
    throw std::runtime_error("could not write " + path.string());
  }
}

fs::path folderFrom(const wchar_t* variable) {
  const wchar_t* value = _wgetenv(variable);
  if (value == nullptr) throw std::runtime_error("run by scripts/test, which names the folders");
  return fs::path(value).make_preferred();
}

fs::path installation() { return folderFrom(L"KORVENTALLY_INSTALLATION"); }

}  // namespace korventally::driver
