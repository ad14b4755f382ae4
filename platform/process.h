#pragma once

#include <memory>
#include <string>

#include "platform/result.h"

namespace korventally {

/// The folder of the running program; no final backslash, except for the root of a drive.
std::string installationDirectory();

/// Whose process this is, in words: its number, the user and the computer.
std::string thisProcess();

enum class WindowStyle { kHidden, kNormalFocus };

/// The command interpreter that reads a batch file, with every process that it starts; without
/// these where Windows does not let them be counted. Dropping it leaves all of them running.
class BatchRun {
 public:
  virtual ~BatchRun() = default;
  /// Whether any process of the run is left.
  virtual bool running() = 0;
  /// Ends all of them.
  virtual void terminate() = 0;
  /// Ends the interpreter alone, which may hold the batch file open as long as a program that it
  /// started runs. The program runs on.
  virtual void endInterpreter() = 0;
};

/// Where the interpreter starts: in this program's current directory, from which relative paths
/// count, or in Windows', where nobody can plant a program that the file calls by its name.
enum class StartFolder { kCurrent, kSystem };

/// Starts a batch file through Windows' command interpreter, and does not wait for it. The
/// interpreter reads the file in the ANSI code page, runs no AutoRun commands and looks for no
/// program in the current directory.
Result<std::unique_ptr<BatchRun>> startBatchFile(const std::string& path, WindowStyle style,
                                                 StartFolder folder);

}  // namespace korventally
