#include <gtest/gtest.h>

#include <algorithm>

#include "tests/platform/contract/form.h"
#include "tests/platform/contract/world.h"
#include "tests/user.h"

namespace korventally::testing {
namespace {

class Controls : public ::testing::Test {
 protected:
  /// Opens the form, forgets what happened up to then, and lets the user do `visit`.
  void visit(const std::function<void()>& doings) {
    form.open([&] {
      form.takeLog();
      doings();
    });
  }

  World world;
  Form form;
};

TEST_F(Controls, AreUsableOnlyIfAllTheirContainersAre) {
  visit([&] {
    for (Control* closed : {static_cast<Control*>(&form.button), static_cast<Control*>(&form.inner),
                            static_cast<Control*>(&form.outer)}) {
      for (const bool hidden : {false, true}) {
        hidden ? closed->setVisible(false) : closed->setEnabled(false);
        EXPECT_FALSE(form.button.usable());
        click(form.button);
        EXPECT_EQ(form.takeLog(), Log{}) << closed->text() << hidden;
        EXPECT_EQ(form.focused(), &form.box);
        hidden ? closed->setVisible(true) : closed->setEnabled(true);
        click(form.button);
        EXPECT_EQ(form.takeLog().back(), "button click") << closed->text() << hidden;
        click(form.box);
        form.takeLog();
      }
    }
  });
}

TEST_F(Controls, KeepAStateOfTheirOwnWhileTheContainerIsClosed) {
  visit([&] {
    form.outer.setEnabled(false);
    form.button.setEnabled(false);
    form.outer.setEnabled(true);
    click(form.button);
    form.button.setEnabled(true);
    EXPECT_EQ(form.takeLog(), Log{});
    click(form.button);
    EXPECT_EQ(form.takeLog(), (Log{"box lost", "button got", "button click"}));
  });
}

TEST_F(Controls, IgnoreAPressThatComesTooLate) {
  visit([&] {
    for (Control* closed : {static_cast<Control*>(&form.outer), static_cast<Control*>(&form.sizes),
                            static_cast<Control*>(&form.tick)}) {
      closed->setEnabled(false);
    }
    form.button.press();
    form.large.press();
    form.tick.press();
    EXPECT_EQ(form.takeLog(), Log{});
    EXPECT_FALSE(form.large.selected() || form.tick.checked());
  });
}

TEST_F(Controls, TellOfLostFocusThenGotFocusThenClick) {
  visit([&] {
    type(form.box, "C:");
    form.box.onLostFocus = [&] {
      form.log.push_back("left");
      form.box.setText(form.box.text() + "\\");
    };
    form.button.onClick = [&] { form.log.push_back(form.box.text()); };
    click(form.button);
    EXPECT_EQ(form.takeLog(), (Log{"left", "button got", "C:\\"}));
    click(form.button);
    EXPECT_EQ(form.takeLog(), Log{"C:\\"}) << "the focus is there already";
    click(form.tick);
    EXPECT_EQ(form.takeLog(), (Log{"button lost", "tick got", "tick click"}));
  });
}

TEST_F(Controls, AreNotClickedWhenLeavingTheOldOneClosesThem) {
  visit([&] {
    form.box.onLostFocus = [&] { form.inner.setEnabled(false); };
    click(form.button);
    const Log log = form.takeLog();
    EXPECT_EQ(std::count(log.begin(), log.end(), "button click"), 0);
  });
}

TEST_F(Controls, RaiseNoEventWhenCodeChangesThem) {
  visit([&] {
    form.box.setText("from code");
    form.box.selectAll();
    form.tick.setChecked(true);
    form.large.select();
    form.button.setText("Renamed");
    form.button.setEnabled(false);
    form.last.setVisible(false);
    EXPECT_EQ(form.takeLog(), Log{});
    EXPECT_EQ(form.box.text(), "from code");
    EXPECT_TRUE(form.tick.checked());
    EXPECT_TRUE(form.large.selected() && !form.small.selected());
  });
}

TEST_F(Controls, OfOneContainerExcludeEachOtherAsOptions) {
  visit([&] {
    click(form.medium);
    EXPECT_TRUE(form.medium.selected());
    EXPECT_FALSE(form.small.selected() || form.large.selected());
    EXPECT_TRUE(form.red.selected()) << "the other frame is a group of its own";
    click(form.blue);
    EXPECT_TRUE(form.blue.selected() && !form.red.selected() && form.medium.selected());
    form.small.select();
    EXPECT_TRUE(form.small.selected() && !form.medium.selected());
  });
}

TEST_F(Controls, MoveTheSelectionOfOptionsByArrowRoundTheEnds) {
  visit([&] {
    click(form.small);
    press(form, Key::kUp);
    press(form, Key::kLeft);
    EXPECT_TRUE(form.medium.selected());
    press(form, Key::kUp);
    EXPECT_TRUE(form.small.selected());
    form.medium.setEnabled(false);
    form.takeLog();
    press(form, Key::kDown);
    EXPECT_EQ(form.takeLog(), (Log{"small lost", "large got", "large click"}));
    EXPECT_TRUE(form.large.selected() && !form.small.selected());
    press(form, Key::kRight);
    EXPECT_TRUE(form.small.selected());
    press(form, Key::kUp);
    EXPECT_TRUE(form.large.selected());
    EXPECT_EQ(form.focused(), &form.large);
    press(form, Key::kLeft);
    EXPECT_TRUE(form.small.selected());
  });
}

TEST_F(Controls, AreTickedByMouseAndKeyboard) {
  visit([&] {
    click(form.tick);
    EXPECT_TRUE(form.tick.checked());
    press(form, Key::kSpace);
    EXPECT_FALSE(form.tick.checked());
    EXPECT_EQ(form.takeLog(), (Log{"box lost", "tick got", "tick click", "tick click"}));
    form.tick.setEnabled(false);
    click(form.tick);
    EXPECT_FALSE(form.tick.checked());
  });
}

TEST_F(Controls, ArePressedByEnterAndSpaceAsButtons) {
  visit([&] {
    click(form.button);
    form.takeLog();
    press(form, Key::kEnter);
    EXPECT_EQ(form.takeLog(), Log{"button click"});
    press(form, Key::kSpace);
    EXPECT_EQ(form.takeLog(), Log{"button click"});
  });
}

TEST_F(Controls, KeepTheirColourAsGiven) {
  visit([&] {
    for (const OleColor color : {colors::kYellow, colors::kDarkYellow, colors::kButtonFace,
                                 colors::kWhite, OleColor{0x00123456}}) {
      for (Control* control :
           {static_cast<Control*>(&form.box), static_cast<Control*>(&form.button)}) {
        control->setBackColor(color);
        control->setEnabled(false);
        EXPECT_EQ(control->backColor(), color);
        control->setEnabled(true);
        EXPECT_EQ(control->backColor(), color);
      }
    }
  });
  EXPECT_EQ(form.box.backColor(), OleColor{0x00123456}) << "also after the window is gone";
}

}  // namespace
}  // namespace korventally::testing
