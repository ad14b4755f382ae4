#include "engine/exceedance_file.h"

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

#include "engine/averages.h"
#include "engine/control_file.h"
#include "engine/fault.h"
#include "engine/receptor_file.h"
#include "engine/report_results.h"
#include "engine/system_files.h"

namespace korventally::engine {
namespace {

constexpr std::string_view kWhole = "Receptor ID";
constexpr std::string_view kUnfinished = "Unfinished ";
static_assert(kWhole.size() == kUnfinished.size());
constexpr std::string_view kColumns = ",X,Y,First hour,Valid hours,Total (ug/m**3)";
constexpr std::size_t kEnough = 65536;

std::string beginningOf(const NativePath& path) {
  InputFile file(path);
  std::string text(kWhole.size() + kColumns.size(), '\0');
  std::size_t size = 0;
  while (const std::size_t count = file.read(&text[size], text.size() - size)) size += count;
  text.resize(size);
  return text;
}

// A run that ended while it created the file may have left the mark's first bytes, or none.
bool isOwn(const std::string& beginning) {
  const std::string unfinished = std::string(kUnfinished) + std::string(kColumns);
  return beginning == std::string(kWhole) + std::string(kColumns) ||
         beginning == unfinished.substr(0, beginning.size());
}

std::string csvField(std::string_view text) {
  const bool plain =
      text.find_first_of(",\"\r\n") == text.npos && !text.starts_with(' ') && !text.ends_with(' ');
  if (plain) return std::string(text);
  std::string field = "\"";
  for (const char c : text) field += c == '"' ? std::string("\"\"") : std::string(1, c);
  return field + '"';
}

// Twelve digits: more than the rounding that decides, fewer than that of the arithmetic.
std::string number(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.12g", value);
  return text;
}

}  // namespace

ExceedanceFile::ExceedanceFile(const std::string& pathText, const std::string& role)
    : name_(pathText), path_(pathFromText(pathText)) {
  const std::string file = "The file " + name_ + " ";
  if (!role.empty()) {
    problem_ = file + "is also " + role + "; it was left as it is.";
    return;
  }
  guarded([&] {
    if (!sameFile(path_, path_)) return;
    if (isOwn(beginningOf(path_))) {
      deleteFile(path_);
    } else {
      problem_ = file + "is not from an earlier run; it was left as it is.";
    }
  });
}

ExceedanceFile::~ExceedanceFile() {
  if (!keep_) discard();
}

// A fault becomes the problem, and nothing half written stays.
template <typename Work>
void ExceedanceFile::guarded(const Work& work) {
  if (!problem_.empty()) return;
  try {
    work();
  } catch (const Fault& fault) {
    problem_ = fault.what();
    discard();
  }
}

void ExceedanceFile::begin(const Case& theCase) {
  guarded([&] {
    file_.emplace(path_, Creation::kNew);
    pending_ = std::string(kUnfinished) + std::string(kColumns);
    for (const SourceGroup& group : theCase.groups) pending_ += "," + csvField(group.name);
    pending_ += "\r\n";
    write();
  });
}

void ExceedanceFile::add(const Names& names, const Averages& averages, const Place& place) {
  if (!problem_.empty()) return;
  const Receptor& receptor = names.receptors[place.receptor];
  pending_ += csvField(receptor.id) + "," + names.x.text(receptor) + "," + names.y.text(receptor) +
              "," + names.blocks.nameOf(place.block) + "," +
              std::to_string(averages.validHours(place.block)) + "," + number(place.value);
  for (std::size_t group = 0; group < averages.groups(); ++group) {
    pending_ += "," + number(averages.own(group, place.block, place.receptor));
  }
  pending_ += "\r\n";
  ++rows_;
  if (pending_.size() >= kEnough) guarded([&] { write(); });
}

void ExceedanceFile::finish() {
  guarded([&] {
    write();
    file_->flush();
    file_->replaceBeginning(kWhole);
    file_->flush();
  });
}

void ExceedanceFile::write() {
  file_->append(pending_);
  pending_.clear();
}

void ExceedanceFile::discard() noexcept {
  if (!file_) return;
  file_.reset();
  try {
    deleteFile(path_);
  } catch (const Fault& fault) {
    // It stays, marked as unfinished unless every row is in it.
    if (problem_.empty()) problem_ = fault.what();
  }
}

}  // namespace korventally::engine
