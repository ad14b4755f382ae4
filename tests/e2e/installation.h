#pragma once

#include <windows.h>

#include "tests/e2e/test_folder.h"

namespace korventally::driver {

/// A copy of the installed program in a folder of its own, with an engine that behaves as it is
/// told: see slow_engine.cpp.
class Installation {
 public:
  explicit Installation(const std::string& behaviour = "", const std::wstring& name = L"program")
      : folder_(name) {
    copy(installation() / "KorvenTallyWizard.exe", "KorvenTallyWizard.exe");
    wchar_t self[MAX_PATH];
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    copy(fs::path(self).replace_filename("slow_engine.exe"), "korventally.exe");
    writeFile(path() / "behaviour.txt", behaviour);
  }

  const fs::path& path() const { return folder_.path(); }
  fs::path engine() const { return path() / "korventally.exe"; }
  /// What the engine wrote down of its start.
  std::string seen(const char* what) const { return readFile(path() / what); }

 private:
  void copy(const fs::path& from, const char* name) { fs::copy_file(from, path() / name); }

  TestFolder folder_;
};

}  // namespace korventally::driver
