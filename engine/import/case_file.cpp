#include "engine/import/case_file.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "engine/fault.h"
#include "engine/import/imported_study.h"
#include "engine/import/series.h"
#include "engine/system_files.h"

namespace korventally::engine {
namespace {

constexpr std::string_view kListFile = "korventally.lst";

std::string lowered(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

// Names that mean a device on Windows, with any ending.
bool isDevice(const std::string& name) {
  constexpr std::array<std::string_view, 4> kDevices = {"con", "prn", "aux", "nul"};
  const bool isPort = name.size() == 4 && (name.starts_with("com") || name.starts_with("lpt")) &&
                      name[3] >= '0' && name[3] <= '9';
  return isPort || std::ranges::find(kDevices, name) != kDevices.end();
}

std::string fileNameOf(std::string group) {
  for (char& c : group) {
    if (static_cast<unsigned char>(c) < ' ' ||
        std::string_view("<>:\"/\\|?*% .").find(c) != std::string_view::npos) {
      c = '_';
    }
  }
  return isDevice(lowered(group)) ? "_" + group : group;
}

// The path as the control file names it.
std::string pathText(const NativePath& folder, std::string_view name) {
  const NativePath path = folder / pathFromText(name);
  std::string text = textFromPath(path);
  if (pathFromText(text) != path) {
    throw Fault("The folder " + text +
                " cannot be named in a control file: its name has characters that the code page "
                "of this system lacks. Choose another one with --out.");
  }
  return text;
}

std::string startOf(const ImportedStudy& study) {
  std::string start = modelHourText(study.first);
  std::ranges::replace_if(
      start, [](char c) { return c == '-' || c == ' '; }, ',');
  return start;
}

}  // namespace

std::vector<std::string> concentrationFileNames(const ImportedStudy& study) {
  std::set<std::string> taken;
  std::vector<std::string> names;
  for (const ImportedGroup& group : study.groups) {
    const std::string stem = fileNameOf(group.name);
    std::string name = stem;
    for (int i = 2; !taken.insert(lowered(name)).second; ++i) name = stem + "_" + std::to_string(i);
    names.push_back(name + ".con");
  }
  return names;
}

std::string caseNameOf(const ImportedStudy& study, std::size_t group) {
  const std::string& name = study.groups[group].name;
  return group == 0 && !name.starts_with("ALL") ? "ALL_" + name : name;
}

std::string caseText(const ImportedStudy& study, const NativePath& folder) {
  std::vector<std::string> values = {pathText(folder, kListFile), "SO2", startOf(study),
                                     std::to_string(study.hours()),
                                     std::to_string(study.groups.size())};
  const std::vector<std::string> files = concentrationFileNames(study);
  for (std::size_t i = 0; i < files.size(); ++i) {
    values.push_back(pathText(folder, files[i]));
    values.push_back(caseNameOf(study, i));
  }
  // The limits are those of SO2, 3 hours, NAAQS, Class I.
  for (const char* value : {"1000000.0,0.0", "0", "3", "1300.0", "1"}) values.emplace_back(value);
  values.push_back(pathText(folder, kImportReceptors));
  for (const char* value : {"1", "1.0", "2", "F", "0"}) values.emplace_back(value);
  std::string text;
  for (const std::string& value : values) text += std::string(29, ' ') + ":" + value + "\r\n";
  return text;
}

}  // namespace korventally::engine
