#include "case/ModUtilities.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/events.h"
#include "platform/headless/desktop.h"
#include "platform/window.h"

namespace korventally::testing {
namespace {

class Form : public Window {
 public:
  Form() : Window("form", {3000, 3000}) {}
  TextBox box{*this, {0, 0, 100, 100}};
  Label label{*this, {0, 0, 100, 100}};
};

TEST(FieldColours, FollowTheColourCode) {
  using namespace colors;
  constexpr OleColor kOther = 0x00123456;
  struct Row {
    OleColor before, enabled, disabled, highlighted, clearedWithText, clearedEmpty;
  };
  constexpr std::array kRows = {
      Row{kWhite, kWhite, kButtonFace, kYellow, kWhite, kWhite},
      Row{kYellow, kWhite, kDarkYellow, kYellow, kWhite, kYellow},
      Row{kDarkYellow, kYellow, kButtonFace, kYellow, kDarkYellow, kDarkYellow},
      Row{kButtonFace, kWhite, kButtonFace, kYellow, kButtonFace, kButtonFace},
      Row{kOther, kWhite, kButtonFace, kYellow, kOther, kOther},
  };
  const Desktop desktop;
  Form form;
  const auto after = [&](OleColor before, const char* text, void (*change)(TextBox&)) {
    form.box.setBackColor(before);
    form.box.setText(text);
    change(form.box);
    return form.box.backColor();
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.before);
    EXPECT_EQ(after(row.before, "x", EnableField), row.enabled);
    EXPECT_TRUE(form.box.enabled());
    EXPECT_EQ(after(row.before, "x", DisableField), row.disabled);
    EXPECT_FALSE(form.box.enabled());
    EXPECT_EQ(after(row.before, "x", HighlightField), row.highlighted);
    EXPECT_EQ(after(row.before, "x", ClearFieldHighlight), row.clearedWithText);
    EXPECT_EQ(after(row.before, "", ClearFieldHighlight), row.clearedEmpty);
    // Blanks count as text for the colour, and are trimmed all the same.
    EXPECT_EQ(after(row.before, "  ", ClearFieldHighlight), row.clearedWithText);
    EXPECT_EQ(form.box.text(), "");
  }
}

TEST(FieldHelpers, TrimBlanksOnlyNeverTabs) {
  const Desktop desktop;
  Form form;
  for (const auto& [text, trimmed] : {std::pair{"  a b ", "a b"}, {"\ta ", "\ta"}, {" ", ""}}) {
    form.box.setText(text);
    ClearFieldHighlight(form.box);
    EXPECT_EQ(form.box.text(), trimmed);
  }
}

TEST(FieldHelpers, SwitchStepClosesBeforeItOpens) {
  const Desktop desktop;
  Form form;
  form.box.setBackColor(colors::kYellow);
  SwitchStep({&form.label}, {&form.box}, {&form.label}, {});
  EXPECT_TRUE(form.label.enabled());
  EXPECT_FALSE(form.box.enabled());
  SwitchStep({&form.label}, {}, {}, {&form.box});
  EXPECT_FALSE(form.label.enabled());
  EXPECT_EQ(form.box.backColor(), colors::kYellow);
}

TEST(KeyFilters, LetDigitsAndControlKeysThrough) {
  for (int code = -32768; code <= 32767; ++code) {
    const bool controlOrForeign = code < 32 || code > 127;
    const bool digit = code >= '0' && code <= '9';
    auto whole = static_cast<std::int16_t>(code);
    auto decimal = whole;
    FilterDigitKey(whole);
    FilterDecimalKey(decimal);
    ASSERT_EQ(whole, controlOrForeign || digit ? code : 0);
    ASSERT_EQ(decimal, controlOrForeign || digit || code == '.' ? code : 0);
  }
}

TEST(WaitMilliseconds, LastsAtLeastItsTimeAcrossEveryWrapOfTheTickCounter) {
  for (const std::uint32_t start : {1000u, 0x7FFFFF00u, 0xFFFFFF00u}) {
    Desktop desktop;
    desktop.setTicks(start);
    bool handled = false;
    desktop.at(400, [&] { handled = true; });
    WaitMilliseconds(500);
    const std::uint32_t waited = tickCount() - start;
    EXPECT_GE(waited, 500u);
    EXPECT_LE(waited, 500u + Desktop::kYieldStep);
    EXPECT_TRUE(handled) << "events are handled during the wait";
  }
}

TEST(WaitMilliseconds, ReturnsWithoutYieldingForNoTimeOrOnceStopped) {
  const Desktop desktop;
  std::stop_source stopped;
  stopped.request_stop();
  const std::uint32_t start = tickCount();
  WaitMilliseconds(0);
  WaitMilliseconds(-5);
  WaitMilliseconds(500, stopped.get_token());
  EXPECT_EQ(tickCount(), start);
}

TEST(AnimateRunning, ShowsThreeCaptionsForHalfASecondEach) {
  Desktop desktop;
  Form form;
  std::vector<std::string> seen;
  for (const std::uint32_t when : {250u, 750u, 1250u}) {
    desktop.at(when, [&] { seen.push_back(form.label.text()); });
  }
  AnimateRunning(form.label);
  EXPECT_EQ(seen, (std::vector<std::string>{"Running.", "Running..", "Running..."}));
  EXPECT_GE(desktop.now(), 1500u);
}

class OpenFileInNotepadTest : public ::testing::Test {
 protected:
  OpenFileInNotepadTest() { desktop.makeFolder("C:\\100% Sûr & (co)\\"); }
  Desktop desktop;
};

TEST_F(OpenFileInNotepadTest, HandsNotepadTheVeryPathAndTidiesUpAfterFiveSeconds) {
  for (const std::string directory : {" C:\\100% Sûr & (co) ", "C:\\100% Sûr & (co)\\"}) {
    ASSERT_TRUE(OpenFileInNotepad(directory, "a%b.lst"));
    EXPECT_EQ(desktop.filesInNotepad().back(), "C:\\100% Sûr & (co)\\a%b.lst");
    desktop.advance(4900);
    EXPECT_EQ(desktop.fileBytes("C:\\100% Sûr & (co)\\open_file.bat"),
              "notepad \"C:\\100%% S\xFBr & (co)\\a%%b.lst\"\r\n");
    desktop.advance(200);
    EXPECT_FALSE(desktop.fileBytes("C:\\100% Sûr & (co)\\open_file.bat"));
  }
}

TEST_F(OpenFileInNotepadTest, TellsWhyItCouldNotStart) {
  const Error denied{ErrorKind::kOther, 5, "Access is denied.", "cmd.exe"};
  desktop.failCall(Desktop::Operation::kStart, 1, denied);
  const Status status = OpenFileInNotepad("C:\\100% Sûr & (co)", "a.lst");
  ASSERT_FALSE(status);
  EXPECT_EQ(status.error().code, 5);
  desktop.advance(6000);
  EXPECT_TRUE(desktop.list("C:\\100% Sûr & (co)\\").empty());
  desktop.putFile("C:\\100% Sûr & (co)\\open_file.bat", "");
  desktop.lockFile("C:\\100% Sûr & (co)\\open_file.bat", 60'000);
  const std::uint32_t start = desktop.now();
  EXPECT_EQ(OpenFileInNotepad("C:\\100% Sûr & (co)", "a.lst").error().code, 32);
  EXPECT_NEAR(desktop.now() - start, 1500, 60) << "what holds a file briefly is waited for";
}

}  // namespace
}  // namespace korventally::testing
