#include "engine/import/import_report.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "engine/columns.h"
#include "engine/concentration_file.h"
#include "engine/import/case_file.h"
#include "engine/import/imported_study.h"
#include "engine/import/model_data.h"
#include "engine/import/model_value.h"
#include "engine/import/output_folder.h"
#include "engine/import/series.h"
#include "engine/system_files.h"
#include "engine/text.h"
#include "engine/version.h"
#include "engine/wall_time.h"

namespace korventally::engine {
namespace {

// Differences of means below this part of group 1 come from the decimals that the model printed.
constexpr double kSmallPart = 1e-3;
// Of a concentration file or the receptor file, in the wizard's boxes.
constexpr std::size_t kLongestPath = 132;

class Report {
 public:
  Report(const ImportedStudy& study, ValueUnit unit, const NativePath& folder,
         const std::string& caseChecksum)
      : study_(study),
        scale_(unit == ValueUnit::kGrams ? 1e6 : 1),
        folder_(textFromPath(folder)),
        caseChecksum_(caseChecksum) {}

  std::string text() {
    line(std::string(kImportMark) + ", version " + std::string(kVersion) + ", " +
         localTimeText(secondsNow()));
    tellFiles();
    tellGroups();
    tellHours();
    tellDifference();
    tellResults();
    if (study_.isCase()) tellSteps();
    return text_;
  }

 private:
  void line(const std::string& words) { text_ += words + "\r\n"; }

  void section(const char* title) {
    line("");
    line(title);
  }

  void paragraph(const std::string& words) {
    for (const std::string& each : wrapped(words)) line(each);
  }

  void tellFiles() {
    section("FILES READ");
    for (const ModelData& file : study_.files) {
      line("  " + file.file + ", " + grouped(file.bytes) + " bytes");
      for (const SeriesFacts& series : file.series) {
        line("    " + left(series.group, 8) + "  " + modelHourText(series.first) + " to " +
             modelHourText(series.last));
      }
      for (const auto& [what, rows] : file.leftOut) {
        line("    left out: " + what + ", " +
             counted(rows, file.places.empty() ? "record" : "row"));
      }
    }
  }

  std::uint64_t marked(HourKind kind) const {
    return static_cast<std::uint64_t>(
        std::ranges::count_if(study_.marks, [&](const auto& mark) { return mark.second == kind; }));
  }

  void tellGroups() {
    section("GROUPS");
    line(
        "  Group     First hour     Last hour        Hours   Calm  Missing  Receptors  "
        "Largest (ug/m**3)  At            Hour");
    for (const ImportedGroup& group : study_.groups) {
      const LargestValue& largest = group.largest;
      line("  " + left(group.name, 8) + "  " + modelHourText(study_.first) + "  " +
           modelHourText(study_.last) +
           right(grouped(static_cast<std::uint64_t>(study_.hours())), 9) +
           right(grouped(marked(HourKind::kCalm)), 7) +
           right(grouped(marked(HourKind::kMissing)), 9) +
           right(grouped(study_.places.size()), 11) +
           right(fixed(largest.value * scale_, 5, 17), 19) + "  " +
           left(study_.receptors[largest.receptor], 12) + "  " + modelHourText(largest.hour));
    }
  }

  void tellHours() {
    section("CALM AND MISSING HOURS");
    paragraph(study_.markSource);
    const std::size_t valid = study_.zeroHours.size() - study_.marks.size();
    if (valid > 0) {
      paragraph("Hours of zeros everywhere that count as valid: " + grouped(valid) + ".");
    }
  }

  // Of group 1 less the others, the mean of the valid hours at one receptor.
  double differenceAt(std::size_t receptor) const {
    double difference = study_.groups.front().sums[receptor];
    for (std::size_t i = 1; i < study_.groups.size(); ++i) {
      difference -= study_.groups[i].sums[receptor];
    }
    return difference * scale_ / validHours();
  }

  double validHours() const {
    const auto hours =
        static_cast<double>(study_.hours()) - static_cast<double>(study_.marks.size());
    return std::max(1.0, hours);
  }

  void tellDifference() {
    if (!study_.isCase()) return;
    section("ALL SOURCES LESS THE OTHER GROUPS");
    double least = std::numeric_limits<double>::infinity(), most = -least, sum = 0, all = 0;
    for (std::size_t i = 0; i < study_.places.size(); ++i) {
      const double difference = differenceAt(i);
      least = std::min(least, difference);
      most = std::max(most, difference);
      sum += difference;
      all += study_.groups.front().sums[i] * scale_ / validHours();
    }
    paragraph("Mean of the valid hours, from receptor to receptor: " + fixed(least, 5) + " to " +
              fixed(most, 5) + " ug/m**3; in all " + fixed(all > 0 ? 100 * sum / all : 0, 1) +
              " % of group " + study_.groups.front().name + ".");
    paragraph(meaningOf(least, most, all / static_cast<double>(study_.places.size())));
  }

  static std::string meaningOf(double least, double most, double all) {
    const double small = kSmallPart * all;
    if (least < -small) {
      return "The groups are more than all sources: a source stands in two groups, or the files "
             "are of different runs.";
    }
    if (most <= small) return "The groups account for all sources.";
    if (most - least <= small) {
      return "It is the same at every receptor: a background inside the group of all sources? Then "
             "leave the background in the wizard empty.";
    }
    return "Sources that are in no group, or a background inside the group of all sources: then "
           "leave the background in the wizard empty.";
  }

  void tellResults() {
    section("FILES WRITTEN");
    line("  Folder " + folder_);
    const std::vector<std::string> files = concentrationFileNames(study_);
    for (std::size_t i = 0; i < files.size(); ++i) {
      line("    " + left(files[i], 16) + "  group " + study_.groups[i].name);
    }
    line("    " + left(kImportReceptors, 16) + "  " + counted(study_.places.size(), "receptor"));
    if (!caseChecksum_.empty()) {
      line("    " + left(kImportCase, 16) + "  the case, checksum " + caseChecksum_);
    } else {
      paragraph("No control file: a case needs a group of all sources and one of the facility.");
    }
  }

  void tellSteps() {
    section("IN THE WIZARD");
    paragraph("Open " + std::string(kImportCase) + " with it, or enter step by step:");
    line("  1  Working directory  " + folder_);
    line("  2  Type of analysis   yours; " + std::string(kImportCase) +
         " has the first choices: Class I, NAAQS, SO2, 3 Hour");
    line("     OTHER groups       " + std::to_string(study_.groups.size() - 2));
    const std::vector<std::string> files = concentrationFileNames(study_);
    for (std::size_t i = 0; i < files.size(); ++i) {
      line(std::string(i == 0 ? "  3  Source groups      " : "                        ") +
           left(caseNameOf(study_, i), 12) + "  " + files[i]);
    }
    line("  4  Receptors          " + std::string(kImportReceptors) + ", generic X,Y,ID");
    std::string start = concentrationDate(study_.first);
    line("     Start              " + start + " (year, month, day, hour)");
    line("     Run length         " + std::to_string(study_.hours()) + " hours");
    line("  5  List file          any name");
    tellLongPaths(files);
  }

  void tellLongPaths(const std::vector<std::string>& files) {
    const auto isLong = [&](const std::string& file) {
      return folder_.size() + 1 + file.size() > kLongestPath;
    };
    if (std::ranges::none_of(files, isLong) && !isLong(std::string(kImportReceptors))) return;
    paragraph(
        "The wizard takes paths of up to " + std::to_string(kLongestPath) +
        " characters, and some of these are longer: import into a folder with a shorter path.");
  }

  const ImportedStudy& study_;
  const double scale_;
  const std::string folder_;
  const std::string caseChecksum_;
  std::string text_;
};

}  // namespace

std::string importReport(const ImportedStudy& study, ValueUnit unit, const NativePath& folder,
                         const std::string& caseChecksum) {
  return Report(study, unit, folder, caseChecksum).text();
}

}  // namespace korventally::engine
