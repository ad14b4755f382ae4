#include "wizard/list_file_name.h"

#include <algorithm>
#include <string>

#include "platform/headless/desktop.h"
#include "tests/fuzz/targets.h"
#include "tests/fuzz/workshop.h"

namespace korventally::fuzz {
namespace {

/// Blanks and dots at its end are not part of a name for Windows.
std::string asWindowsTakesIt(std::string name) {
  name.erase(name.find_last_not_of(" .") + 1);
  for (char& c : name) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 'a' - 'A') : c;
  return name;
}

bool isDevice(const std::string& name) {
  std::string stem = name.substr(0, name.find('.'));
  stem.erase(stem.find_last_not_of(' ') + 1);
  for (const char* device : {"con", "prn", "aux", "nul", "conin$", "conout$", "clock$"}) {
    if (stem == device) return true;
  }
  for (const char* number : {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "²", "³", "¹"}) {
    if (stem == std::string("com") + number || stem == std::string("lpt") + number) return true;
  }
  return false;
}

bool isPlainName(const std::string& name) {
  const auto isOdd = [](char c) {
    return (c >= 0 && c < ' ') || std::string("\"*/:<>?\\|\x7F").find(c) != std::string::npos;
  };
  return !name.empty() && std::none_of(name.begin(), name.end(), isOdd) && !isDevice(name);
}

}  // namespace

void listFileName(std::string_view bytes) {
  Desktop desktop;
  desktop.putFile("C:\\Study\\g1.con", "");
  const std::string typed(bytes);
  if (!objectionToListFile("C:\\Study\\", typed, {"C:\\Study\\g1.con"}).empty()) return;
  const std::string name = asWindowsTakesIt(typed);
  require(isPlainName(name), "a list file is a plain file of the working directory");
  for (const char* taken : {"korventally.inp", "run_korventally.bat", "open_file.bat",
                            "korventally.lock", "g1.con", "", ".", ".."}) {
    require(name != taken, "a list file is no file that the run needs");
  }
}

}  // namespace korventally::fuzz
