#include "engine/side_file.h"

#include <cstddef>
#include <functional>
#include <new>
#include <string>
#include <string_view>

#include "engine/fault.h"
#include "engine/file_beginning.h"
#include "engine/system_files.h"

namespace korventally::engine {
namespace {

constexpr std::size_t kEnough = 65536;

std::string joined(std::string_view one, std::string_view other) {
  return std::string(one) + std::string(other);
}

// A run that ended while it created the file may have left the mark's first bytes, or none.
bool isOwn(const std::string& beginning, const Mark& mark) {
  return beginning == joined(mark.whole, mark.rest) ||
         beginning == joined(mark.unfinished, mark.rest).substr(0, beginning.size());
}

}  // namespace

SideFile::SideFile(const std::string& pathText, const std::string& role, const Mark& mark)
    : name_(pathText), path_(pathFromText(pathText)), mark_(mark) {
  const std::string file = "The file " + name_ + " ";
  if (!role.empty()) {
    problem_ = file + "is also " + role + "; it was left as it is.";
    return;
  }
  attempt([&] {
    if (!fileExists(path_)) return;
    if (isOwn(beginningOf(path_, mark_.whole.size() + mark_.rest.size()), mark_)) {
      deleteFile(path_);
    } else {
      problem_ = file + "is not from an earlier run; it was left as it is.";
    }
  });
}

SideFile::~SideFile() {
  if (!keep_) discard();
}

// A fault becomes the problem, and nothing half written stays.
void SideFile::attempt(const std::function<void()>& work) {
  if (!problem_.empty()) return;
  try {
    work();
    return;
  } catch (const Fault& fault) {
    problem_ = fault.what();
  } catch (const std::bad_alloc&) {
    problem_ = "There is not enough memory for it.";
  }
  discard();
}

void SideFile::begin(std::string_view text) {
  attempt([&] {
    file_.emplace(path_, Creation::kNew);
    pending_ = joined(mark_.unfinished, mark_.rest) + std::string(text);
    write();
  });
}

void SideFile::add(std::string_view text) {
  attempt([&] {
    pending_ += text;
    if (pending_.size() >= kEnough) write();
  });
}

void SideFile::finish() {
  attempt([&] {
    write();
    file_->flush();
    file_->replaceBeginning(mark_.whole);
    file_->flush();
  });
}

void SideFile::write() {
  file_->append(pending_);
  pending_.clear();
}

void SideFile::discard() noexcept {
  if (!file_) return;
  file_.reset();
  try {
    deleteFile(path_);
  } catch (const Fault& fault) {
    // It stays, marked as unfinished unless everything is in it.
    if (problem_.empty()) problem_ = fault.what();
  }
}

}  // namespace korventally::engine
