#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/result.h"

namespace korventally {

/// Paths are UTF-8 with backslashes. A relative path counts from the current directory; a literal
/// one, which begins with "\\?\", is taken as it stands. No path leads to a device: all functions
/// take it for one that names nothing, or fail.

/// The path counted from a drive or server. What names nothing stays as it is.
std::string absolutePath(const std::string& path);

/// Whether an ordinary file of that name exists: no folder, not hidden, not of Windows. Wildcard
/// characters never match.
bool fileExists(const std::string& path);

/// Whether the folder, given with its final backslash, exists and lists at least one entry. Every
/// folder but the root of a drive lists itself.
bool folderListsEntries(const std::string& path);

/// Whether both paths lead to one existing file, however they spell it.
bool sameFile(const std::string& one, const std::string& other);

/// Deletes a file. Deleting one that is not there fails with kNotFound, or kOutOfReach if its
/// folder is missing too.
Status deleteFile(const std::string& path);

/// Creates or replaces a text file: the lines in the ANSI code page, each ended by CR LF. Succeeds
/// only when every byte was accepted, flushed and the file closed; what could not be written in
/// full is deleted again. A character that the code page lacks is an error that names the text, and
/// the file is left untouched.
Status writeTextFile(const std::string& path, const std::vector<std::string>& lines);

/// A file open for reading, with reading, writing and deleting left to everybody else.
class FileReader {
 public:
  virtual ~FileReader() = default;
  /// Reads on from where the last read ended. Returns the number of bytes; 0 at the end.
  virtual Result<std::size_t> read(std::span<char> buffer) = 0;
  /// The bytes that the file has now, however many of them have been read.
  virtual Result<std::uint64_t> size() = 0;
};
Result<std::unique_ptr<FileReader>> openForReading(const std::string& path);

/// A file that is gone when this object or its process is, however that ends. Everybody can read
/// it; nobody else can write, delete or hold it meanwhile.
class HeldFile {
 public:
  virtual ~HeldFile() = default;
};
/// Creates such a file of these bytes. kBusy while a file of that name is there: whose it is must
/// be seen before it may go.
Result<std::unique_ptr<HeldFile>> holdFile(const std::string& path, const std::string& bytes);

/// Text in Windows' ANSI code page as UTF-8, and back; an error (kNotAnsi) when a character is
/// lacking, never a look-alike.
std::string fromAnsi(std::string_view bytes);
Result<std::string> toAnsi(std::string_view text);

}  // namespace korventally
