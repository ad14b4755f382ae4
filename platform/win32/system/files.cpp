#include "platform/files.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/result.h"
#include "platform/win32/system/error.h"
#include "platform/win32/system/handle.h"
#include "platform/win32/system/path.h"
#include "platform/win32/system/text.h"

namespace korventally {
namespace {

using win32::Handle;
using win32::lastError;
using win32::nativePath;

/// Whether the path can lead to a file or folder: Windows opens devices by the same calls, a serial
/// port by "COM1.con" among them, and only Windows itself knows which names are theirs. Three more
/// characters than "*" and "?" are wildcards to its file listing; the prefix of a literal path
/// holds one that is not.
bool leadsToFiles(const std::string& path) {
  const std::wstring full = win32::resolve(win32::toWide(path));
  if (full.starts_with(L"\\\\.\\")) return false;
  const std::size_t names = win32::isLiteral(full) ? win32::kLiteral.size() : 0;
  return full.find_first_of(L"*?<>\"", names) == std::wstring::npos;
}

/// A short write without an error is how some file systems say that the disk is full.
Status writeAll(const Handle& file, const std::string& content, const std::string& path) {
  constexpr std::size_t kAtOnce = 1 << 20;
  for (std::size_t done = 0; done < content.size();) {
    const auto size = static_cast<DWORD>(std::min(content.size() - done, kAtOnce));
    DWORD written = 0;
    if (!WriteFile(file.get(), content.data() + done, size, &written, nullptr)) {
      return lastError(path);
    }
    if (written != size) return win32::systemError(ERROR_DISK_FULL, path);
    done += written;
  }
  return {};
}

/// Closes the file whatever happens.
Status fill(Handle file, const std::string& content, const std::string& path) {
  if (Status written = writeAll(file, content, path); !written) return written;
  if (!FlushFileBuffers(file.get()) || !file.close()) return lastError(path);
  return {};
}

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// What tells one file from all others of this machine, whatever its names.
std::optional<BY_HANDLE_FILE_INFORMATION> identityOf(const Handle& file) {
  BY_HANDLE_FILE_INFORMATION identity;
  if (!file || !GetFileInformationByHandle(file.get(), &identity)) return std::nullopt;
  return identity;
}

Handle openToLookAt(const std::string& path) {
  constexpr DWORD kNoAccess = 0;
  return Handle(CreateFileW(nativePath(path).c_str(), kNoAccess, kShareAll, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

class Win32HeldFile : public HeldFile {
 public:
  explicit Win32HeldFile(Handle file) : file_(std::move(file)) {}

 private:
  Handle file_;
};

class Win32FileReader : public FileReader {
 public:
  Win32FileReader(Handle file, std::string path) : file_(std::move(file)), path_(std::move(path)) {}

  Result<std::size_t> read(std::span<char> buffer) override {
    const auto size = static_cast<DWORD>(std::min<std::size_t>(buffer.size(), 1u << 30));
    DWORD count = 0;
    if (ReadFile(file_.get(), buffer.data(), size, &count, nullptr)) return std::size_t{count};
    if (GetLastError() == ERROR_HANDLE_EOF) return std::size_t{0};
    return lastError(path_);
  }

  Result<std::uint64_t> size() override {
    LARGE_INTEGER size;
    if (!GetFileSizeEx(file_.get(), &size)) return lastError(path_);
    return static_cast<std::uint64_t>(size.QuadPart);
  }

 private:
  Handle file_;
  std::string path_;
};

}  // namespace

std::string absolutePath(const std::string& path) { return win32::fullPath(path); }

bool fileExists(const std::string& path) {
  if (!leadsToFiles(path)) return false;
  constexpr DWORD kNotOrdinary = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN |
                                 FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_DEVICE;
  const DWORD attributes = GetFileAttributesW(nativePath(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & kNotOrdinary) == 0;
}

bool folderListsEntries(const std::string& path) {
  if (!path.ends_with('\\') || !leadsToFiles(path)) return false;
  WIN32_FIND_DATAW entry;
  HANDLE search = FindFirstFileW(nativePath(path + "*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return false;
  FindClose(search);
  return true;
}

bool sameFile(const std::string& one, const std::string& other) {
  // Both stay open until they have been compared: Windows may give a number out again.
  const Handle first = openToLookAt(one);
  const Handle second = openToLookAt(other);
  const auto a = identityOf(first);
  const auto b = identityOf(second);
  return a && b && a->dwVolumeSerialNumber == b->dwVolumeSerialNumber &&
         a->nFileIndexHigh == b->nFileIndexHigh && a->nFileIndexLow == b->nFileIndexLow;
}

Status deleteFile(const std::string& path) {
  if (!DeleteFileW(nativePath(path).c_str())) return lastError(path);
  return {};
}

Status writeTextFile(const std::string& path, const std::vector<std::string>& lines) {
  std::string content;
  for (const std::string& line : lines) {
    auto bytes = toAnsi(line);
    if (!bytes) {
      Error error = bytes.error();
      error.path = win32::fullPath(path);
      return error;
    }
    content += bytes.value() + "\r\n";
  }
  if (!leadsToFiles(path)) return win32::systemError(ERROR_INVALID_NAME, path);
  Handle file(CreateFileW(nativePath(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                          CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) return lastError(path);
  Status written = fill(std::move(file), content, path);
  if (!written) DeleteFileW(nativePath(path).c_str());
  return written;
}

Result<std::unique_ptr<FileReader>> openForReading(const std::string& path) {
  if (!leadsToFiles(path)) return win32::systemError(ERROR_INVALID_NAME, path);
  Handle file(CreateFileW(nativePath(path).c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                          FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  if (!file) return lastError(path);
  // Reading from another computer's pipe would wait for somebody who never writes.
  if (GetFileType(file.get()) != FILE_TYPE_DISK) {
    return win32::systemError(ERROR_BAD_FILE_TYPE, path);
  }
  return std::unique_ptr<FileReader>(std::make_unique<Win32FileReader>(std::move(file), path));
}

/// Windows itself deletes the file with its last handle, so that a process that was ended leaves
/// none behind.
Result<std::unique_ptr<HeldFile>> holdFile(const std::string& path, const std::string& bytes) {
  if (!leadsToFiles(path)) return win32::systemError(ERROR_INVALID_NAME, path);
  Handle file(CreateFileW(nativePath(path).c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ,
                          nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE,
                          nullptr));
  if (!file) return lastError(path);
  if (Status written = writeAll(file, bytes, path); !written) return written.error();
  return std::unique_ptr<HeldFile>(std::make_unique<Win32HeldFile>(std::move(file)));
}

}  // namespace korventally
