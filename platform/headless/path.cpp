#include "platform/headless/path.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/device_name.h"
#include "platform/result.h"

namespace korventally::headless {
namespace {

/// What a path begins with that Windows takes as it stands, without tidying it up.
constexpr std::string_view kLiteral = R"(\\?\)";

constexpr long kPathNotFound = 3;
constexpr long kNetworkPathNotFound = 53;
constexpr long kInvalidName = 123;

bool isForbidden(char c) {
  return static_cast<unsigned char>(c) < 32 ||
         std::string_view("/*?\"<>|:").find(c) != std::string::npos;
}

/// Takes the drive off the path: "C:" when it names none.
std::string takeDrive(std::string& path) {
  if (path.size() < 2 || path[1] != ':') return "C:";
  const char letter = static_cast<char>(std::toupper(static_cast<unsigned char>(path[0])));
  path.erase(0, 2);
  return {letter, ':'};
}

std::vector<std::string> namesIn(const std::string& path) {
  std::vector<std::string> names;
  std::size_t start = 0;
  while (start <= path.size()) {
    const std::size_t end = std::min(path.find('\\', start), path.size());
    const std::string name = path.substr(start, end - start);
    if (name == ".." && !names.empty()) names.pop_back();
    if (!name.empty() && name != "." && name != "..") names.push_back(name);
    start = end + 1;
  }
  return names;
}

}  // namespace

Result<FullPath> resolve(std::string path) {
  if (path.empty()) return systemError(kPathNotFound, path);
  const std::string asGiven = path;
  const bool literal = path.starts_with(kLiteral);
  if (literal) path.erase(0, kLiteral.size());
  if (!literal) std::replace(path.begin(), path.end(), '/', '\\');
  if (path.starts_with("\\\\")) return systemError(kNetworkPathNotFound, asGiven);
  FullPath full{takeDrive(path), path.empty() || path.ends_with('\\')};
  if (!full.namesFolder && !literal) path.erase(path.find_last_not_of(" .") + 1);
  const bool device = !literal && isDeviceName(path.substr(path.rfind('\\') + 1));
  if (device || std::any_of(path.begin(), path.end(), isForbidden)) {
    return systemError(kInvalidName, asGiven);
  }
  for (const std::string& name : namesIn(path)) full.text += '\\' + name;
  return full;
}

std::string parentOf(const std::string& fullPath) {
  return fullPath.substr(0, std::max<std::size_t>(fullPath.rfind('\\') + 1, 3) - 1);
}

std::string foldCase(std::string name) {
  unsigned char before = 0;
  for (char& c : name) {
    const auto byte = static_cast<unsigned char>(c);
    const bool accented = before == 0xC3 && byte >= 0x80 && byte <= 0x9E && byte != 0x97;
    if (accented || (byte >= 'A' && byte <= 'Z')) c = static_cast<char>(byte + 0x20);
    before = byte;
  }
  return name;
}

Error systemError(long code, const std::string& path) {
  static const std::map<long, const char*> kSentences = {
      {2, "The system cannot find the file specified."},
      {3, "The system cannot find the path specified."},
      {5, "Access is denied."},
      {32, "The process cannot access the file because it is being used by another process."},
      {53, "The network path was not found."},
      {64, "The specified network name is no longer available."},
      {80, "The file exists."},
      {112, "There is not enough space on the disk."},
      {123, "The filename, directory name, or volume label syntax is incorrect."}};
  ErrorKind kind = ErrorKind::kOther;
  if (code == 2) kind = ErrorKind::kNotFound;
  if (code == 3 || code == 53 || code == 64) kind = ErrorKind::kOutOfReach;
  if (code == 32 || code == 80) kind = ErrorKind::kBusy;
  return {kind, code, kSentences.at(code), path};
}

}  // namespace korventally::headless
