#include <gtest/gtest.h>

#include "tests/platform/contract/form.h"
#include "tests/platform/contract/world.h"
#include "tests/user.h"

namespace korventally::testing {
namespace {

class TextBoxes : public ::testing::Test {
 protected:
  void visit(const std::function<void()>& doings) { form.open(doings); }

  World world;
  Form form;
};

TEST_F(TextBoxes, HoldWhatIsTypedAndPasted) {
  visit([&] {
    for (const std::string text : {"C:\\Study", "a & b", "5 € für é", "日本"}) {
      paste(form.box, "");
      type(form.box, text);
      EXPECT_EQ(form.box.text(), text);
      paste(form.box, text + text);
      EXPECT_EQ(form.box.text(), text + text);
    }
    type(form.box, "!");
    EXPECT_EQ(form.box.text(), "日本日本!");
    form.box.setText("code");
    type(form.box, "+");
    press(form, Key::kSpace);
    EXPECT_EQ(form.box.text(), "code+ ");
    press(form, Key::kBackspace);
    press(form, Key::kBackspace);
    EXPECT_EQ(form.box.text(), "code");
  });
  EXPECT_EQ(form.box.text(), "code") << "also after the window is gone";
}

TEST_F(TextBoxes, LimitTheUserAndNotTheCode) {
  visit([&] {
    type(form.shortBox, "123456");
    EXPECT_EQ(form.shortBox.text(), "1234");
    press(form, Key::kBackspace);
    type(form.shortBox, "é9");
    EXPECT_EQ(form.shortBox.text(), "123é");
    paste(form.shortBox, "abcdefgh");
    EXPECT_EQ(form.shortBox.text(), "abcd");
    form.shortBox.setText("from code");
    EXPECT_EQ(form.shortBox.text(), "from code");
    type(form.shortBox, "x");
    EXPECT_EQ(form.shortBox.text(), "from code");
    press(form, Key::kBackspace);
    EXPECT_EQ(form.shortBox.text(), "from cod");
  });
}

TEST_F(TextBoxes, ShowEveryKeystrokeToTheFilterFirst) {
  std::vector<int> seen;
  form.box.onKeyPress = [&](std::int16_t& code) {
    seen.push_back(code);
    if (code == 'b') code = 0;
  };
  visit([&] {
    type(form.box, "abcb");
    EXPECT_EQ(form.box.text(), "ac");
    press(form, Key::kEnter);
    press(form, Key::kBackspace);
    EXPECT_EQ(form.box.text(), "a");
    EXPECT_EQ(seen, (std::vector<int>{'a', 'b', 'c', 'b', 13, 8}));
    seen.clear();
    paste(form.box, "bbb");
    EXPECT_EQ(form.box.text(), "bbb") << "a paste is no keystroke";
  });
}

TEST_F(TextBoxes, CanDiscardBackspaceToo) {
  form.box.onKeyPress = [](std::int16_t& code) { code = 0; };
  visit([&] {
    form.box.setText("kept");
    click(form.box);
    press(form, Key::kBackspace);
    type(form.box, "x");
    EXPECT_EQ(form.box.text(), "kept");
  });
}

TEST_F(TextBoxes, NeverTakeEnterNorASecondLine) {
  visit([&] {
    type(form.box, "a");
    press(form, Key::kEnter);
    type(form.box, "b");
    EXPECT_EQ(form.box.text(), "ab");
    EXPECT_EQ(form.focused(), &form.box);
    paste(form.box, "one\r\ntwo");
    EXPECT_EQ(form.box.text(), "one");
  });
}

TEST_F(TextBoxes, TakeTheQuotesFromAPastedPath) {
  form.shortBox.setTakesPath();
  visit([&] {
    paste(form.box, "\"a b\"");
    EXPECT_EQ(form.box.text(), "\"a b\"");
    form.box.setTakesPath();
    paste(form.box, "\"C:\\My Study\"");
    EXPECT_EQ(form.box.text(), "C:\\My Study");
    paste(form.shortBox, "\"12345\"");
    EXPECT_EQ(form.shortBox.text(), "1234");
  });
}

TEST_F(TextBoxes, TakeADroppedPathWholeAndLeaveAFileToTheWindow) {
  const std::string folder = world.freshFolder();
  world.append(folder + "ä.inp", "");
  const struct {
    bool foldersOnly, windowTakesFiles;
    std::string path;
    bool goesToTheWindow;
  } rows[] = {{false, true, folder + "ä.inp", false},
              {true, true, folder + "ä.inp", true},
              {true, false, folder + "ä.inp", false},
              {true, true, folder, false},
              {true, true, folder + "no.inp", false}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.path);
    Form fresh;
    row.foldersOnly ? fresh.shortBox.setTakesFolder() : fresh.shortBox.setTakesPath();
    fresh.setTakesFiles(row.windowTakesFiles);
    fresh.open([&] {
      fresh.takeLog();
      drop(fresh.shortBox, {row.path, "C:\\second"});
      EXPECT_EQ(fresh.shortBox.text(), row.goesToTheWindow ? "" : row.path);
      EXPECT_EQ(fresh.focused() == &fresh.shortBox, !row.goesToTheWindow);
      EXPECT_EQ(fresh.takeLog().front(),
                row.goesToTheWindow ? "dropped " + row.path : std::string("box lost"));
    });
  }
}

TEST_F(TextBoxes, TakeNothingWhileTheyAreClosed) {
  visit([&] {
    form.box.setText("kept");
    form.box.setEnabled(false);
    type(form.box, "x");
    paste(form.box, "y");
    EXPECT_EQ(form.box.text(), "kept");
  });
}

}  // namespace
}  // namespace korventally::testing
