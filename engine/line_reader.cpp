#include "engine/line_reader.h"

#include <cstring>
#include <string_view>

#include "engine/fault.h"
#include "engine/system_files.h"
#include "engine/text.h"

namespace korventally::engine {

LineReader::LineReader(InputFile& file, std::size_t longestLine)
    : file_(file), longestLine_(longestLine), buffer_(kBlock + 2 * kPadding) {}

bool LineReader::next(std::string_view& line) {
  std::size_t searched = begin_;
  const void* found = nullptr;
  while ((found = std::memchr(&buffer_[searched], '\n', end_ - searched)) == nullptr) {
    const std::size_t unsearched = end_ - begin_;
    if (!readMore()) break;
    searched = begin_ + unsearched;
  }
  if (found == nullptr && begin_ == end_) return false;
  complete_ = found != nullptr;
  const char* start = &buffer_[begin_];
  const char* stop = found != nullptr ? static_cast<const char*>(found) : &buffer_[end_];
  begin_ += static_cast<std::size_t>(stop - start) + (found != nullptr ? 1 : 0);
  if (stop > start && found != nullptr && stop[-1] == '\r') --stop;
  line = std::string_view(start, static_cast<std::size_t>(stop - start));
  requireLength(line.size());
  ++lineNumber_;
  return true;
}

std::string_view LineReader::peek() {
  if (begin_ == end_) readMore();
  return {buffer_.data() + begin_, end_ - begin_};
}

// False at the end of the file.
bool LineReader::readMore() {
  makeRoom();
  const std::size_t count = file_.read(&buffer_[end_], buffer_.size() - kPadding - end_);
  end_ += count;
  return count > 0;
}

void LineReader::requireLength(std::size_t length) const {
  if (length <= longestLine_) return;
  throw Fault(file_.named(lineNumber_ + 1) + " is longer than " + grouped(longestLine_) +
              " bytes; is this the right file?");
}

void LineReader::makeRoom() {
  requireLength(end_ - begin_);
  std::memmove(&buffer_[kPadding], &buffer_[begin_], end_ - begin_);
  end_ -= begin_ - kPadding;
  begin_ = kPadding;
  if (end_ + kBlock / 2 > buffer_.size() - kPadding) buffer_.resize(buffer_.size() + kBlock);
}

}  // namespace korventally::engine
