#include "case/basModule.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "case/ModUtilities.h"
#include "platform/files.h"
#include "platform/process.h"

namespace korventally {
namespace {

/// A first line longer than any path is no configuration; reading stops there, so that a damaged
/// file of any size costs nothing.
constexpr std::size_t kLongestFirstLine = 4 * std::size_t{32768};

bool isControlCharacter(char c) {
  const auto code = static_cast<unsigned char>(c);
  return code < 32 && c != '\t';
}

std::optional<std::string> readFirstLine(const std::string& path) {
  auto file = openForReading(path);
  if (!file) return std::nullopt;
  std::string line;
  std::array<char, 4096> buffer;
  while (line.size() < kLongestFirstLine) {
    const auto count = file.value()->read(buffer);
    if (!count) return std::nullopt;
    line.append(buffer.data(), count.value());
    const std::size_t end = line.find_first_of("\r\n");
    if (end != std::string::npos) return line.substr(0, end);
    if (count.value() == 0) return line;
  }
  return std::nullopt;
}

/// The text between the first "=" and the second one or the end of the line.
std::string_view valueOf(std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return {};
  const std::string_view rest = line.substr(equals + 1);
  return rest.substr(0, rest.find('='));
}

std::string defaultWorkingDirectory() {
  const std::string path = installationDirectory() + "\\Movrix.cfg";
  if (!fileExists(path)) return {};
  const std::optional<std::string> line = readFirstLine(path);
  if (!line) return {};
  const std::string value = trimBlanks(valueOf(*line));
  // NUL bytes and the like mean that this is no text file, whatever its name.
  if (std::any_of(value.begin(), value.end(), isControlCharacter)) return {};
  return fromAnsi(value);
}

}  // namespace

namespace basModule {
AnalysisCase analysisCase;
}

std::string initialiseCase() {
  std::string workingDirectory = defaultWorkingDirectory();
  nameGroups(basModule::analysisCase);
  return workingDirectory;
}

void nameGroups(AnalysisCase& theCase) {
  theCase.GroupConcFiles.fill({});
  theCase.GroupNames.fill({});
  theCase.GroupNames[1] = "ALL_SOURCES";
  theCase.GroupNames[2] = "FACILITY";
  for (std::size_t slot = kFixedGroups + 1; slot < kGroupSlots; ++slot) {
    theCase.GroupNames[slot] = defaultOtherName(static_cast<std::int32_t>(slot));
  }
}

std::string defaultOtherName(std::int32_t slot) {
  return "OTHER_" + std::to_string(slot - kFixedGroups);
}

}  // namespace korventally
