#include "tests/study.h"

namespace korventally::testing {
namespace {

class Info : public StudyTest {
 protected:
  void inAbout(const std::function<void(frmAboutKORVENTALLY&)>& visit) {
    inWizard([&](frmKORVENTALLY& w) {
      desktop.expectWindow(
          [&](Window& window) { visit(dynamic_cast<frmAboutKORVENTALLY&>(window)); });
      w.mnuAboutKORVENTALLY.onClick();
    });
  }
};

TEST_F(Info, TheDebugSwitchCountsHoweverTheWindowCloses) {
  const std::function<void(frmAboutKORVENTALLY&)> ways[] = {
      [](frmAboutKORVENTALLY& about) { click(about.cmdOK); },
      [](frmAboutKORVENTALLY& about) { clickCloseBox(about); },
      [](frmAboutKORVENTALLY& about) { press(about, Key::kEscape); },
  };
  for (const auto& close : ways) {
    for (const bool debug : {true, false}) {
      inAbout([&](frmAboutKORVENTALLY& about) {
        EXPECT_EQ(about.chkDebug.checked(), !debug) << "shows the state of before";
        click(about.chkDebug);
        close(about);
      });
      EXPECT_EQ(theCase.DebugMode, debug);
      inAbout([&](frmAboutKORVENTALLY& about) { close(about); });
      EXPECT_EQ(theCase.DebugMode, debug) << "untouched";
    }
  }
}

TEST_F(Info, AboutNamesTheVersion) {
  inAbout([](frmAboutKORVENTALLY& about) {
    EXPECT_EQ(about.text(), " About KORVENTALLY...");
    EXPECT_EQ(about.lblVersion.text(), "Version1.2");
    EXPECT_EQ(about.lblLevel.text(), "March 27, 2009");
    EXPECT_EQ(about.backColor(), colors::kTitleBarText);
    EXPECT_EQ(about.focused(), &about.cmdOK);
    EXPECT_EQ(about.chkDebug.accessibleName(), "Debug mode");
    click(about.cmdOK);
  });
}

/// Navy texts, with underlined headings and definitions whose dashes stand in line.
void expectWholePage(const frmKORVENTALLYHelp& help) {
  std::string headings, definitions;
  for (const Control* child : help.children()) {
    if (child->kind() != Control::Kind::kLabel) continue;
    EXPECT_EQ(child->foreColor(), colors::kNavy) << child->text();
    if (child->font().underlined) headings += child->text();
    if (child->text().starts_with(' ')) definitions += child->text().substr(0, 24) + "|";
  }
  EXPECT_EQ(headings, "Purpose:Notes:Terms and Definitions:");
  EXPECT_EQ(definitions,
            "              EPA - Unit|        NAAQS - National|"
            "              PSD - Prev|                SIL - Si|");
}

TEST_F(Info, HelpOpensOverTheWizardAndAgain) {
  inWizard([&](frmKORVENTALLY& w) {
    for (int time = 0; time < 2; ++time) {
      desktop.expectWindow([&](Window& window) {
        auto& help = dynamic_cast<frmKORVENTALLYHelp&>(window);
        EXPECT_FALSE(desktop.takesInput(w));
        expectWholePage(help);
        time == 0 ? click(help.cmdOK) : press(help, Key::kEscape);
      });
      w.mnuKORVENTALLYHelp.onClick();
      EXPECT_TRUE(desktop.takesInput(w));
    }
  });
}

}  // namespace
}  // namespace korventally::testing
