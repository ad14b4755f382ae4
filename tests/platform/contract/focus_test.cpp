#include <gtest/gtest.h>

#include "tests/platform/contract/form.h"
#include "tests/platform/contract/world.h"
#include "tests/user.h"

namespace korventally::testing {
namespace {

class Focus : public ::testing::Test {
 protected:
  /// Presses the key until the focus is back where it was; the captions of the controls on the way.
  std::string walk(Key key) {
    std::string way;
    const Control* start = form.focused();
    do {
      press(form, key);
      way += nameOf(form.focused()) + ' ';
    } while (form.focused() != start && way.size() < 200);
    return way;
  }

  std::string nameOf(const Control* control) const {
    if (control == &form.box) return "box";
    if (control == &form.shortBox) return "shortBox";
    return control == nullptr ? "nothing" : control->text();
  }

  World world;
  Form form;
};

TEST_F(Focus, StartsAtTheFirstUsableControl) {
  form.box.setEnabled(false);
  form.open([&] { EXPECT_EQ(form.focused(), &form.shortBox); });
  EXPECT_EQ(form.takeLog(), (Log{"load", "shortBox got", "unload"}));
}

TEST_F(Focus, GoesRoundTheTabOrder) {
  form.open([&] {
    EXPECT_EQ(walk(Key::kTab), "shortBox Button Small Red Tick Last box ");
    EXPECT_EQ(walk(Key::kShiftTab), "Last Tick Red Small Button shortBox box ");
    form.large.select();
    form.last.setVisible(false);
    form.outer.setEnabled(false);
    form.shortBox.setEnabled(false);
    EXPECT_EQ(walk(Key::kTab), "Large Red Tick box ");
    EXPECT_EQ(walk(Key::kShiftTab), "Tick Red Large box ");
    form.large.setEnabled(false);
    EXPECT_EQ(walk(Key::kTab), "Small Red Tick box ") << "a usable one stands for the group";
  });
}

TEST_F(Focus, ByTabTellsBothControls) {
  form.open([&] {
    form.takeLog();
    press(form, Key::kTab);
    EXPECT_EQ(form.takeLog(), (Log{"box lost", "shortBox got"}));
    form.setFocus(form.last);
    EXPECT_EQ(form.takeLog(), (Log{"shortBox lost", "last got"}));
    EXPECT_EQ(form.focused(), &form.last);
  });
}

TEST_F(Focus, CannotBeSentToAControlOutOfUse) {
  form.open([&] {
    form.takeLog();
    form.inner.setEnabled(false);
    form.setFocus(form.button);
    EXPECT_EQ(form.focused(), &form.box);
    EXPECT_EQ(form.takeLog(), Log{});
  });
}

TEST_F(Focus, MovesOnWhenAHandlerClosesItsOwnControl) {
  form.open([&] {
    form.button.onClick = [&] { form.outer.setEnabled(false); };
    click(form.button);
    EXPECT_EQ(nameOf(form.focused()), "Small");
    press(form, Key::kTab);
    EXPECT_EQ(nameOf(form.focused()), "Red") << "the keyboard works on";
    form.last.onClick = [&] { form.last.setVisible(false); };
    click(form.last);
    EXPECT_EQ(nameOf(form.focused()), "box");
    type(form.box, "typed");
    EXPECT_EQ(form.box.text(), "typed");
  });
}

TEST_F(Focus, StaysWhereCodeClosesAndOpensTheControl) {
  form.open([&] {
    click(form.shortBox);
    form.takeLog();
    form.shortBox.setEnabled(false);
    form.shortBox.setEnabled(true);
    press(form, Key::kSpace);
    EXPECT_EQ(form.shortBox.text(), " ");
    EXPECT_EQ(form.takeLog(), Log{});
  });
}

TEST_F(Focus, CanBeTakenBackByTheHandlerOfAnotherControl) {
  form.open([&] {
    form.last.onClick = [&] { form.setFocus(form.shortBox); };
    click(form.last);
    EXPECT_EQ(form.focused(), &form.shortBox);
    EXPECT_EQ(form.takeLog(),
              (Log{"load", "box got", "box lost", "last got", "last lost", "shortBox got"}));
  });
}

}  // namespace
}  // namespace korventally::testing
