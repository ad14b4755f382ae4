#include "engine/engine.h"

#include <memory>
#include <new>
#include <string_view>

#include "engine/control_file.h"
#include "engine/fault.h"
#include "engine/line_reader.h"
#include "engine/list_file.h"
#include "engine/report_case.h"
#include "engine/text.h"

namespace korventally::engine {

namespace {

// The file that a line of the control file names; a fault says which line that was.
std::unique_ptr<InputFile> OpenNamedFile(const std::string& path, std::size_t control_line) {
  try {
    return std::make_unique<InputFile>(PathFromText(path));
  } catch (const Fault& fault) {
    throw Fault("Line " + std::to_string(control_line) + " of the control file: " + fault.what());
  }
}

void ListFileFacts(ListFile& list, const std::string& path, std::size_t control_line) {
  const auto file = OpenNamedFile(path, control_line);
  LineReader reader(*file, std::size_t{64} << 20);
  for (std::string_view line; reader.Next(line);) {
  }
  list.Line("  " + path + "  " + Counted(file->size(), "byte") + ", " +
            Counted(reader.line_number(), "line"));
}

void Compute(const Case& the_case, ListFile& list) {
  ReportCase(the_case, list);
  list.Line("FILES");
  for (const SourceGroup& group : the_case.groups) {
    ListFileFacts(list, group.file, group.file_line);
  }
  ListFileFacts(list, the_case.receptor_file, the_case.receptor_line);
  list.Line();
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
