// The engine's only door to the operating system's files. posix_files.cpp and, for Windows,
// windows_files.cpp stand behind it; the build chooses one of them.
//
// Every failure is a Fault whose sentence names the file and gives the system's reason and number.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/native_path.h"  // IWYU pragma: export

namespace korventally::engine {

/// The path that a control file means: on Windows its bytes are in the ANSI code page; elsewhere
/// bytes are bytes. Throws Fault when the bytes are no text in that code page.
NativePath pathFromText(std::string_view text);

/// The path as bytes for a message; characters that the code page lacks come out as "?".
std::string textFromPath(const NativePath& path);

/// Text in the ANSI code page as UTF-8; bytes that are no text there become U+FFFD. Elsewhere bytes
/// are bytes, and whether they are UTF-8 is not looked at.
std::string utf8FromText(std::string_view text);

/// True when both paths lead to one existing file, however they are spelled.
bool sameFile(const NativePath& one, const NativePath& other);

/// Seconds by which the system's local time is ahead of UTC at this moment, given in seconds since
/// 1970-01-01 00:00 UTC.
std::int64_t localOffsetAt(std::int64_t seconds);

/// Deletes the file. Throws Fault when there is none or it cannot be deleted.
void deleteFile(const NativePath& path);

/// Deletes the file if it is there and can be deleted.
void deleteIfPossible(const NativePath& path) noexcept;

/// True when there is a file or a folder of that name.
bool fileExists(const NativePath& path);

/// Gives the file its new name, in place of a file that had it. Throws Fault.
void moveFile(const NativePath& from, const NativePath& to);

/// Makes the folder and returns true, or returns false when it is there already. Throws Fault.
bool makeFolder(const NativePath& path);

/// Deletes the folder if it is empty.
void removeEmptyFolder(const NativePath& path);

/// The names of the ordinary files in the folder, sorted; none when it cannot be read.
std::vector<NativePath> filesIn(const NativePath& folder);

/// The path from the root on, without "." and "..", and without a separator at its end. Throws
/// Fault.
NativePath fullName(const NativePath& path);

/// A file open for reading from front to back. Others may read, write and delete it meanwhile.
/// Only ordinary files: folders, devices and pipes are refused.
class InputFile {
 public:
  explicit InputFile(const NativePath& path);
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  ~InputFile();

  std::uint64_t size() const { return size_; }

  /// How much has been read so far; any thread may ask.
  std::uint64_t bytesRead() const { return bytesRead_; }

  /// When it was last written, in seconds since 1970-01-01 00:00 UTC.
  std::int64_t modified() const { return modified_; }

  std::string name() const { return textFromPath(path_); }

  /// "The file C:\\Study\\all.con, line 17": the start of a sentence about that line.
  std::string named(std::uint64_t line) const {
    return "The file " + textFromPath(path_) + ", line " + std::to_string(line);
  }

  /// Reads up to `size` bytes; 0 only at the end of the file.
  std::size_t read(char* to, std::size_t size);

 private:
  NativePath path_;
  std::intptr_t handle_ = -1;
  std::uint64_t size_ = 0;
  std::int64_t modified_ = 0;
  std::atomic<std::uint64_t> bytesRead_ = 0;
};

/// Whether a file that exists already is emptied, or is a fault.
enum class Creation { kReplace, kNew };

/// A file created, or emptied, for writing. Others may read and delete it while it grows. Nothing
/// is held back in the program: what append() returned from can be read by everyone.
class OutputFile {
 public:
  explicit OutputFile(const NativePath& path, Creation creation = Creation::kReplace);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  ~OutputFile();

  /// Adds the text at the end, all of it or Fault.
  void append(std::string_view text);

  /// Puts the text at this place, which may not lie behind the end, and ends the file after it.
  /// Works on a full disk as long as the file does not grow.
  void replaceFrom(std::uint64_t place, std::string_view text);

  /// Returns once the system has put everything on the disk.
  void flush();

  /// Writes over as many bytes at the beginning, which must be there.
  void replaceBeginning(std::string_view text);

  std::uint64_t size() const { return size_; }

 private:
  friend void armCrashNotice(const OutputFile& file, std::string_view notice);

  NativePath path_;
  std::intptr_t handle_ = -1;
  std::uint64_t size_ = 0;
};

/// From now until disarmCrashNotice(), should the process crash or be told to stop, `notice` is
/// added to `file` before it ends. `notice` must outlive that time. One file at a time.
void armCrashNotice(const OutputFile& file, std::string_view notice);
void disarmCrashNotice();

}  // namespace korventally::engine
