// Stands in for the engine in tests: keeps its contract as slowly or as badly as the file
// "behaviour.txt" beside it says, and writes down beside itself what it was given.
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;

std::string bytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The value of the control file's first line, which stands behind a prefix and a colon.
fs::path listFileOf(const std::string& control) {
  const std::string line = control.substr(0, control.find("\r\n"));
  return line.substr(line.find(':') + 1);
}

/// A process of its own that outlives its parent, as an engine's helper might.
void startHelper(const wchar_t* self) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  CreateProcessW(self, nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process);
}

/// Never ends, unless it is told otherwise or the test is long over.
void sleepUntilTold(const fs::path& folder) {
  for (int tenths = 0; tenths < 600; ++tenths) {
    if (bytesOf(folder / "behaviour.txt") != "never ends") return;
    Sleep(100);
  }
}

/// Until the wizard has deleted the control file and a next run has written it again and the batch
/// file 50 ms later, so that this engine and its interpreter end just then; or for some seconds.
void awaitNextRun(const fs::path& controlFile) {
  for (const bool there : {true, false}) {
    for (int looks = 0; looks < 800 && fs::exists(controlFile) == there; ++looks) Sleep(5);
  }
  Sleep(80);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  wchar_t self[MAX_PATH];
  GetModuleFileNameW(nullptr, self, MAX_PATH);
  const fs::path folder = fs::path(self).parent_path();
  if (count != 2) {
    // The helper: the file stays open, and so cannot be deleted, for as long as it lives.
    std::ofstream alive(folder / "helper_lives");
    sleepUntilTold(folder);
    return 0;
  }
  const std::string control = bytesOf(arguments[1]);
  std::ofstream(folder / "control_file", std::ios::binary) << control;
  std::ofstream(folder / "batch_file", std::ios::binary)
      << bytesOf(fs::path(arguments[1]).replace_filename("run_korventally.bat"));
  std::ofstream(folder / "argument", std::ios::binary) << fs::path(arguments[1]).string();
  const std::string behaviour = bytesOf(folder / "behaviour.txt");
  if (behaviour == "ends at once") return 1;
  std::ofstream list(listFileOf(control));
  list << "A list file" << std::endl;
  if (behaviour == "never ends") {
    startHelper(self);
    sleepUntilTold(folder);
  }
  if (behaviour == "takes its time") Sleep(3000);
  list << "RUN COMPLETED\n";
  list.close();
  if (behaviour == "lingers") awaitNextRun(arguments[1]);
  return 0;
}
