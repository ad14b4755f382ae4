#include <gtest/gtest.h>

#include "platform/events.h"
#include "tests/platform/contract/form.h"
#include "tests/platform/contract/world.h"
#include "tests/user.h"

namespace korventally::testing {
namespace {

class Windows : public ::testing::Test {
 protected:
  World world;
  Form form;
  Form second{"Second"};
};

TEST_F(Windows, AskBeforeTheUserClosesThem) {
  form.open([&] {
    form.takeLog();
    form.refusesToClose = true;
    clickCloseBox(form);
    EXPECT_TRUE(form.isOpen());
    EXPECT_EQ(form.takeLog(), Log{"query"});
    type(form.box, "still usable");
    EXPECT_EQ(form.box.text(), "still usable");
    form.takeLog();
    form.refusesToClose = false;
    clickCloseBox(form);
    EXPECT_FALSE(form.isOpen());
    EXPECT_EQ(form.takeLog(), (Log{"query", "unload"}));
  });
  EXPECT_EQ(form.takeLog(), Log{}) << "closed once";
}

TEST_F(Windows, AreOnTheScreenWhenTheyAreToldSo) {
  form.whenShown = [&] {
    EXPECT_EQ(form.takeLog(), (Log{"load", "box got"}));
    EXPECT_TRUE(form.isOpen());
    EXPECT_EQ(form.focused(), &form.box);
  };
  form.open([] {});
  form.whenShown = [&] { form.unload(); };
  form.show();
  EXPECT_EQ(form.takeLog().back(), "unload");
}

TEST_F(Windows, TakeDroppedFilesWhileTheyWantThem) {
  const Log two{"dropped C:\\Grün & Co\\a.inp", "dropped D:\\b"};
  const auto expectDrop = [&](Control& on, const Log& expected) {
    form.takeLog();
    drop(on, {"C:\\Grün & Co\\a.inp", "D:\\b"});
    EXPECT_EQ(form.takeLog(), expected) << on.text();
  };
  form.box.setTakesPath();
  form.open([&] {
    expectDrop(form, {});
    form.setTakesFiles(true);
    for (Control* on : std::initializer_list<Control*>{&form, &form.shortBox, &form.button}) {
      expectDrop(*on, two);
    }
    second.setTakesFiles(true);
    second.open(
        [&] {
          expectDrop(form, {});
          drop(second, {"C:\\a.inp"});
          EXPECT_EQ(second.takeLog().back(), "dropped C:\\a.inp");
        },
        &form);
    form.box.setEnabled(false);
    expectDrop(form.box, two);
    form.setTakesFiles(false);
    expectDrop(form, {});
  });
  EXPECT_EQ(form.box.text(), "");
}

TEST_F(Windows, CloseOnEscapeOnlyIfTheySaySo) {
  form.open([&] {
    form.takeLog();
    press(form, Key::kEscape);
    EXPECT_EQ(form.takeLog(), Log{});
    form.escapeCloses = true;
    form.refusesToClose = true;
    press(form, Key::kEscape);
    EXPECT_EQ(form.takeLog(), Log{"query"});
    form.refusesToClose = false;
    press(form, Key::kEscape);
    EXPECT_FALSE(form.isOpen());
  });
}

TEST_F(Windows, AreClosedByCodeWithoutAQuestion) {
  form.refusesToClose = true;
  form.open([] {});
  EXPECT_EQ(form.takeLog(), (Log{"load", "box got", "unload"}));
}

TEST_F(Windows, LoadAfreshAndKeepTheirControls) {
  form.open([&] {
    type(form.box, "kept");
    click(form.large);
    click(form.last);
    form.last.setEnabled(false);
  });
  form.takeLog();
  form.open([&] {
    EXPECT_EQ(form.takeLog(), (Log{"load", "box got"}));
    EXPECT_EQ(form.box.text(), "kept");
    EXPECT_TRUE(form.large.selected());
    type(form.box, "!");
    EXPECT_EQ(form.box.text(), "kept!");
    form.takeLog();
    click(form.last);
    EXPECT_EQ(form.takeLog(), Log{});
  });
}

TEST_F(Windows, ThatAreModalLockTheirOwnerUntilTheyClose) {
  form.open([&] {
    form.takeLog();
    second.open(
        [&] {
          EXPECT_EQ(Window::openWindows(), (std::vector<Window*>{&form, &second}));
          click(form.last);
          type(form.box, "x");
          clickCloseBox(form);
          EXPECT_EQ(form.takeLog(), Log{});
          EXPECT_EQ(form.box.text(), "");
          click(second.last);
          EXPECT_EQ(second.takeLog().back(), "last click");
        },
        &form);
    EXPECT_EQ(form.takeLog(), Log{}) << "going to another window and back is no change of focus";
    EXPECT_EQ(form.focused(), &form.box);
    press(form, Key::kSpace);
    EXPECT_EQ(form.box.text(), " ") << "the keyboard is back there too";
    click(form.last);
    EXPECT_EQ(form.takeLog().back(), "last click");
  });
}

TEST_F(Windows, CanBeClosedByTheirOwnHandlers) {
  std::string after;
  form.button.onClick = [&] {
    form.unload();
    form.box.setText("after");
    after = form.box.text();
  };
  form.open([&] {
    click(form.button);
    EXPECT_FALSE(form.isOpen());
  });
  EXPECT_EQ(after, "after");
  form.box.onLostFocus = [&] { form.unload(); };
  form.open([&] {
    press(form, Key::kTab);
    EXPECT_FALSE(form.isOpen());
  });
}

TEST_F(Windows, CanBeClosedWhileAHandlerHandlesEvents) {
  form.button.onClick = [&] {
    runLater("close", 0, [&] { clickCloseBox(form); });
    while (form.isOpen()) processPendingEvents();
    form.last.setEnabled(false);
    form.log.push_back("went on");
  };
  form.open([&] {
    click(form.button);
    EXPECT_EQ(form.takeLog().back(), "went on");
  });
  EXPECT_EQ(Window::openWindows(), std::vector<Window*>{});
}

TEST_F(Windows, AreAllClosedFromTheYoungestOn) {
  Log order;
  form.whenClosed = [&] { order.push_back("form"); };
  second.whenClosed = [&] { order.push_back("second"); };
  form.open([&] {
    second.open([&] { Window::unloadAll(); }, &form);
    EXPECT_FALSE(form.isOpen() || second.isOpen());
    order.push_back("the code that showed the second one goes on");
  });
  EXPECT_EQ(order, (Log{"second", "form", "the code that showed the second one goes on"}));
}

}  // namespace
}  // namespace korventally::testing
