#include "engine/import/import.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "engine/calendar.h"
#include "engine/concentration_file.h"
#include "engine/crew.h"
#include "engine/file_beginning.h"
#include "engine/import/calm_hours.h"
#include "engine/import/case_file.h"
#include "engine/import/concentration_writer.h"
#include "engine/import/import_report.h"
#include "engine/import/imported_receptors.h"
#include "engine/import/imported_study.h"
#include "engine/import/model_data.h"
#include "engine/import/options.h"
#include "engine/import/output_folder.h"
#include "engine/import/receptor_names.h"
#include "engine/model_file.h"
#include "engine/system_files.h"

namespace korventally::engine {
namespace {

class Import {
 public:
  Import(const ImportOptions& options, const ImportProgress& progress)
      : options_(options), progress_(progress), folder_(fullName(options.folder)), out_(folder_) {}

  std::string run() {
    if (options_.calms) {
      InputFile file(*options_.calms);
      calms_ = readCalmHours(file);
    }
    if (options_.receptors) listed_ = readListedReceptors(*options_.receptors);
    readFiles();
    putGroupsTogether(study_, options_);
    judgeZeroHours(study_, options_, calms_ ? &*calms_ : nullptr);
    return write();
  }

 private:
  void readFiles() {
    std::vector<std::size_t> formatted, unformatted;
    for (std::size_t i = 0; i < options_.files.size(); ++i) {
      files_.push_back(std::make_unique<InputFile>(options_.files[i]));
      const bool isRecords = isUnformattedModelFile(beginningOf(options_.files[i]));
      (isRecords ? unformatted : formatted).push_back(i);
    }
    study_.files.resize(files_.size());
    readSideBySide(formatted, readFormatted);
    agreeOnReceptors(study_, listed_);
    if (unformatted.empty()) return;
    requireReceptors(study_, textFromPath(options_.files[unformatted.front()]));
    const std::size_t receptors = study_.places.size();
    readSideBySide(unformatted, [receptors](InputFile& file, const Reading& reading) {
      return readUnformatted(file, reading, receptors);
    });
  }

  void readSideBySide(const std::vector<std::size_t>& which,
                      const std::function<ModelData(InputFile&, const Reading&)>& read) {
    Crew crew(which.size(), [&](std::size_t i, const Crew& all) {
      const Reading reading{
          .unit = options_.unit,
          .wants = [&](auto group) { return options_.wants(group); },
          .newPart = [&] { return out_.newPart(); },
          .header = [&](auto& group, auto& places) { return header(group, places); },
          .zeroMark = [&](Hour hour) { return zeroMark(hour); },
          .mayGiveUp = [&] { return all.mayGiveUp(i); }};
      study_.files[which[i]] = read(*files_[which[i]], reading);
    });
    for (std::size_t i = 0; i < which.size(); ++i) crew.await(i, patience());
  }

  // Unformatted files come when the receptors are known; of formatted ones each has to know its own
  // at once, and they must be the same.
  std::string header(const std::string& group, const std::vector<ModelPlace>& places) const {
    if (places.empty()) return concentrationHeader(group, study_.receptors);
    const bool named = listed_ && !listed_->names.empty();
    return concentrationHeader(group, named ? listed_->names : receptorNames(places));
  }

  // As long as it is not judged, an hour of zeros is most likely a calm one.
  std::optional<HourKind> zeroMark(Hour hour) const {
    if (options_.zeroHours == ZeroHours::kValid) return std::nullopt;
    if (!calms_) return HourKind::kCalm;
    const auto named = calms_->hours.find(hour);
    return named == calms_->hours.end() ? std::nullopt : std::optional(named->second.kind);
  }

  Patience patience() const {
    return {[this](std::size_t) {
              std::uint64_t read = 0, size = 1;  // never all of it before the end
              for (const auto& file : files_) {
                read += file->bytesRead();
                size += file->size();
              }
              progress_.say("Reading: " + std::to_string(100 * read / size) + " %");
            },
            progress_.interval};
  }

  std::string write() {
    const std::vector<std::string> names = concentrationFileNames(study_);
    for (const std::string& name : names) out_.claim(name);
    std::vector<NativePath> parts(names.size());
    Crew crew(names.size(),
              [&](std::size_t i, const Crew&) { parts[i] = completed(study_.groups[i]); });
    for (std::size_t i = 0; i < names.size(); ++i) {
      crew.await(i);
      out_.add(parts[i], names[i]);
    }
    out_.add(out_.write(receptorFileText(study_)), std::string(kImportReceptors));
    std::string sum;
    if (study_.isCase()) sum = addCase();
    const std::string report = importReport(study_, options_.unit, folder_, sum);
    out_.add(out_.write(report), std::string(kImportReport));
    out_.commit();
    return report;
  }

  NativePath completed(const ImportedGroup& group) {
    if (isComplete(study_, group)) return group.series.front()->part;
    NativePath part = out_.newPart();
    joinParts(study_, group, part);
    return part;
  }

  std::string addCase() {
    const std::string text = caseText(study_, folder_);
    out_.add(out_.write(text), std::string(kImportCase));
    return checksum(text);
  }

  const ImportOptions& options_;
  const ImportProgress& progress_;
  const NativePath folder_;
  OutputFolder out_;
  std::vector<std::unique_ptr<InputFile>> files_;
  ImportedStudy study_;
  std::optional<CalmHours> calms_;
  std::optional<ListedReceptors> listed_;
};

}  // namespace

std::string importModel(const ImportOptions& options, const ImportProgress& progress) {
  return Import(options, progress).run();
}

}  // namespace korventally::engine
