#include "tests/fuzz/workshop.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>

namespace korventally::fuzz {
namespace {

namespace fs = std::filesystem;

struct Folder {
  Folder() { fs::create_directories(path); }
  ~Folder() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
  const fs::path path =
      fs::temp_directory_path() / ("korventally fuzz " + std::to_string(::getpid()));
};

}  // namespace

void require(bool kept, const std::string& promise) {
  if (!kept) throw Broken(promise);
}

unsigned takeChoice(std::string_view& bytes, unsigned choices) {
  if (bytes.empty()) return 0;
  const auto first = static_cast<unsigned char>(bytes.front());
  bytes.remove_prefix(1);
  return (first - '0') % choices;
}

const fs::path& workshop() {
  static const Folder folder;
  return folder.path;
}

fs::path fileWith(std::string_view bytes, const std::string& name) {
  std::ofstream(workshop() / name, std::ios::binary) << bytes;
  return workshop() / name;
}

double numberIn(std::string text) {
  const std::size_t sign = text.size() < 5 ? 0 : text.size() - 4;
  const bool bare =
      text.find_first_of("eE") == text.npos && (text[sign] == '-' || text[sign] == '+');
  if (sign > 0 && bare) text.insert(sign, 1, 'E');
  return std::strtod(text.c_str(), nullptr);
}

}  // namespace korventally::fuzz
