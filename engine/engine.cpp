#include "engine/engine.h"

#include <chrono>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "engine/blocks.h"
#include "engine/columns.h"
#include "engine/control_file.h"
#include "engine/fault.h"
#include "engine/group_reader.h"
#include "engine/judgement.h"
#include "engine/list_file.h"
#include "engine/receptor_file.h"
#include "engine/report_case.h"
#include "engine/report_results.h"
#include "engine/text.h"

namespace korventally::engine {

namespace {

using Clock = std::chrono::steady_clock;

// The file that a line of the control file names; a fault says which line that was.
std::unique_ptr<InputFile> OpenNamedFile(const std::string& path, std::size_t control_line) {
  try {
    return std::make_unique<InputFile>(PathFromText(path));
  } catch (const Fault& fault) {
    throw Fault("Line " + std::to_string(control_line) + " of the control file: " + fault.what());
  }
}

std::vector<std::unique_ptr<InputFile>> OpenGroups(const Case& the_case) {
  std::vector<std::unique_ptr<InputFile>> files;
  for (const SourceGroup& group : the_case.groups) {
    files.push_back(OpenNamedFile(group.file, group.file_line));
  }
  return files;
}

std::vector<GroupSums> ReadAll(const Case& the_case,
                               const std::vector<std::unique_ptr<InputFile>>& files,
                               const Blocks& blocks, std::size_t receptors, ListFile& list) {
  try {
    return ReadGroups(files, blocks, receptors, [&](std::size_t i, const GroupSums& sums) {
      ReportGroupFile(the_case.groups[i], sums, receptors, list);
    });
  } catch (const std::bad_alloc&) {
    const auto averages = static_cast<std::uint64_t>(blocks.count) * receptors * files.size();
    throw Fault("There is not enough memory for the " + Counted(averages, "average") +
                " of this case (" + Grouped(averages * sizeof(double) / 1000000 + 1) + " MB).");
  }
}

void ReportElapsed(Clock::time_point begin, ListFile& list) {
  const std::chrono::duration<double> elapsed = Clock::now() - begin;
  list.Line("Elapsed time: " + Fixed(elapsed.count(), 2) + " s");
  list.Line();
}

void Compute(const Case& the_case, ListFile& list) {
  const auto begin = Clock::now();
  ReportCase(the_case, list);
  const Blocks blocks = PlanBlocks(the_case);
  const auto files = OpenGroups(the_case);
  const auto receptor_file = OpenNamedFile(the_case.receptor_file, the_case.receptor_line);
  const Receptors receptors = ReadReceptors(*receptor_file, the_case.receptor_format);
  const std::size_t count = receptors.list.size();
  ReportReceptorFile(the_case, receptors, list);
  const std::vector<GroupSums> groups = ReadAll(the_case, files, blocks, count, list);
  ReportAverages(the_case, blocks, list);
  const Names names{the_case, blocks, receptors.list};
  const Averages averages(the_case, blocks, groups, count);
  const Judgement judgement = Judge(the_case, averages);
  ReportMaxima(names, judgement, list);
  ReportCounts(names, judgement, list);
  ReportExceedances(names, averages, judgement, list);
  ReportLeftOut(names, judgement, list);
  ReportWarnings(names, averages, judgement, list);
  ReportElapsed(begin, list);
}

// Runs the work and hands back its fault as a sentence; no exception passes.
template <typename Work>
std::string SentenceOf(const Work& work) noexcept {
  try {
    work();
    return {};
  } catch (const std::bad_alloc&) {
    return "There is not enough memory for this case.";
  } catch (const std::exception& fault) {
    return fault.what();
  }
}

Result RunIntoListFile(const ControlText& text, ListFile& list) {
  const std::string sentence = SentenceOf([&] {
    ReportTitle(list);
    Compute(ParseControl(text), list);
    list.Complete();
  });
  if (sentence.empty()) return {};
  return {list.Fail(sentence) ? Outcome::kFailed : Outcome::kNoListFile, sentence};
}

}  // namespace

Result RunCase(const NativePath& control_file) noexcept {
  Result result;
  const std::string sentence = SentenceOf([&] {
    const ControlText text = ReadControlText(control_file);
    RefuseListFileAmongInputs(text, control_file);
    ListFile list(PathFromText(ListFileOf(text)));
    result = RunIntoListFile(text, list);
  });
  if (!sentence.empty()) result = {Outcome::kNoListFile, sentence};
  return result;
}

}  // namespace korventally::engine
