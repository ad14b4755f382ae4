#include <gtest/gtest.h>
#include <windows.h>

#include "platform/contrast.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/colors.h"
#include "platform/win32/ui/native_lookup.h"
#include "tests/platform/contract/form.h"
#include "tests/platform/contract/world.h"
#include "tests/user.h"

namespace korventally::testing {
namespace {

using win32::nativeHandle;

/// Screen readers and other programs ask the windows, not the model.
class NativeTruth : public ::testing::Test {
 protected:
  static std::string textOf(const Control& control) {
    wchar_t text[100];
    SendMessageW(nativeHandle(control), WM_GETTEXT, 100, reinterpret_cast<LPARAM>(text));
    return win32::fromWide(text);
  }

  static bool isChecked(const Control& control) {
    return SendMessageW(nativeHandle(control), BM_GETCHECK, 0, 0) == BST_CHECKED;
  }

  /// What the windows say must be what the model says, for every control below the container.
  static void compare(const Container& container) {
    for (const Control* child : container.children()) {
      HWND window = nativeHandle(*child);
      EXPECT_EQ(GetParent(window), nativeHandle(container)) << child->text();
      EXPECT_EQ(textOf(*child), child->text());
      EXPECT_EQ(IsWindowEnabled(window) != 0, child->enabled()) << child->text();
      EXPECT_EQ((GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0, child->visible())
          << child->text();
      if (child->kind() == Control::Kind::kFrame) compare(static_cast<const Frame&>(*child));
      if (child->kind() == Control::Kind::kOptionButton) {
        EXPECT_EQ(isChecked(*child), static_cast<const OptionButton*>(child)->selected());
      }
    }
  }

  World world;
  Form form;
};

TEST_F(NativeTruth, BlueOnTheColourOfTitleBarTextCanBeRead) {
  const COLORREF ground = win32::groundColor(colors::kTitleBarText);
  EXPECT_GE(contrastRatio(colors::kBlue, ground), kReadableContrast);
}

TEST_F(NativeTruth, IsToldFromTheFirstMomentAndAfterEveryChange) {
  form.box.setText("before ü");
  form.blue.select();
  form.tick.setChecked(true);
  form.last.setEnabled(false);
  form.outer.setVisible(false);
  form.open([&] {
    compare(form);
    EXPECT_TRUE(isChecked(form.tick));
    EXPECT_EQ(textOf(form), "Form");
    EXPECT_EQ(SendMessageW(nativeHandle(form.shortBox), EM_GETLIMITTEXT, 0, 0), 4);
    form.box.setText("after €");
    form.large.select();
    form.tick.setChecked(false);
    form.inner.setEnabled(false);
    form.outer.setVisible(true);
    form.last.setEnabled(true);
    form.last.setText("Renamed");
    compare(form);
    EXPECT_FALSE(isChecked(form.tick));
    click(form.medium);
    click(form.tick);
    type(form.box, "!");
    compare(form);
    EXPECT_TRUE(isChecked(form.tick));
    // Other programs set marks without a click.
    SendMessageW(nativeHandle(form.tick), BM_SETCHECK, BST_UNCHECKED, 0);
    SendMessageW(nativeHandle(form.small), BM_SETCHECK, BST_CHECKED, 0);
    compare(form);
    EXPECT_FALSE(form.tick.checked());
    EXPECT_TRUE(form.small.selected());
  });
  EXPECT_EQ(nativeHandle(form.box), nullptr) << "gone with the window";
}

}  // namespace
}  // namespace korventally::testing
