// Takes the wizard through the sample study, or through a case that was imported of a model's
// files, for scripts/demo and scripts/screenshots: says what it does, and asks for a picture of
// each step with a line "picture NAME GEOMETRY", which is there once the file is.
#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <utility>

#include "driver/forms.h"
#include "driver/input.h"
#include "driver/program.h"
#include "driver/walk.h"

namespace korventally::driver {
namespace {

/// What a window has painted comes to the screen a little later.
constexpr auto kUntilOnScreen = 150ms;

/// The script has a camera; this has what is worth a picture.
class Album {
 public:
  explicit Album(fs::path folder) : folder_(std::move(folder)) {}

  void take(const std::string& name, HWND window) const {
    RECT area;
    GetWindowRect(window, &area);
    // Painting comes after everything else that the window has to do.
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    ask(window, WM_NULL);
    Sleep(kUntilOnScreen.count());
    std::printf("picture %s %ldx%ld+%ld+%ld\n", name.c_str(), area.right - area.left,
                area.bottom - area.top, area.left, area.top);
    std::fflush(stdout);
    expectSoon([&] { return fs::exists(folder_ / (name + ".png")); }, "picture " + name);
  }

 private:
  fs::path folder_;
};

void say(const std::string& what) {
  std::printf("%s\n", what.c_str());
  std::fflush(stdout);
}

std::string utf8(const std::wstring& text) {
  const auto bytes = fs::path(text).u8string();
  return {bytes.begin(), bytes.end()};
}

bool isCompleted(const Form& summary) { return summary.text("lblStatus") == L"RUN COMPLETED"; }

bool run(const Program& program, const Album& album) {
  const Form summary = program.summary();
  album.take("6-summary", summary.window());
  say("Run summary: " + utf8(summary.text("lblAnalysisType")) + ", limit " +
      utf8(summary.text("txtNAAQSPSDLimit")) + ", SIL " + utf8(summary.text("txtSILLimit")));
  expectSoon([&] { return summary.focused("cmdRUN"); }, "RUN has the focus");
  pressKey(VK_RETURN);
  expectSoon([&] { return summary.text("lblRunning").size() > 8; }, "the run begins");
  album.take("7-running", summary.window());
  expectSoon([&] { return !summary.text("lblStatus").empty(); }, "the engine's verdict", 60s);
  album.take("8-verdict", summary.window());
  say("Verdict: " + utf8(summary.text("lblStatus")));
  return isCompleted(summary);
}

/// Opens something with the keyboard, takes its picture and closes it again.
void visit(const Program& program, const Album& album, const std::string& name,
           const std::wstring& caption) {
  HWND window = program.windowNamed(caption);
  album.take(name, window);
  pressKey(VK_ESCAPE);
  expectSoon([&] { return !IsWindow(window) || !IsWindowVisible(window); }, name + " closes");
}

void visitButton(const Program& program, const Album& album, std::string_view button,
                 const std::wstring& caption) {
  program.wizard().tabTo(button);
  pressKey(VK_SPACE);
  visit(program, album, std::string(button), caption);
}

/// The windows that a walk does not pass.
void visitTheRest(const Program& program, const Album& album) {
  program.chooseMenu('H', 'H');
  visit(program, album, "help", L" KORVENTALLY Help");
  program.chooseMenu('H', 'A');
  visit(program, album, "about", L" About KORVENTALLY...");
  program.wizard().tabTo("txtWorkDir");
  program.wizard().retype("txtWorkDir", L"");
  visitButton(program, album, "cmdNext1", L"Error");
  visitButton(program, album, "cmdBrowseWorkDir", L"Browse");
}

/// The case that was imported of a model's files into the folder "case", to be opened.
Study importedStudy(const fs::path& folder) {
  return {.workDir = (folder / "case").wstring() + L"\\",
          .concFiles = {L"ALL.con", L"FACILITY.con", L"OTHER1.con"},
          .receptors = L"receptors.dat",
          .year = L"2010",
          .month = L"07",
          .day = L"16",
          .hour = L"01",
          .hours = L"48",
          .opened = true};
}

bool drive(const std::wstring& what, const fs::path& folder) {
  const bool gallery = what == L"gallery";
  const bool model = what == L"model";
  const Study study = model ? importedStudy(folder) : Study{(folder / "study").wstring() + L"\\"};
  const Album album(folder);
  const Program program(folder / "KorvenTally",
                        model ? L"\"" + study.workDir + L"case.inp\"" : L"");
  album.take("0-start", program.wizard().window());
  if (gallery) visitTheRest(program, album);
  int page = 0;
  const Observer observe = [&](int step, const std::string& entered) {
    say("Step " + std::to_string(step) + ": " + entered);
    if (step == 3) ++page;
    const std::string suffix = step == 3 ? "-page-" + std::to_string(page) : "";
    album.take(std::to_string(step) + "-step" + suffix, program.wizard().window());
    if (gallery && page == 1 && step == 3) visitButton(program, album, "cmdBrowseFile", L"Open");
  };
  (gallery ? walkWithKeyboard : walkWithMouse)(program, study, observe);
  return run(program, album);
}

}  // namespace
}  // namespace korventally::driver

int wmain(int count, wchar_t** arguments) {
  using namespace korventally::driver;
  if (count != 3) return 2;
  SetProcessDPIAware();
  try {
    return drive(arguments[1], fs::path(arguments[2]).make_preferred()) ? 0 : 1;
  } catch (const std::exception& error) {
    say(error.what());
    return 1;
  }
}
