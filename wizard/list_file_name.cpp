#include "wizard/list_file_name.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "case/ModUtilities.h"
#include "case/run_files.h"
#include "platform/device_name.h"
#include "platform/files.h"

namespace korventally {
namespace {

/// ASCII only, as the names are that it is compared with.
std::string lowerCase(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

bool isForbidden(char c) {
  const auto code = static_cast<unsigned char>(c);
  return code < 32 || code == 127 || std::string_view("\"*/:<>?\\|").find(c) != std::string::npos;
}

bool isOwnFile(const std::string& name) {
  const std::string plain = trimBlanks(lowerCase(name));
  return std::find(kOwnFiles.begin(), kOwnFiles.end(), plain) != kOwnFiles.end();
}

}  // namespace

std::string objectionToListFile(const std::string& workDir, const std::string& name,
                                const std::vector<std::string>& inputs) {
  const std::string plain = trimBlanks(name);
  if (plain.empty() || plain.ends_with('.') || std::any_of(name.begin(), name.end(), isForbidden)) {
    return "The list filename must be the name of a file in the working directory, without a "
           "path, without any of \\ / : * ? \" < > | and without a dot at its end.";
  }
  if (isDeviceName(name)) {
    return "The list filename is the name of a Windows device. Please choose another name.";
  }
  if (isOwnFile(name)) {
    return "A run writes a file of its own under this name. Please choose another name.";
  }
  const auto isListFile = [&](const std::string& input) { return sameFile(input, workDir + name); };
  if (std::any_of(inputs.begin(), inputs.end(), isListFile)) {
    return "This case reads a file of this name, and a run would delete it. Please choose another "
           "name.";
  }
  return {};
}

}  // namespace korventally
