#include "engine/command_line.h"

#include <cstdio>
#include <string>
#include <vector>

#include "engine/engine.h"
#include "engine/system_files.h"
#include "engine/version.h"

namespace korventally::engine {
namespace {

int showUsage() {
  std::fprintf(stderr,
               "%s, version %s\n"
               "Usage: korventally CONTROL-FILE\n"
               "Line 1 of the control file names the list file that receives the results.\n",
               std::string(kTitle).c_str(), std::string(kVersion).c_str());
  return static_cast<int>(Outcome::kNoListFile);
}

}  // namespace

int runCommandLine(const std::vector<NativePath>& arguments) {
  if (arguments.size() != 2) return showUsage();
  const Result result = runCase(arguments[1]);
  if (!result.sentence.empty()) std::fprintf(stderr, "korventally: %s\n", result.sentence.c_str());
  return static_cast<int>(result.outcome);
}

}  // namespace korventally::engine
