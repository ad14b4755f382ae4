// Takes the wizard through the sample study for scripts/demo and scripts/screenshots: says what it
// does, and asks for a picture of each step with a line "picture NAME GEOMETRY", which is there
// once the file is.
#include <cstdio>
#include <exception>

#include "tests/e2e/walk.h"

namespace korventally::e2e {
namespace {

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
    Sleep(150);
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
  summary.click("cmdRUN");
  expectSoon([&] { return summary.text("lblRunning").size() > 8; }, "the run begins");
  album.take("7-running", summary.window());
  expectSoon([&] { return !summary.text("lblStatus").empty(); }, "the engine's verdict", 60s);
  album.take("8-verdict", summary.window());
  say("Verdict: " + utf8(summary.text("lblStatus")));
  return isCompleted(summary);
}

bool demo(const std::wstring& how, const fs::path& folder, const fs::path& study,
          const Album& album) {
  const Program program(folder);
  album.take("0-start", program.wizard().window());
  int page = 0;
  const Observer observe = [&](int step, const std::string& what) {
    say("Step " + std::to_string(step) + ": " + what);
    const std::string suffix = step == 3 ? "-page-" + std::to_string(++page) : "";
    album.take(std::to_string(step) + "-step" + suffix, program.wizard().window());
  };
  const Study sample{study.wstring() + L"\\"};
  (how == L"mouse" ? walkWithMouse : walkWithKeyboard)(program, sample, observe);
  return run(program, album);
}

}  // namespace
}  // namespace korventally::e2e

int wmain(int count, wchar_t** arguments) {
  using namespace korventally::e2e;
  if (count != 5) return 2;
  SetProcessDPIAware();
  try {
    const fs::path pictures(arguments[4]);
    return demo(arguments[1], fs::path(arguments[2]).make_preferred(),
                fs::path(arguments[3]).make_preferred(), Album(pictures))
               ? 0
               : 1;
  } catch (const std::exception& error) {
    say(error.what());
    return 1;
  }
}
