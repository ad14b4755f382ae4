#include "engine/list_file.h"

#include <algorithm>

#include "engine/fault.h"

namespace korventally::engine {

namespace {

constexpr std::string_view kCompleted = "RUN COMPLETED\r\n";
constexpr std::string_view kCrashNotice =
    "\r\nERROR: The engine was stopped or met a fault of its own.\r\nRUN FAILED\r\n";

}  // namespace

ListFile::ListFile(const NativePath& path) : file_(path) { ArmCrashNotice(file_, kCrashNotice); }

ListFile::~ListFile() { DisarmCrashNotice(); }

void ListFile::Line(std::string_view text) {
  std::string line(text);
  line.erase(line.find_last_not_of(' ') + 1);
  file_.Append(line + "\r\n");
  body_ = file_.size();
}

void ListFile::Complete() {
  file_.Flush();
  DisarmCrashNotice();
  Finish(body_, kCompleted);
}

bool ListFile::Fail(const std::string& sentence) noexcept {
  try {
    DisarmCrashNotice();
    const std::string words = "\r\nERROR: " + sentence + "\r\nRUN FAILED\r\n";
    try {
      Finish(body_, words);
    } catch (const Fault&) {
      Finish(body_ - std::min<std::uint64_t>(body_, words.size()), words);
    }
    return true;
  } catch (...) {
    return false;
  }
}

void ListFile::Finish(std::uint64_t place, std::string_view text) {
  file_.ReplaceFrom(place, text);
  file_.Flush();
}

}  // namespace korventally::engine
