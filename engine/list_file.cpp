#include "engine/list_file.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/fault.h"
#include "engine/system_files.h"

namespace korventally::engine {
namespace {

constexpr std::string_view kCompleted = "RUN COMPLETED\r\n";
constexpr std::string_view kCrashNotice =
    "\r\nERROR: The engine was stopped or met a fault of its own.\r\nRUN FAILED\r\n";

}  // namespace

ListFile::ListFile(const NativePath& path) : file_(path) { armCrashNotice(file_, kCrashNotice); }

ListFile::~ListFile() { disarmCrashNotice(); }

void ListFile::line(std::string_view text) {
  std::string line(text);
  line.erase(line.find_last_not_of(' ') + 1);
  // Whatever a group or a receptor is called: what looks like a verdict is none.
  const std::string_view words =
      std::string_view(line).substr(std::min(line.find_first_not_of(' '), line.size()));
  if (words == "RUN COMPLETED" || words == "RUN FAILED") line += '.';
  file_.append(line + "\r\n");
  body_ = file_.size();
}

void ListFile::complete() {
  file_.flush();
  disarmCrashNotice();
  finish(body_, kCompleted);
}

bool ListFile::fail(const std::string& sentence) noexcept {
  try {
    disarmCrashNotice();
    const std::string words = "\r\nERROR: " + sentence + "\r\nRUN FAILED\r\n";
    try {
      finish(body_, words);
    } catch (const Fault&) {
      finish(body_ - std::min<std::uint64_t>(body_, words.size()), words);
    }
    return true;
  } catch (...) {
    return false;
  }
}

void ListFile::finish(std::uint64_t place, std::string_view text) {
  file_.replaceFrom(place, text);
  file_.flush();
}

}  // namespace korventally::engine
