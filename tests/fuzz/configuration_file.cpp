#include <sstream>
#include <string>

#include "case/basModule.h"
#include "platform/files.h"
#include "platform/headless/desktop.h"
#include "tests/fuzz/targets.h"
#include "tests/fuzz/workshop.h"

namespace korventally::fuzz {
namespace {

/// What stands between the first two "=" of the first line, as far as it is text.
std::string directoryIn(const std::string& bytes) {
  std::istringstream parts(bytes.substr(0, bytes.find_first_of("\r\n")));
  std::string key, value;
  std::getline(parts, key, '=');
  std::getline(parts, value, '=');
  while (value.ends_with(' ')) value.pop_back();
  while (value.starts_with(' ')) value.erase(0, 1);
  for (const char c : value) {
    if (c >= 0 && c < ' ' && c != '\t') return {};
  }
  return fromAnsi(value);
}

}  // namespace

void configurationFile(std::string_view bytes) {
  Desktop desktop;
  desktop.setInstallationDirectory("D:\\Prog");
  // The program reads blocks of 4096 bytes, and gives up after 32 of them.
  const unsigned choice = takeChoice(bytes, 3);
  const std::string file = std::string(choice * 4090, 'k') + std::string(bytes);
  desktop.putFile("D:\\Prog\\Movrix.cfg", file);
  const std::string directory = initialiseCase();
  require(directory == directoryIn(file), "the directory that is offered is the first line's");
}

}  // namespace korventally::fuzz
