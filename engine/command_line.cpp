#include "engine/command_line.h"

#include <exception>
#include <new>
#include <string>
#include <vector>

#include "engine/console.h"
#include "engine/engine.h"
#include "engine/import/import.h"
#include "engine/import/options.h"
#include "engine/system_files.h"
#include "engine/version.h"

namespace korventally::engine {
namespace {

std::string title() { return std::string(kTitle) + ", version " + std::string(kVersion); }

std::string usage() {
  return title() +
         "\n\n"
         "korventally CONTROL-FILE   computes a case; line 1 of the control file names the list\n"
         "                           file that receives the results\n" +
         std::string(kImportUsage) +
         "\n"
         "korventally --version      says which version this is\n"
         "korventally --help, /?     says this\n"
         "\n"
         "Exit codes: 0 the run completed, 1 it failed and the list file says why, 2 there is no\n"
         "list file.";
}

int import(const std::vector<NativePath>& arguments, const Console& console) {
  try {
    const ImportOptions options = parseImportOptions(arguments);
    console.say(
        importModel(options, {[&](const std::string& line) { console.sayInPassing(line); }}));
    return 0;
  } catch (const std::bad_alloc&) {
    console.complain("korventally import: There is not enough memory.");
  } catch (const std::exception& fault) {
    console.complain("korventally import: " + std::string(fault.what()));
  }
  return 1;
}

int compute(const NativePath& controlFile, const Console& console) {
  Watcher watcher;
  watcher.read = [&](const std::string& line) { console.say(line); };
  watcher.reading = [&](const std::string& line) { console.sayInPassing(line); };
  const Result result = runCase(controlFile, watcher);
  if (!result.sentence.empty()) console.complain("korventally: " + result.sentence);
  console.say((result.outcome == Outcome::kCompleted ? "RUN COMPLETED" : "RUN FAILED") +
              (result.listFile.empty() ? "" : ", see " + result.listFile));
  return static_cast<int>(result.outcome);
}

}  // namespace

int runCommandLine(const std::vector<NativePath>& arguments) {
  const Console console;
  const std::string first = arguments.size() > 1 ? textFromPath(arguments[1]) : "";
  const std::string last = arguments.size() > 1 ? textFromPath(arguments.back()) : "";
  const bool isImport = first == "import" && arguments.size() > 2;
  if ((arguments.size() == 2 || isImport) && (last == "--help" || last == "/?")) {
    console.say(usage());
    return 0;
  }
  if (arguments.size() == 2 && first == "--version") {
    console.say(title());
    return 0;
  }
  // Alone the word is a control file's name, if there is such a file.
  if (isImport || (first == "import" && !fileExists(arguments[1]))) {
    return import({arguments.begin() + 2, arguments.end()}, console);
  }
  if (arguments.size() == 2) return compute(arguments[1], console);
  console.complain(usage());
  return static_cast<int>(Outcome::kNoListFile);
}

}  // namespace korventally::engine
