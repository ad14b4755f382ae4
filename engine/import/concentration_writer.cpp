#include "engine/import/concentration_writer.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/calendar.h"
#include "engine/columns.h"
#include "engine/concentration_file.h"
#include "engine/import/imported_study.h"
#include "engine/import/model_data.h"
#include "engine/import/output_folder.h"
#include "engine/import/series.h"
#include "engine/system_files.h"

namespace korventally::engine {
namespace {

constexpr std::size_t kBuffer = 1024 * std::size_t{1024};
constexpr std::size_t kNamesInLine = 16;

// A piece of a part file and what stands there instead.
struct Cut {
  std::uint64_t begin = 0;
  std::uint64_t end = 0;
  std::string instead;
};

std::optional<HourKind> markOf(const ImportedStudy& study, Hour hour) {
  const auto mark = study.marks.find(hour);
  return mark == study.marks.end() ? std::nullopt : std::optional(mark->second);
}

// Where hours of zeros were marked otherwise than they are now.
std::vector<Cut> cutsOf(const ImportedStudy& study, const SeriesFacts& series) {
  std::vector<Cut> cuts;
  for (const ZeroHour& zero : series.zeroHours) {
    const std::optional<HourKind> mark = markOf(study, zero.hour);
    if (mark == zero.mark) continue;
    cuts.push_back({zero.begin, zero.end,
                    concentrationDate(zero.hour) + (mark ? markText(*mark) : series.zeros) + "\n"});
  }
  return cuts;
}

// Copies a file block by block, with other text in place of the cuts.
class Copier {
 public:
  Copier(const NativePath& from, std::vector<Cut> cuts, OutputFile& to)
      : from_(from), cuts_(std::move(cuts)), to_(to) {}

  void copy() {
    std::string block(kBuffer, '\0');
    for (std::size_t size = 0; (size = from_.read(block.data(), block.size())) > 0;) {
      take(std::string_view(block).substr(0, size));
    }
    to_.append(out_);
  }

 private:
  void take(std::string_view block) {
    const std::uint64_t end = place_ + block.size();
    while (next_ < cuts_.size() && cuts_[next_].begin < end) {
      const Cut& cut = cuts_[next_];
      if (place_ < cut.begin) pass(block, cut.begin - place_);
      if (place_ == cut.begin) out_ += cut.instead;
      skip(block, std::min(cut.end, end) - place_);
      if (cut.end > end) return;
      ++next_;
    }
    pass(block, block.size());
    if (out_.size() < kBuffer) return;
    to_.append(out_);
    out_.clear();
  }

  void pass(std::string_view& block, std::uint64_t size) {
    out_ += block.substr(0, size);
    skip(block, size);
  }

  void skip(std::string_view& block, std::uint64_t size) {
    block.remove_prefix(size);
    place_ += size;
  }

  InputFile from_;
  std::vector<Cut> cuts_;
  OutputFile& to_;
  std::size_t next_ = 0;
  std::uint64_t place_ = 0;
  std::string out_;
};

}  // namespace

std::string concentrationHeader(const std::string& group,
                                const std::vector<std::string>& receptors) {
  std::string text =
      std::string(kImportMark) + ": group " + group + ", g/m**3, hours counted 1 to 24\n";
  for (std::size_t i = 0; i < receptors.size(); ++i) {
    text += i % kNamesInLine == 0 ? (i == 0 ? "# receptors: " : "\n# receptors: ") : " ";
    text += receptors[i];
  }
  return text + "\n";
}

bool isComplete(const ImportedStudy& study, const ImportedGroup& group) {
  return group.series.size() == 1 && cutsOf(study, *group.series.front()).empty();
}

void joinParts(const ImportedStudy& study, const ImportedGroup& group, const NativePath& to) {
  OutputFile file(to, Creation::kNew);
  for (const SeriesFacts* series : group.series) {
    std::vector<Cut> cuts = cutsOf(study, *series);
    if (series != group.series.front()) cuts.insert(cuts.begin(), {0, series->begin, ""});
    Copier(series->part, std::move(cuts), file).copy();
  }
}

std::string receptorFileText(const ImportedStudy& study) {
  std::string text = std::string(kImportMark) + ": X (m), Y (m), ID\n";
  for (std::size_t i = 0; i < study.places.size(); ++i) {
    const ModelPlace& place = study.places[i];
    text += right(place.x, 13) + " " + right(place.y, 13) + "  " + study.receptors[i] + "\n";
  }
  return text;
}

}  // namespace korventally::engine
