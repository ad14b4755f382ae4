// The POSIX side of the engine's files; the native build and its sanitizers run on it.
#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "engine/fault.h"
#include "engine/system_files.h"

namespace korventally::engine {
namespace {

[[noreturn]] void fail(const NativePath& path, const std::string& what, int error) {
  throw Fault("The file " + path.native() + " cannot be " + what + ": " +
              std::generic_category().message(error) + " (error " + std::to_string(error) + ").");
}

int descriptor(std::intptr_t handle) { return static_cast<int>(handle); }

// Writes everything or returns the error number; a write may take less than it was given.
int writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return errno;
    if (written == 0) return ENOSPC;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

std::atomic<int> crashDescriptor{-1};
std::string_view crashNotice;
constexpr int kSignals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGINT, SIGTERM, SIGHUP};
using Handler = void (*)(int);
Handler earlierHandlers[std::size(kSignals)];

// Only calls that are allowed inside a signal handler.
extern "C" void onSignal(int number) {
  const int descriptor = crashDescriptor.exchange(-1);
  if (descriptor >= 0) static_cast<void>(writeAll(descriptor, crashNotice));
  ::signal(number, SIG_DFL);
  ::raise(number);
}

}  // namespace

NativePath pathFromText(std::string_view text) { return NativePath(std::string(text)); }

std::string textFromPath(const NativePath& path) { return path.native(); }

std::string utf8FromText(std::string_view text) { return std::string(text); }

bool sameFile(const NativePath& one, const NativePath& other) {
  struct stat first, second;
  if (::stat(one.c_str(), &first) != 0 || ::stat(other.c_str(), &second) != 0) return false;
  return first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

std::int64_t localOffsetAt(std::int64_t seconds) {
  const time_t moment = seconds;
  struct tm local;
  return ::localtime_r(&moment, &local) == nullptr ? 0 : local.tm_gmtoff;
}

void deleteFile(const NativePath& path) {
  if (::unlink(path.c_str()) != 0) fail(path, "deleted", errno);
}

void deleteIfPossible(const NativePath& path) noexcept { ::unlink(path.c_str()); }

bool fileExists(const NativePath& path) {
  struct stat state;
  return ::lstat(path.c_str(), &state) == 0;
}

void moveFile(const NativePath& from, const NativePath& to) {
  if (::rename(from.c_str(), to.c_str()) != 0) fail(to, "replaced", errno);
}

bool makeFolder(const NativePath& path) {
  if (::mkdir(path.c_str(), 0777) == 0) return true;
  const int error = errno;
  struct stat state;
  if (::stat(path.c_str(), &state) != 0 || !S_ISDIR(state.st_mode))
    fail(path, "made a folder", error);
  return false;
}

void removeEmptyFolder(const NativePath& path) { ::rmdir(path.c_str()); }

std::vector<NativePath> filesIn(const NativePath& folder) {
  std::vector<NativePath> names;
  DIR* const all = ::opendir(folder.c_str());
  if (all == nullptr) return names;
  while (const dirent* const entry = ::readdir(all)) {
    const NativePath name(entry->d_name);
    struct stat state;
    const bool known = ::stat((folder / name).c_str(), &state) == 0;
    if (known && S_ISREG(state.st_mode)) names.push_back(name);
  }
  ::closedir(all);
  std::ranges::sort(names);
  return names;
}

NativePath fullName(const NativePath& path) {
  std::filesystem::path full = path.native();
  if (!full.is_absolute()) {
    char* const here = ::getcwd(nullptr, 0);
    if (here == nullptr) fail(path, "found", errno);
    full = here / full;
    std::free(here);
  }
  return NativePath(full.lexically_normal()).asName();
}

InputFile::InputFile(const NativePath& path) : path_(path) {
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) fail(path_, "opened", errno);
  struct stat state;
  const bool known = ::fstat(descriptor, &state) == 0;
  if (!known || !S_ISREG(state.st_mode)) {
    ::close(descriptor);
    throw Fault("The file " + path.native() + " cannot be opened: it is not an ordinary file.");
  }
  handle_ = descriptor;
  size_ = static_cast<std::uint64_t>(state.st_size);
  modified_ = state.st_mtime;
}

InputFile::~InputFile() { ::close(descriptor(handle_)); }

std::size_t InputFile::read(char* to, std::size_t size) {
  for (;;) {
    const ssize_t count = ::read(descriptor(handle_), to, size);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail(path_, "read", errno);
    bytesRead_ += static_cast<std::uint64_t>(count);
    return static_cast<std::size_t>(count);
  }
}

OutputFile::OutputFile(const NativePath& path, Creation creation) : path_(path) {
  const int existing = creation == Creation::kNew ? O_EXCL : O_TRUNC;
  handle_ = ::open(path.c_str(), O_WRONLY | O_CREAT | existing | O_CLOEXEC, 0666);
  if (handle_ < 0) fail(path_, "created", errno);
}

// What the system held back until now was asked for by flush().
OutputFile::~OutputFile() { ::close(descriptor(handle_)); }

void OutputFile::append(std::string_view text) {
  const int error = writeAll(descriptor(handle_), text);
  // The part of a failed write that did arrive belongs to the file all the same.
  const off_t end = ::lseek(descriptor(handle_), 0, SEEK_END);
  if (end >= 0) size_ = static_cast<std::uint64_t>(end);
  if (error != 0) fail(path_, "written", error);
}

void OutputFile::replaceFrom(std::uint64_t place, std::string_view text) {
  const auto start = static_cast<off_t>(place);
  if (::lseek(descriptor(handle_), start, SEEK_SET) < 0) fail(path_, "written", errno);
  const int error = writeAll(descriptor(handle_), text);
  if (error != 0) fail(path_, "written", error);
  size_ = place + text.size();
  if (::ftruncate(descriptor(handle_), static_cast<off_t>(size_)) != 0) fail(path_, "cut", errno);
}

void OutputFile::replaceBeginning(std::string_view text) {
  if (::lseek(descriptor(handle_), 0, SEEK_SET) < 0) fail(path_, "written", errno);
  const int error = writeAll(descriptor(handle_), text);
  if (error != 0) fail(path_, "written", error);
}

void OutputFile::flush() {
  if (::fsync(descriptor(handle_)) != 0 && errno != EINVAL) fail(path_, "written", errno);
}

void armCrashNotice(const OutputFile& file, std::string_view notice) {
  crashNotice = notice;
  crashDescriptor = descriptor(file.handle_);
  for (std::size_t i = 0; i < std::size(kSignals); ++i) {
    earlierHandlers[i] = ::signal(kSignals[i], onSignal);
  }
}

void disarmCrashNotice() {
  if (crashDescriptor.exchange(-1) < 0) return;
  for (std::size_t i = 0; i < std::size(kSignals); ++i) {
    ::signal(kSignals[i], earlierHandlers[i]);
  }
}

}  // namespace korventally::engine
