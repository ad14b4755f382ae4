#include "engine/import/output_folder.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <mutex>
#include <random>
#include <string>
#include <string_view>

#include "engine/fault.h"
#include "engine/file_beginning.h"
#include "engine/import/case_file.h"
#include "engine/system_files.h"

namespace korventally::engine {
namespace {

constexpr std::size_t kLongestReport = 64 * std::size_t{1024};

}  // namespace

std::string checksum(std::string_view content) {
  std::uint64_t sum = 14695981039346656037u;  // FNV-1a
  for (const char c : content) sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211u;
  char text[17];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(sum));
  return text;
}

// Two imports into one folder at a time must not take each other's part files for their own.
OutputFolder::OutputFolder(const NativePath& path)
    : path_(path), token_(std::to_string(std::random_device{}())), made_(makeFolder(path)) {
  sweep();
}

OutputFolder::~OutputFolder() {
  // One that cannot be deleted begins with the mark: the next import deletes it.
  for (const NativePath& part : parts_) deleteIfPossible(part);
  if (made_ && !committed_) removeEmptyFolder(path_);
}

NativePath OutputFolder::newPart() {
  const std::lock_guard lock(mutex_);
  const std::string number = std::to_string(parts_.size());
  parts_.push_back(path_ / pathFromText("import_" + token_ + "_" + number + ".part"));
  return parts_.back();
}

void OutputFolder::sweep() const {
  for (const NativePath& file : filesIn(path_)) {
    const std::string name = textFromPath(file);
    const bool isPart = name.starts_with("import_") && name.ends_with(".part");
    if (isPart && isOwn(path_ / file)) deleteIfPossible(path_ / file);
  }
}

NativePath OutputFolder::claim(const std::string& name) const {
  NativePath path = path_ / pathFromText(name);
  if (!fileExists(path) || isOwn(path)) return path;
  throw Fault("The file " + textFromPath(path) +
              " is there and was not written by an import, or was changed since. It stays as it "
              "is: move it away, or choose another folder with --out.");
}

void OutputFolder::add(const NativePath& part, const std::string& name) {
  results_.emplace_back(part, claim(name));
}

NativePath OutputFolder::write(std::string_view content) {
  NativePath part = newPart();
  OutputFile(part, Creation::kNew).append(content);
  return part;
}

void OutputFolder::commit() {
  for (const auto& [part, path] : results_) moveFile(part, path);
  committed_ = true;
}

// A control file has no room for a mark; the report beside it has its checksum.
bool OutputFolder::isOwn(const NativePath& path) const {
  if (beginningOf(path, kImportMark.size()) == kImportMark) return true;
  const NativePath report = path_ / pathFromText(kImportReport);
  if (path.filename() != pathFromText(kImportCase) || !fileExists(report)) return false;
  const std::string text = beginningOf(report, kLongestReport);
  return text.starts_with(kImportMark) &&
         text.find(checksum(beginningOf(path, kLongestReport))) != text.npos;
}

}  // namespace korventally::engine
