#include <gtest/gtest.h>

#include <sstream>

#include "driver/input.h"
#include "tests/e2e/program_under_test.h"

namespace korventally::driver {
namespace {

/// The road from a dispersion model's files to the verdict, without typing: import, the wizard with
/// the control file, the results.
class FromAModel : public testing::Test {
 protected:
  /// Runs the engine's program and returns its exit code.
  static DWORD run(const std::wstring& arguments) {
    std::wstring line = L"\"" + (installation() / "korventally.exe").wstring() + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                        nullptr, &startup, &process)) {
      return 99;
    }
    WaitForSingleObject(process.hProcess, 20000);
    DWORD code = 99;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
  }

  fs::path results(const char* name) const { return study.path() / "case" / name; }

  const fs::path model = folderFrom(L"KORVENTALLY_SAMPLES") / "dispersion";
  TestFolder study{L"a model's run"};
};

/// The largest value of one of the model's own files of averages.
double largestIn(const fs::path& file) {
  std::istringstream lines(readFile(file));
  double largest = 0;
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with('*')) largest = std::max(largest, std::stod(line.substr(29, 13)));
  }
  return largest;
}

TEST_F(FromAModel, ItIsOneRoadToTheModelsOwnAverages) {
  std::wstring arguments = L"import --calms \"" + (model / "plot" / "ERRORS.OUT").wstring() +
                           L"\" --out \"" + (study.path() / "case").wstring() + L"\"";
  for (const char* group : {"all.pst", "facility.pst", "other1.pst"}) {
    arguments += L" \"" + (model / "plot" / group).wstring() + L"\"";
  }
  ASSERT_EQ(run(arguments), 0u);
  const Program program(installation(), L"\"" + results("case.inp").wstring() + L"\"");
  Study entered{.workDir = results("").wstring(),
                .concFiles = {L"ALL.con", L"FACILITY.con", L"OTHER1.con"},
                .opened = true};
  walkWithMouse(program, entered);
  const Form summary = program.summary();
  EXPECT_EQ(summary.text("lblAnalysisType"), L"Class II PSD/SIL");
  summary.click("cmdRUN");
  ASSERT_TRUE(waitUntil([&] { return !summary.text("lblStatus").empty(); }, 30s));
  EXPECT_EQ(summary.text("lblStatus"), L"RUN COMPLETED");
  const std::string list = readFile(results("korventally.lst"));
  const std::size_t highest = list.find("  ALL            1st ");
  ASSERT_NE(highest, list.npos) << list;
  EXPECT_NEAR(std::stod(list.substr(highest + 21)), largestIn(model / "averages" / "all_24.pst"),
              1e-4);
  EXPECT_NE(readFile(results("korventally.lst.html")).find("</html>"), std::string::npos);
  EXPECT_TRUE(readFile(results("korventally.lst.csv")).starts_with("Receptor ID,"));
  EXPECT_FALSE(fs::exists(results("korventally.inp")));
}

}  // namespace
}  // namespace korventally::driver
