// The Windows side of the engine's files: wide calls only, paths of any length.
#include <windows.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "engine/fault.h"
#include "engine/system_files.h"

namespace korventally::engine {
namespace {

HANDLE asHandle(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

std::string toNarrow(std::wstring_view text, UINT codePage = CP_ACP) {
  const auto length = static_cast<int>(text.size());
  if (length == 0) return {};
  const int size =
      WideCharToMultiByte(codePage, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(size), '?');
  WideCharToMultiByte(codePage, 0, text.data(), length, narrow.data(), size, nullptr, nullptr);
  return narrow;
}

// Empty when the flags ask for text in the ANSI code page and the bytes are none.
std::wstring toWide(std::string_view text, DWORD flags) {
  const auto length = static_cast<int>(text.size());
  if (length == 0) return {};
  const int size = MultiByteToWideChar(CP_ACP, flags, text.data(), length, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_ACP, flags, text.data(), length, wide.data(), size);
  return wide;
}

std::string systemText(DWORD error) {
  wchar_t text[512];
  const DWORD flags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
  const DWORD size = FormatMessageW(flags, nullptr, error, 0, text, 512, nullptr);
  std::string narrow = toNarrow({text, size});
  const auto isBlank = [](char c) { return static_cast<unsigned char>(c) <= ' '; };
  while (!narrow.empty() && (isBlank(narrow.back()) || narrow.back() == '.')) narrow.pop_back();
  for (char& c : narrow) {
    if (c == '\r' || c == '\n') c = ' ';
  }
  return narrow.empty() ? "the system gives no reason" : narrow;
}

[[noreturn]] void fail(const NativePath& path, const std::string& what, DWORD error) {
  throw Fault("The file " + textFromPath(path) + " cannot be " + what + ": " + systemText(error) +
              " (error " + std::to_string(error) + ").");
}

// The full path; from 248 characters on in the form that lifts the limit of 260.
std::wstring fullPath(const NativePath& path) {
  std::wstring full(32768, L'\0');
  const DWORD size =
      GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
  if (size == 0 || size >= full.size()) return path.native();
  full.resize(size);
  if (full.size() < 248 || full.starts_with(L"\\\\?\\") || full.starts_with(L"\\\\.\\"))
    return full;
  if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC" + full.substr(1);
  return L"\\\\?\\" + full;
}

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE open(const NativePath& path, DWORD access, DWORD disposition, DWORD flags,
            DWORD share = kShareAll) {
  return CreateFileW(fullPath(path).c_str(), access, share, nullptr, disposition, flags, nullptr);
}

// Refuses consoles, pipes and devices such as NUL, which open like files but hold nothing.
void requireDiskFile(HANDLE handle, const NativePath& path) {
  if (GetFileType(handle) == FILE_TYPE_DISK) return;
  CloseHandle(handle);
  throw Fault("The file " + textFromPath(path) + " cannot be opened: it is not an ordinary file.");
}

DWORD writeAll(HANDLE handle, std::string_view text) {
  while (!text.empty()) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(text.size() < (1u << 30) ? text.size() : (1u << 30));
    if (!WriteFile(handle, text.data(), size, &written, nullptr)) return GetLastError();
    if (written == 0) return ERROR_DISK_FULL;
    text.remove_prefix(written);
  }
  return ERROR_SUCCESS;
}

bool moveTo(HANDLE handle, std::uint64_t place, DWORD method, std::uint64_t* end) {
  LARGE_INTEGER distance, result;
  distance.QuadPart = static_cast<LONGLONG>(place);
  if (!SetFilePointerEx(handle, distance, &result, method)) return false;
  *end = static_cast<std::uint64_t>(result.QuadPart);
  return true;
}

// The system counts steps of 100 ns since 1601.
constexpr std::int64_t kStepsPerSecond = 10000000;
constexpr std::int64_t kSecondsTo1970 = 11644473600;

FILETIME fileTime(std::int64_t seconds) {
  const std::int64_t steps = (seconds + kSecondsTo1970) * kStepsPerSecond;
  return {static_cast<DWORD>(steps), static_cast<DWORD>(steps >> 32)};
}

std::int64_t secondsOf(const FILETIME& time) {
  const std::int64_t steps = (std::int64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime;
  return steps / kStepsPerSecond - kSecondsTo1970;
}

std::atomic<HANDLE> crashHandle{INVALID_HANDLE_VALUE};
std::string_view crashNotice;

void leaveNotice() {
  const HANDLE handle = crashHandle.exchange(INVALID_HANDLE_VALUE);
  if (handle != INVALID_HANDLE_VALUE) static_cast<void>(writeAll(handle, crashNotice));
}

LONG WINAPI onException(EXCEPTION_POINTERS*) {
  leaveNotice();
  return EXCEPTION_EXECUTE_HANDLER;
}

BOOL WINAPI onConsoleEvent(DWORD) {
  leaveNotice();
  TerminateProcess(GetCurrentProcess(), 1);
  return TRUE;
}

}  // namespace

NativePath pathFromText(std::string_view text) {
  const std::wstring wide = toWide(text, MB_ERR_INVALID_CHARS);
  if (wide.empty() && !text.empty()) {
    throw Fault("A path is not text in the code page of this system.");
  }
  return NativePath(wide);
}

std::string textFromPath(const NativePath& path) { return toNarrow(path.native()); }

std::string utf8FromText(std::string_view text) { return toNarrow(toWide(text, 0), CP_UTF8); }

bool sameFile(const NativePath& one, const NativePath& other) {
  const HANDLE first = open(one, 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  const HANDLE second = open(other, 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  BY_HANDLE_FILE_INFORMATION a, b;
  const bool known = first != INVALID_HANDLE_VALUE && second != INVALID_HANDLE_VALUE &&
                     GetFileInformationByHandle(first, &a) &&
                     GetFileInformationByHandle(second, &b);
  if (first != INVALID_HANDLE_VALUE) CloseHandle(first);
  if (second != INVALID_HANDLE_VALUE) CloseHandle(second);
  return known && a.dwVolumeSerialNumber == b.dwVolumeSerialNumber &&
         a.nFileIndexHigh == b.nFileIndexHigh && a.nFileIndexLow == b.nFileIndexLow;
}

std::int64_t localOffsetAt(std::int64_t seconds) {
  const FILETIME moment = fileTime(seconds);
  SYSTEMTIME utc, local;
  FILETIME shifted;
  if (!FileTimeToSystemTime(&moment, &utc) ||
      !SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local) ||
      !SystemTimeToFileTime(&local, &shifted)) {
    return 0;
  }
  return secondsOf(shifted) - seconds;
}

void deleteFile(const NativePath& path) {
  if (!DeleteFileW(fullPath(path).c_str())) fail(path, "deleted", GetLastError());
}

void deleteIfPossible(const NativePath& path) noexcept { DeleteFileW(fullPath(path).c_str()); }

bool fileExists(const NativePath& path) {
  return GetFileAttributesW(fullPath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void moveFile(const NativePath& from, const NativePath& to) {
  if (!MoveFileExW(fullPath(from).c_str(), fullPath(to).c_str(), MOVEFILE_REPLACE_EXISTING)) {
    fail(to, "replaced", GetLastError());
  }
}

bool makeFolder(const NativePath& path) {
  if (CreateDirectoryW(fullPath(path).c_str(), nullptr)) return true;
  const DWORD error = GetLastError();
  const DWORD attributes = GetFileAttributesW(fullPath(path).c_str());
  const bool isFolder =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  if (!isFolder) fail(path, "made a folder", error);
  return false;
}

void removeEmptyFolder(const NativePath& path) { RemoveDirectoryW(fullPath(path).c_str()); }

std::vector<NativePath> filesIn(const NativePath& folder) {
  std::vector<NativePath> names;
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW(fullPath(folder / L"*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
      names.emplace_back(found.cFileName);
  } while (FindNextFileW(search, &found));
  FindClose(search);
  std::sort(names.begin(), names.end());
  return names;
}

NativePath fullName(const NativePath& path) {
  std::wstring full(32768, L'\0');
  const DWORD size =
      GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
  if (size == 0 || size >= full.size()) fail(path, "found", GetLastError());
  full.resize(size);
  return NativePath(full).asName();
}

InputFile::InputFile(const NativePath& path) : path_(path) {
  const HANDLE handle = open(path, GENERIC_READ, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN);
  if (handle == INVALID_HANDLE_VALUE) fail(path_, "opened", GetLastError());
  requireDiskFile(handle, path);
  LARGE_INTEGER size;
  if (!GetFileSizeEx(handle, &size)) {
    const DWORD error = GetLastError();
    CloseHandle(handle);
    fail(path_, "read", error);
  }
  handle_ = reinterpret_cast<std::intptr_t>(handle);
  size_ = static_cast<std::uint64_t>(size.QuadPart);
  FILETIME written;
  if (GetFileTime(handle, nullptr, nullptr, &written)) modified_ = secondsOf(written);
}

InputFile::~InputFile() { CloseHandle(asHandle(handle_)); }

std::size_t InputFile::read(char* to, std::size_t size) {
  DWORD count = 0;
  const auto wanted = static_cast<DWORD>(size < (1u << 30) ? size : (1u << 30));
  if (!ReadFile(asHandle(handle_), to, wanted, &count, nullptr))
    fail(path_, "read", GetLastError());
  bytesRead_ += count;
  return count;
}

OutputFile::OutputFile(const NativePath& path, Creation creation) : path_(path) {
  const DWORD disposition = creation == Creation::kNew ? CREATE_NEW : CREATE_ALWAYS;
  // Nobody else may write: the verdict of another run must not get into this list file.
  const HANDLE handle = open(path, GENERIC_WRITE, disposition, FILE_ATTRIBUTE_NORMAL,
                             FILE_SHARE_READ | FILE_SHARE_DELETE);
  if (handle == INVALID_HANDLE_VALUE) fail(path_, "created", GetLastError());
  requireDiskFile(handle, path);
  handle_ = reinterpret_cast<std::intptr_t>(handle);
}

// What the system held back until now was asked for by flush().
OutputFile::~OutputFile() { CloseHandle(asHandle(handle_)); }

void OutputFile::append(std::string_view text) {
  const DWORD error = writeAll(asHandle(handle_), text);
  // The part of a failed write that did arrive belongs to the file all the same.
  moveTo(asHandle(handle_), 0, FILE_END, &size_);
  if (error != ERROR_SUCCESS) fail(path_, "written", error);
}

void OutputFile::replaceFrom(std::uint64_t place, std::string_view text) {
  if (!moveTo(asHandle(handle_), place, FILE_BEGIN, &size_)) fail(path_, "written", GetLastError());
  const DWORD error = writeAll(asHandle(handle_), text);
  if (error != ERROR_SUCCESS) fail(path_, "written", error);
  size_ = place + text.size();
  if (!SetEndOfFile(asHandle(handle_))) fail(path_, "cut", GetLastError());
}

void OutputFile::replaceBeginning(std::string_view text) {
  std::uint64_t place = 0;
  if (!moveTo(asHandle(handle_), 0, FILE_BEGIN, &place)) fail(path_, "written", GetLastError());
  const DWORD error = writeAll(asHandle(handle_), text);
  if (error != ERROR_SUCCESS) fail(path_, "written", error);
}

void OutputFile::flush() {
  if (!FlushFileBuffers(asHandle(handle_))) fail(path_, "written", GetLastError());
}

void armCrashNotice(const OutputFile& file, std::string_view notice) {
  crashNotice = notice;
  crashHandle = asHandle(file.handle_);
  SetUnhandledExceptionFilter(onException);
  SetConsoleCtrlHandler(onConsoleEvent, TRUE);
  // Neither of these reaches the exception filter.
  std::signal(SIGABRT, [](int) {
    leaveNotice();
    std::_Exit(3);
  });
  std::set_terminate([] {
    leaveNotice();
    std::_Exit(3);
  });
}

void disarmCrashNotice() { crashHandle = INVALID_HANDLE_VALUE; }

}  // namespace korventally::engine
