#include <gtest/gtest.h>
#include <initguid.h>
#include <oleacc.h>
#include <windows.h>

#include <map>

#include "platform/later.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/native_lookup.h"
#include "run/frmRunSummary.h"
#include "tests/platform/contract/world.h"
#include "wizard/frmKORVENTALLY.h"

namespace korventally::testing {
namespace {

/// What an assistive program is told about one control.
struct Spoken {
  std::string name;
  long role = 0;
};

/// Reads the windows as a screen reader does.
class Accessibility : public ::testing::Test {
 protected:
  Accessibility() { OleInitialize(nullptr); }
  ~Accessibility() override { OleUninitialize(); }

  static Spoken read(const Control& control) {
    Spoken spoken;
    IAccessible* accessible = nullptr;
    AccessibleObjectFromWindow(win32::nativeHandle(control), static_cast<DWORD>(OBJID_CLIENT),
                               IID_IAccessible, reinterpret_cast<void**>(&accessible));
    if (accessible == nullptr) return spoken;
    VARIANT self;
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    VARIANT role;
    VariantInit(&role);
    BSTR name = nullptr;
    if (accessible->get_accName(self, &name) == S_OK && name != nullptr) {
      spoken.name = win32::fromWide(name);
      SysFreeString(name);
    }
    if (accessible->get_accRole(self, &role) == S_OK) spoken.role = role.lVal;
    accessible->Release();
    return spoken;
  }

  /// The name that the control is meant to have for those who cannot see it.
  static std::string nameOf(const Control& control) {
    return control.accessibleName().empty() ? control.text() : control.accessibleName();
  }

  /// Wine 8 keeps no names for controls that are not named by a caption of theirs.
  static bool systemKeepsNames(const Control& named) { return read(named).name == nameOf(named); }

  /// Every control below the container, as it is spoken of.
  static std::map<const Control*, Spoken> listOf(const Container& container) {
    std::map<const Control*, Spoken> spoken;
    for (const Control* child : container.children()) {
      spoken[child] = read(*child);
      if (child->kind() == Control::Kind::kFrame) {
        spoken.merge(listOf(static_cast<const Frame&>(*child)));
      }
    }
    return spoken;
  }

  static void expectComplete(const Window& window, const Control& namedByUs) {
    const bool keepsNames = systemKeepsNames(namedByUs);
    for (const auto& [control, spoken] : listOf(window)) {
      const bool box = control->kind() == Control::Kind::kTextBox;
      EXPECT_EQ(spoken.role == ROLE_SYSTEM_TEXT, box) << nameOf(*control);
      EXPECT_NE(spoken.role, 0) << nameOf(*control);
      if (keepsNames || control->accessibleName().empty()) {
        EXPECT_EQ(spoken.name, nameOf(*control));
      }
    }
  }

  World world;
};

TEST_F(Accessibility, EveryControlIsSpokenOf) {
  basModule::analysisCase = AnalysisCase{};
  frmKORVENTALLY wizard;
  frmRunSummary summary;
  frmAboutKORVENTALLY about;
  frmKORVENTALLYHelp help;
  const std::pair<Window*, const Control*> windows[] = {
      {&wizard, &wizard.analysisType.cmdNextArrow1},
      {&summary, &summary.txtSpecies},
      {&about, &about.chkDebug},
      {&help, &help.cmdOK}};
  for (const auto& [window, named] : windows) {
    runLater("visit", 0, [&, window = window, named = named] {
      expectComplete(*window, *named);
      window->unload();
    });
    window->show();
  }
}

}  // namespace
}  // namespace korventally::testing
