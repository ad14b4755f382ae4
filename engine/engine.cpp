#include "engine/engine.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <iterator>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/blocks.h"
#include "engine/clock.h"
#include "engine/columns.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"
#include "engine/crew.h"
#include "engine/exceedance_file.h"
#include "engine/fault.h"
#include "engine/group_reader.h"
#include "engine/judgement.h"
#include "engine/list_file.h"
#include "engine/page/page.h"
#include "engine/ranked_values.h"
#include "engine/receptor_file.h"
#include "engine/report_case.h"
#include "engine/report_hours.h"
#include "engine/report_results.h"
#include "engine/side_file.h"
#include "engine/system_files.h"
#include "engine/text.h"
#include "engine/valid_hours.h"
#include "engine/wall_time.h"
#include "engine/warnings.h"

namespace korventally::engine {
namespace {

using Clock = std::chrono::steady_clock;

// What stands beside the list file, and the head of the list file, which the page shows too.
struct Beside {
  Beside(const ControlText& text, const NativePath& controlFile)
      : Beside(text, controlFile, listFileOf(text) + ".csv", listFileOf(text) + ".html") {}
  Beside(const ControlText& text, const NativePath& controlFile, const std::string& tableFile,
         const std::string& pageFile)
      : table(tableFile, roleOf(tableFile, text, controlFile)),
        page(pageFile, roleOf(pageFile, text, controlFile), kPageMark) {}

  ExceedanceFile table;
  SideFile page;
  std::string runOn = localTimeText(secondsNow());
  std::vector<Fact> ofCase;
};

// The file that a line of the control file names; a fault says which line that was.
std::unique_ptr<InputFile> openNamedFile(const std::string& path, std::size_t controlLine) {
  try {
    return std::make_unique<InputFile>(pathFromText(path));
  } catch (const Fault& fault) {
    throw Fault("Line " + std::to_string(controlLine) + " of the control file: " + fault.what());
  }
}

std::vector<std::unique_ptr<InputFile>> openGroups(const Case& theCase) {
  std::vector<std::unique_ptr<InputFile>> files;
  files.reserve(theCase.groups.size());
  for (const SourceGroup& group : theCase.groups) {
    files.push_back(openNamedFile(group.file, group.fileLine));
  }
  return files;
}

std::vector<GroupSums> readAll(const Case& theCase,
                               const std::vector<std::unique_ptr<InputFile>>& files,
                               const Blocks& blocks, const Receptors& receptors, ListFile& list,
                               const Watcher& watcher) {
  const auto finished = [&](std::size_t i, const GroupSums& sums) {
    reportGroupFile(theCase.groups[i], sums, files[i]->modified(), list);
    if (watcher.read) watcher.read(files[i]->name() + ": " + counted(sums.hours, "hour"));
  };
  Patience patience{{}, watcher.interval};
  if (watcher.reading) {
    patience.call = [&](std::size_t i) {
      // One byte more than there is: no file is read before it is done.
      const std::uint64_t percent = 100 * files[i]->bytesRead() / (files[i]->size() + 1);
      watcher.reading(files[i]->name() + ": " + std::to_string(percent) + " %");
    };
  }
  try {
    return readGroups(files, blocks, receptors, finished, patience);
  } catch (const std::bad_alloc&) {
    const auto averages =
        static_cast<std::uint64_t>(blocks.count) * receptors.list.size() * files.size();
    throw Fault("There is not enough memory for the " + counted(averages, "average") +
                " of this case (" + grouped(averages * sizeof(double) / 1000000 + 1) + " MB).");
  }
}

void reportElapsed(Clock::time_point begin, ListFile& list) {
  const std::chrono::duration<double> elapsed = Clock::now() - begin;
  list.line("Elapsed time: " + fixed(elapsed.count(), 2) + " s");
  list.line();
}

// Judges, and writes each exceedance into the table as it is found.
Judgement judgeInto(ExceedanceFile& table, const Names& names, const Averages& averages) {
  table.begin(names.theCase);
  Judgement judgement = judge(names.theCase, names.blocks, averages,
                              [&](const Place& place) { table.add(names, averages, place); });
  table.finish();
  return judgement;
}

std::vector<std::string> allWarnings(const Names& names, const Receptors& receptors,
                                     const std::vector<GroupSums>& groups, const RunHours& hours,
                                     const Averages& averages, const Judgement& judgement) {
  const Averages ifCalm(names.theCase, names.blocks, groups, names.receptors.size(),
                        validHoursOfBlocks(names.blocks, hours, true));
  std::vector<std::string> warnings = warningsOf(names, groups, averages, judgement);
  const std::string ofZeros = warningOfZeroHours(names, hours, ifCalm, judgement);
  const std::string ofRanks = warningOfRankedValues(names, receptors, averages);
  for (const std::string& warning : {ofRanks, ofZeros}) {
    if (!warning.empty()) warnings.insert(warnings.begin(), warning);
  }
  return warnings;
}

// Says where the file is, or warns that there is none; `what` it would have been.
std::string told(const std::string& name, const std::string& problem, const std::string& what,
                 std::vector<std::string>& warnings) {
  if (problem.empty()) return name;
  warnings.push_back("No " + what + " was written: " + problem);
  return {};
}

void reportResults(const Names& names, const Receptors& receptors,
                   const std::vector<GroupSums>& groups, const RunHours& hours, Beside& beside,
                   ListFile& list) {
  const Blocks& blocks = names.blocks;
  const Averages averages(names.theCase, blocks, groups, names.receptors.size(),
                          validHoursOfBlocks(blocks, hours));
  std::vector<std::string> ofHours = linesOfClock(blocks);
  std::ranges::move(linesOfMarkedHours(blocks, hours, averages), std::back_inserter(ofHours));
  const std::vector<std::string> ofAverages = linesOfAverages(names.theCase, blocks, ofHours);
  reportAverages(ofAverages, list);
  ExceedanceFile& table = beside.table;
  const Judgement judgement = judgeInto(table, names, averages);
  std::vector<std::string> warnings =
      allWarnings(names, receptors, groups, hours, averages, judgement);
  std::vector<Fact> facts = factsOfJudgement(names, averages, judgement);
  facts.push_back(
      {"Every exceedance", told(table.name() + ", " + counted(table.rows(), "row"), table.problem(),
                                "table of every exceedance", warnings)});
  writePage({names, averages, hours, judgement, beside.ofCase, ofAverages, facts, warnings},
            beside.runOn, beside.page);
  facts.push_back(
      {"In pictures", told(beside.page.name(), beside.page.problem(), "page", warnings)});
  reportFacts("JUDGEMENT", facts, list);
  reportWarnings(warnings, list);
  reportMaxima(names, judgement, list);
  reportExceedances(names, averages, judgement, list);
  reportReceptors(names, judgement, list);
  reportLeftOut(names, judgement, list);
}

void compute(const Case& theCase, Beside& beside, ListFile& list, const Watcher& watcher) {
  const auto begin = Clock::now();
  Blocks blocks = planBlocks(theCase);
  const auto files = openGroups(theCase);
  const auto receptorFile = openNamedFile(theCase.receptorFile, theCase.receptorLine);
  const Receptors receptors = readReceptors(*receptorFile, theCase.receptorFormat);
  reportReceptorFile(theCase, receptors, receptorFile->modified(), list);
  if (watcher.read) {
    watcher.read(receptorFile->name() + ": " + counted(receptors.list.size(), "receptor"));
  }
  const std::vector<GroupSums> groups = readAll(theCase, files, blocks, receptors, list, watcher);
  blocks.hourCount = agreeOnClock(theCase, groups);
  const RunHours hours = agreeOnHours(theCase, blocks, groups);
  reportResults({theCase, blocks, receptors.list}, receptors, groups, hours, beside, list);
  reportElapsed(begin, list);
}

// Runs the work and hands back its fault as a sentence; no exception passes.
template <typename Work>
std::string sentenceOf(const Work& work) noexcept {
  try {
    work();
    return {};
  } catch (const std::bad_alloc&) {
    return "There is not enough memory for this case.";
  } catch (const std::exception& fault) {
    return fault.what();
  }
}

Result runIntoListFile(const ControlText& text, const NativePath& controlFile, ListFile& list,
                       const Watcher& watcher) {
  const std::string sentence = sentenceOf([&] {
    Beside beside(text, controlFile);
    reportTitle(beside.runOn, list);
    const Case theCase = parseControl(text);
    beside.ofCase = factsOfCase(theCase, textFromPath(controlFile));
    reportFacts("CASE", beside.ofCase, list);
    compute(theCase, beside, list, watcher);
    list.complete();
    beside.table.keep();
    beside.page.keep();
  });
  if (sentence.empty()) return {Outcome::kCompleted, "", listFileOf(text)};
  if (!list.fail(sentence)) return {Outcome::kNoListFile, sentence, ""};
  return {Outcome::kFailed, sentence, listFileOf(text)};
}

}  // namespace

Result runCase(const NativePath& controlFile, const Watcher& watcher) noexcept {
  Result result;
  const std::string sentence = sentenceOf([&] {
    const ControlText text = readControlText(controlFile);
    refuseListFileAmongInputs(text, controlFile);
    ListFile list(pathFromText(listFileOf(text)));
    result = runIntoListFile(text, controlFile, list, watcher);
  });
  if (!sentence.empty()) result = {Outcome::kNoListFile, sentence, ""};
  return result;
}

}  // namespace korventally::engine
