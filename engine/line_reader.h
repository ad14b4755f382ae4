// Cuts a file into lines, reading it in large blocks: memory stays at one block, or one line if
// that is longer, however large the file is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "engine/system_files.h"

namespace korventally::engine {

class LineReader {
 public:
  /// So many bytes in front of a line and behind it may be read (not used), whatever they hold.
  static constexpr std::size_t kPadding = 64;
  static constexpr std::size_t kBlock = 256 * std::size_t{1024};

  /// A line of more than `longestLine` bytes is a Fault: a file that is not text at all must not
  /// fill the memory. `file` must outlive the reader.
  LineReader(InputFile& file, std::size_t longestLine);

  /// The next line without its CR LF or LF, valid until the next call; false at the end. A last
  /// line without a line end is delivered too, and complete() is then false.
  bool next(std::string_view& line);

  /// What has been read and not delivered; at the beginning of a file its first bytes, up to
  /// kBlock of them. Empty at the end. Valid until the next call.
  std::string_view peek();

  /// What has been read and not delivered, perhaps a part of a line; empty when nothing has. Valid
  /// until the next call of another member.
  std::string_view ahead() const { return {buffer_.data() + begin_, end_ - begin_}; }

  /// Counts the line that ahead() begins with as delivered; it has so many bytes with its line end.
  void skipLine(std::size_t bytes) {
    begin_ += bytes;
    ++lineNumber_;
  }

  /// The number of lines delivered so far, which is the number of the line just delivered.
  std::uint64_t lineNumber() const { return lineNumber_; }

  /// False once a line was delivered that the file ended in: the file may have been cut short.
  bool complete() const { return complete_; }

 private:
  bool readMore();
  void requireLength(std::size_t length) const;
  void makeRoom();

  InputFile& file_;
  const std::size_t longestLine_;
  std::vector<char> buffer_;
  std::size_t begin_ = kPadding;  ///< of what has not been delivered
  std::size_t end_ = kPadding;    ///< of what has been read
  std::uint64_t lineNumber_ = 0;
  bool complete_ = true;
};

}  // namespace korventally::engine
