#include "tests/faults/scenarios.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/files.h"
#include "platform/headless/desktop.h"
#include "tests/faults/plan.h"
#include "tests/study.h"

namespace korventally::testing {
namespace {

using enum Action::Kind;
using Actions = std::vector<Action>;

constexpr const char* kFolderBox = "WORKING DIRECTORY";
constexpr const char* kOthersBox = "Number of OTHER Source Groups to Analyze";
constexpr const char* kFileBox = "Concentration File";
constexpr const char* kReceptorBox = "File with Receptors to be Processed";
constexpr const char* kListBox = "List Filename";

Action click(std::string caption, std::string chosen = "", std::uint32_t after = 20) {
  return {kClick, std::move(caption), std::move(chosen), after};
}

Actions operator+(Actions first, const Actions& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

const Actions kToAnalysis = {{kPaste, kFolderBox, "C:\\Study"}, click("NEXT")};
const Actions kToGroups = kToAnalysis + Actions{{kPaste, kOthersBox, "1"}, click("NEXT")};
const Actions kToProcessing = kToGroups + Actions{{kPaste, kFileBox, kStudy + "g1.con"},
                                                  click("  NEXT GROUP  >"),
                                                  click("Browse", kStudy + "g2.con"),
                                                  click("  NEXT GROUP  >"),
                                                  {kDrop, kFileBox, kStudy + "g3.con"},
                                                  {kPaste, kFileBox, kStudy + "g3.con"},
                                                  click("NEXT")};
const Actions kToOutput = kToProcessing + Actions{{kPaste, kReceptorBox, kStudy + "recept.dat"},
                                                  {kType, "Year", "2009"},
                                                  {kType, "Month", "1"},
                                                  {kType, "Day", "2"},
                                                  {kType, "Hour", "03"},
                                                  {kType, "Run Length, hours", "8760"},
                                                  click("NEXT")};
const Actions kToSummary = kToOutput + Actions{click("RUN")};
constexpr std::uint32_t kARun = 6000, kUntilTheEditorWent = 8000;
// A question about the list file may come first.
const Action kPressRun = {kClick, "RUN", "", 200};
const Actions kRun = kToSummary + Actions{kPressRun, click("Back", "", kARun)};

/// An engine that writes its lines at those times, and ends then, or never.
std::function<void(Desktop&)> engine(std::vector<std::pair<std::uint32_t, std::string>> lines,
                                     std::uint32_t end) {
  return [=](Desktop& desktop) {
    desktop.setEngine([=](Desktop::Engine& engine) {
      const std::string& control = engine.controlBytes();
      const std::string list = fromAnsi(control.substr(30, control.find("\r\n") - 30));
      for (const auto& [when, line] : lines) engine.writeLine(when, list, line);
      if (end > 0) engine.end(end);
    });
  };
}

void leaveAnOldRun(Desktop& desktop) {
  desktop.putFile(kStudy + "korventally.lst", "RUN COMPLETED\r\n");
  desktop.putFile(kStudy + "run_korventally.bat", "old");
  desktop.putFile(kStudy + "korventally.inp", "old");
}

/// A control file as a run keeps it in debug mode.
std::string savedCase() {
  const std::vector<std::string> values = {kStudy + "korventally.lst",
                                           "SO2",
                                           "2009,01,02,03",
                                           "8760",
                                           "2",
                                           kStudy + "g1.con",
                                           "ALL",
                                           kStudy + "g2.con",
                                           "FACILITY",
                                           "1000000.0,0.0",
                                           "0",
                                           "3",
                                           "1300.0",
                                           "1",
                                           kStudy + "recept.dat",
                                           "1",
                                           "25.0",
                                           "2",
                                           "F",
                                           "0"};
  std::string text;
  for (const std::string& value : values) text += std::string(29, ' ') + ":" + value + "\r\n";
  return text;
}

const std::string kLongLine(3 << 20, 'x');

}  // namespace

std::vector<Plan> scenarios() {
  const Actions runAgain =
      kToSummary + Actions{kPressRun, click("RUN", "", kARun),
                           click("RUN", "", kUntilTheEditorWent), click("Back", "", kARun)};
  const Actions look = {{kMenu, "&About KORVENTALLY...", ""},
                        click("*"),
                        click("OK"),
                        {kMenu, "KORVENTALLY &Help", ""},
                        click("OK")};
  const Actions next =
      Actions{click("NEXT"), click("NEXT"), click("  NEXT GROUP  >"), click("NEXT"), click("NEXT"),
              click("RUN"),  kPressRun,     click("Back", "", kARun)};
  const auto configured = [](Desktop& desktop) {
    desktop.putFile("D:\\Prog\\Movrix.cfg", "x=C:\\Study\r\n");
    desktop.putFile("C:\\case.inp", savedCase());
  };
  const Action close = {kClose, "", "", 100};
  return {
      {"run to the verdict", kRun, {}, {}, "Y", {}},
      {"pressed twice",
       kToSummary + Actions{kPressRun, click("RUN", "", 10), click("Back", "", kARun)},
       {},
       {},
       "Y",
       {}},
      {"a run that fails",
       kRun,
       {},
       engine({{300, "KORVENTALLY listing"}, {900, "RUN FAILED"}}, 900),
       "Y",
       {}},
      {"over an old run", kRun, {}, leaveAnOldRun, "Y", {}},
      {"the old list file stays", kRun, {}, leaveAnOldRun, "N", {}},
      {"debug mode", look + kRun, {}, leaveAnOldRun, "Y", {}},
      {"run again, also within the editor's wait", runAgain, {}, {}, "Y", {}},
      {"stopped", kToSummary + Actions{kPressRun, {kClose, "", "", 1200}}, {}, {}, "Y", {}},
      {"closed before the batch file",
       kToSummary + Actions{kPressRun, {kClose, "", "", 20}},
       {},
       {},
       "Y",
       {}},
      {"the session ends",
       kToSummary + Actions{kPressRun, {kEndSession, "", "", 1200}},
       {},
       {},
       "Y",
       {}},
      {"the session ends while something is asked",
       kToSummary + Actions{{kEndSession, "", "", 30}},
       {},
       leaveAnOldRun,
       "Y",
       {}},
      {"no engine",
       kRun,
       {},
       [](Desktop& d) { d.removeFile("D:\\Prog\\korventally.exe"); },
       "Y",
       {}},
      {"an engine without a word",
       kToSummary + Actions{kPressRun, click("Back", "", 50'000)},
       {},
       engine({}, 400),
       "YN",
       {}},
      {"an engine that outlives its verdict",
       runAgain,
       {},
       engine({{300, "KORVENTALLY listing"}, {900, "RUN COMPLETED"}}, 0),
       "Y",
       {}},
      {"a long list file",
       kRun,
       {},
       engine({{300, "KORVENTALLY listing\r\n" + kLongLine}, {900, "RUN COMPLETED"}}, 1000),
       "Y",
       {}},
      {"started with a control file",
       look + next + Actions{close},
       {"C:\\case.inp"},
       configured,
       "Y",
       {}},
      {"started with two", {click("NEXT"), close}, {"C:\\case.inp", "b.inp"}, configured, "Y", {}},
      {"a control file dropped",
       Actions{{kDrop, "Cancel", "C:\\case.inp"}} + next,
       {},
       configured,
       "Y",
       {}},
      {"another's lock",
       kRun,
       {},
       [](Desktop& d) { d.putFile(kStudy + "korventally.lock", "mine"); },
       "Y",
       {}},
      {"mistakes in every step",
       Actions{{kPaste, kFolderBox, "C:\\No"}, click("NEXT"), click("Browse", "C:\\Study")} +
           Actions{click("NEXT"), {kType, kOthersBox, "99"}, click("NEXT")} +
           Actions{{kPaste, kOthersBox, "0"}, click("NEXT"), click("NEXT")} +
           Actions{click("PREVIOUS"), click("Back to Top"), click("Cancel")},
       {},
       {},
       "Y",
       {}},
  };
}

Action anyAction(const std::function<int(int)>& below) {
  constexpr std::array kCaptions = {"NEXT",
                                    "NEXT",
                                    "PREVIOUS",
                                    "Browse",
                                    "RUN",
                                    "RUN",
                                    "Back",
                                    "Back to Top",
                                    "  NEXT GROUP  >",
                                    "<  PREVIOUS GROUP",
                                    "Default",
                                    "Cancel",
                                    "OK",
                                    "PSD",
                                    "NOX",
                                    "24 HOUR",
                                    "*",
                                    "Open KORVENTALLY output file after run"};
  constexpr std::array kBoxes = {kFolderBox, kOthersBox, kFileBox, kReceptorBox,
                                 kListBox,   "Year",     "Month",  "Run Length, hours",
                                 "Species",  "SIL Limit"};
  constexpr std::array kTexts = {"",
                                 "0",
                                 "2",
                                 "C:\\Study",
                                 "C:\\Study\\g1.con",
                                 "C:\\Study\\recept.dat",
                                 "x.lst",
                                 "g1.con",
                                 "NUL",
                                 "\u00E4\u20AC\u2603",
                                 "12",
                                 "2009",
                                 "%&^\"|"};
  constexpr std::array kMenus = {"&About KORVENTALLY...", "KORVENTALLY &Help", "E&xit"};
  constexpr std::array kWaits = {0, 5, 20, 40, 100, 900, 2000, 5000};
  const auto of = [&](const auto& list) {
    return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
  };
  Action action{static_cast<Action::Kind>(below(8)), "", of(kTexts),
                static_cast<std::uint32_t>(of(kWaits))};
  // Closing ends most of what could go wrong, so it is rare.
  const bool ending = action.kind == kClose || action.kind == kEndSession;
  if (ending && below(4) > 0) action.kind = kClick;
  if (action.kind == kClick) action.where = of(kCaptions);
  if (action.kind == kPaste || action.kind == kType || action.kind == kDrop)
    action.where = of(kBoxes);
  if (action.kind == kKey) action.text = std::to_string(below(10));
  if (action.kind == kMenu) action.where = of(kMenus);
  return action;
}

}  // namespace korventally::testing
