#include "driver/walk.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

#include "driver/forms.h"
#include "driver/input.h"
#include "driver/program.h"

namespace korventally::driver {
namespace {

/// What a user does in a form, by one of two means.
class Hand {
 public:
  explicit Hand(const Form& itsForm) : form(itsForm) {}
  virtual ~Hand() = default;
  virtual void press(std::string_view button) const = 0;
  virtual void choose(std::string_view from, std::string_view option) const = 0;
  virtual void fill(std::string_view box, const std::wstring& text) const = 0;

  const Form form;
};

class Mouse : public Hand {
 public:
  using Hand::Hand;
  void press(std::string_view button) const override { form.click(button); }
  void choose(std::string_view /*from*/, std::string_view option) const override {
    form.click(option);
    expectSoon([&] { return form.checked(option); }, std::string(option) + " is selected");
  }
  void fill(std::string_view box, const std::wstring& text) const override {
    form.enter(box, text);
  }
};

class Keyboard : public Hand {
 public:
  using Hand::Hand;
  void press(std::string_view button) const override {
    form.tabTo(button);
    pressKey(VK_SPACE);
  }
  void choose(std::string_view from, std::string_view option) const override {
    form.tabTo(from);
    HWND last = nullptr;
    while (!form.checked(option) && focusIn(form.window()) != last) {
      last = focusIn(form.window());
      pressKey(VK_DOWN);
      waitUntil([&] { return focusIn(form.window()) != last; }, 2s);
    }
    expectSoon([&] { return form.checked(option); }, std::string(option) + " is selected");
  }
  void fill(std::string_view box, const std::wstring& text) const override {
    form.tabTo(box);
    form.retype(box, text);
  }
};

void chooseAnalysis(const Hand& hand, const Study& study) {
  hand.choose("optClassI", "optClassII");
  hand.press("cmdNextArrow1");
  hand.choose("optNAAQS", "optPSD");
  hand.press("cmdNextArrow2");
  hand.press("cmdNextArrow3");
  hand.choose("opt3hr", "opt24hr");
  hand.fill("txtNumOfOthers", std::to_wstring(study.concFiles.size() - 2));
}

void fillGroups(const Hand& hand, const Study& study, const Observer& observe) {
  for (std::size_t group = 0; group < study.concFiles.size(); ++group) {
    if (!study.opened) hand.fill("txtConcFile", study.workDir + study.concFiles[group]);
    const std::wstring page = hand.form.text("frameSourceGroupInfo");
    observe(3, fs::path(page + L" " + study.concFiles[group]).string());
    if (group + 1 == study.concFiles.size()) return;
    hand.press("cmdNextGroup");
    expectSoon([&] { return hand.form.text("frameSourceGroupInfo") != page; }, "the next page");
  }
}

void fillProcessing(const Hand& hand, const Study& study) {
  if (study.opened) return;
  hand.fill("txtReceptorDATFile", study.workDir + study.receptors);
  hand.choose("optReceptor_TOLVREN", "optReceptor_Generic");
  hand.fill("txtYear", study.year);
  hand.fill("txtMonth", study.month);
  hand.fill("txtDay", study.day);
  hand.fill("txtHour", study.hour);
  hand.fill("txtRunLength", study.hours);
}

/// "NEXT" has opened a step once its frame can be used.
void next(const Hand& hand, std::string_view button, std::string_view frame) {
  hand.press(button);
  expectSoon([&] { return hand.form.usable(frame); }, std::string(frame) + " opens");
}

void walk(const Program& program, const Hand& hand, const Study& study, const Observer& observe) {
  if (!study.opened) hand.fill("txtWorkDir", study.workDir);
  observe(1, "working directory " + fs::path(study.workDir).string());
  next(hand, "cmdNext1", "frameAnalysisType");
  chooseAnalysis(hand, study);
  observe(2, "Class II, PSD, SO2, 24 Hour, OTHER groups: " +
                 std::to_string(study.concFiles.size() - 2));
  next(hand, "cmdNext2", "frameSourceGroupInfo");
  fillGroups(hand, study, observe);
  next(hand, "cmdNext3", "frameProcessingInfo");
  fillProcessing(hand, study);
  observe(4, fs::path(study.receptors + L", from " + study.year + L"-" + study.month + L"-" +
                      study.day + L" hour " + study.hour + L", " + study.hours + L" hours")
                 .string());
  next(hand, "cmdNext4", "frameOutputFile");
  observe(5, "list file korventally.lst");
  hand.press("cmdRUN");
  program.summary();
}

}  // namespace

void walkWithMouse(const Program& program, const Study& study, const Observer& observe) {
  walk(program, Mouse(program.wizard()), study, observe);
}

void walkWithKeyboard(const Program& program, const Study& study, const Observer& observe) {
  walk(program, Keyboard(program.wizard()), study, observe);
}

}  // namespace korventally::driver
