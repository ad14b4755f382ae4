#include "tests/engine/imports.h"

#include <filesystem>
#include <sstream>

#include "engine/fault.h"
#include "engine/import/import.h"
#include "engine/import/options.h"
#include "tests/engine/model_files.h"

namespace korventally::engine {
namespace {

std::string withoutFolder(std::string text, const std::string& folder) {
  for (std::size_t at = 0; (at = text.find(folder, at)) != text.npos;)
    text.erase(at, folder.size());
  return text;
}

}  // namespace

std::string Imports::run(const std::vector<std::string>& arguments) {
  std::vector<NativePath> all = {pathFromText("--out"), study_.path(folder)};
  for (const std::string& argument : arguments) {
    const bool own = argument.starts_with('@');
    if (argument.starts_with('=')) {
      all.push_back(pathFromText(std::string(KORVENTALLY_TEST_DATA) + "/" + argument.substr(1)));
    } else {
      all.push_back(own ? study_.path(argument.substr(1)) : pathFromText(argument));
    }
  }
  try {
    report_ = importModel(parseImportOptions(all),
                          {[&](const std::string& line) { progress_.push_back(line); }, interval});
    return {};
  } catch (const Fault& fault) {
    const std::string words = withoutFolder(fault.what(), std::string(KORVENTALLY_TEST_DATA) + "/");
    return withoutFolder(words, study_.text(""));
  }
}

std::string Imports::result(const std::string& name) const {
  const auto path = study_.path(folder) / name;
  return std::filesystem::exists(path) ? study_.read(folder + "/" + name) : "";
}

bool Imports::hasFolder() const { return std::filesystem::exists(study_.path(folder)); }

void Imports::write(const std::string& name, std::string_view content) const {
  std::filesystem::create_directories(study_.path(name).parent_path());
  study_.write(name, content);
}

std::vector<std::vector<double>> Imports::values(const std::string& name) const {
  std::vector<std::vector<double>> hours;
  std::istringstream lines(result(name));
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with('#')) continue;
    std::istringstream fields(line);
    std::string date;
    for (int i = 0; i < 4; ++i) fields >> date;
    hours.emplace_back();
    for (std::string value; fields >> value && value != "calm" && value != "missing";) {
      hours.back().push_back(std::stod(value) * 1e6);
    }
  }
  return hours;
}

std::vector<std::string> Imports::marks(const std::string& name) const {
  std::vector<std::string> marked;
  std::istringstream lines(result(name));
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with(" calm") || line.ends_with(" missing")) marked.push_back(line);
  }
  return marked;
}

ModelText::ModelText(const std::string& name) {
  std::istringstream lines(readTestData(name));
  for (std::string line; std::getline(lines, line);) {
    (line.starts_with('*') ? header : rows).push_back(line);
  }
}

std::string ModelText::text() const {
  std::string text;
  for (const auto* part : {&header, &rows}) {
    for (const std::string& line : *part) text += line + "\n";
  }
  return text;
}

}  // namespace korventally::engine
