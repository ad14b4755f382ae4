#include "platform/process.h"

#include <windows.h>
// It needs the types of the one above.
#include <lmcons.h>

#include <memory>
#include <string>
#include <utility>

#include "platform/result.h"
#include "platform/win32/system/environment.h"
#include "platform/win32/system/error.h"
#include "platform/win32/system/handle.h"
#include "platform/win32/system/path.h"
#include "platform/win32/system/text.h"

namespace korventally {
namespace {

using win32::Handle;

constexpr UINT kTerminated = 1;
constexpr DWORD kPatienceMs = 50;

/// A job object counts and ends the interpreter together with all that it starts. When Windows
/// refuses one, because this program itself runs in a job that allows none inside, the interpreter
/// alone has to stand for the run.
class Win32BatchRun : public BatchRun {
 public:
  Win32BatchRun(Handle job, Handle interpreter)
      : job_(std::move(job)), interpreter_(std::move(interpreter)) {}

  bool running() override {
    JOBOBJECT_BASIC_ACCOUNTING_INFORMATION count{};
    if (job_ && QueryInformationJobObject(job_.get(), JobObjectBasicAccountingInformation, &count,
                                          sizeof count, nullptr)) {
      return count.ActiveProcesses > 0;
    }
    return WaitForSingleObject(interpreter_.get(), 0) == WAIT_TIMEOUT;
  }

  /// Processes end a little later than they are told to, and hold their files until then. The wait
  /// is short, because the windows stand still meanwhile.
  void terminate() override {
    if (!job_ || !TerminateJobObject(job_.get(), kTerminated)) {
      TerminateProcess(interpreter_.get(), kTerminated);
    }
    awaitInterpreter();
    for (DWORD waited = 0; running() && waited < kPatienceMs; waited += 10) Sleep(10);
  }

  void endInterpreter() override {
    TerminateProcess(interpreter_.get(), kTerminated);
    awaitInterpreter();
  }

 private:
  void awaitInterpreter() const { WaitForSingleObject(interpreter_.get(), kPatienceMs); }

  Handle job_;
  Handle interpreter_;
};

/// The interpreter's command line holds no text of the user's, because a "%" cannot be escaped
/// there: the batch file's path stands in a variable, whose value is not expanded again. The code
/// page is set before the interpreter reads the file, which it otherwise takes to be in the OEM
/// one. With /s, only the outermost quotes are removed.
std::wstring commandLine(const std::wstring& interpreter, const std::wstring& systemDirectory) {
  const std::wstring setCodePage =
      L"\"" + systemDirectory + L"\\chcp.com\" " + std::to_wstring(GetACP());
  return L"\"" + interpreter + L"\" /d /v:off /e:on /s /c \"" + setCodePage +
         L" >nul & \"%KORVENTALLY_BATCH%\"\"";
}

/// A program named without its folder must not be taken from the current directory, where anybody
/// may have put one of that name. The interpreter finds no batch file by a literal path.
std::wstring environment(const std::string& batchPath) {
  const std::wstring batch = win32::withoutLiteral(win32::toWide(win32::fullPath(batchPath)));
  return win32::environmentWith(
      {{L"KORVENTALLY_BATCH", batch}, {L"NoDefaultCurrentDirectoryInExePath", L"1"}});
}

struct Started {
  Handle process;
  Handle thread;
};

/// Starts the interpreter, held at its first instruction. A console without a window, rather than
/// with a hidden one, leaves the windows of what the batch file starts alone.
Result<Started> startInterpreter(const std::string& batchPath, WindowStyle style,
                                 StartFolder folder) {
  const bool visible = style == WindowStyle::kNormalFocus;
  const std::wstring directory = win32::systemDirectory();
  if (directory.empty()) return win32::lastError("cmd.exe");
  const std::wstring interpreter = directory + L"\\cmd.exe";
  const wchar_t* startIn = folder == StartFolder::kSystem ? directory.c_str() : nullptr;
  std::wstring command = commandLine(interpreter, directory);
  std::wstring variables = environment(batchPath);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  if (visible) startup.dwFlags = STARTF_USESHOWWINDOW;
  if (visible) startup.wShowWindow = SW_SHOWNORMAL;
  const DWORD flags = CREATE_SUSPENDED | CREATE_UNICODE_ENVIRONMENT |
                      (visible ? CREATE_NEW_CONSOLE : CREATE_NO_WINDOW);
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(interpreter.c_str(), command.data(), nullptr, nullptr, FALSE, flags,
                      variables.data(), startIn, &startup, &process)) {
    return win32::lastError(win32::fromWide(interpreter));
  }
  return Started{Handle(process.hProcess), Handle(process.hThread)};
}

}  // namespace

std::string installationDirectory() {
  std::wstring path(MAX_PATH, L'\0');
  DWORD length = 0;
  while ((length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()))) ==
         path.size()) {
    path.resize(2 * path.size());
  }
  path.resize(length);
  path.resize(path.find_last_of(L'\\') == std::wstring::npos ? 0 : path.find_last_of(L'\\'));
  if (path.ends_with(L':')) path += L'\\';
  return win32::fromWide(path);
}

std::string thisProcess() {
  std::wstring user(UNLEN + 1, L'\0');
  auto size = static_cast<DWORD>(user.size());
  user.resize(GetUserNameW(user.data(), &size) ? size - 1 : 0);
  std::wstring computer(MAX_COMPUTERNAME_LENGTH + 1, L'\0');
  size = static_cast<DWORD>(computer.size());
  computer.resize(GetComputerNameW(computer.data(), &size) ? size : 0);
  std::wstring text = L"process " + std::to_wstring(GetCurrentProcessId());
  if (!user.empty()) text += L" of " + user;
  if (!computer.empty()) text += L" on " + computer;
  return win32::fromWide(text);
}

Result<std::unique_ptr<BatchRun>> startBatchFile(const std::string& path, WindowStyle style,
                                                 StartFolder folder) {
  auto started = startInterpreter(path, style, folder);
  if (!started) return started.error();
  Handle interpreter = std::move(started.value().process);
  Handle job(CreateJobObjectW(nullptr, nullptr));
  // In the job before its first instruction, so that nothing it starts can be outside.
  if (!job || !AssignProcessToJobObject(job.get(), interpreter.get())) job = Handle();
  if (ResumeThread(started.value().thread.get()) == static_cast<DWORD>(-1)) {
    const Error error = win32::lastError(path);
    TerminateProcess(interpreter.get(), kTerminated);
    return error;
  }
  return std::unique_ptr<BatchRun>(
      std::make_unique<Win32BatchRun>(std::move(job), std::move(interpreter)));
}

}  // namespace korventally
