#include "tests/faults/session.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/control.h"
#include "platform/dialogs.h"
#include "platform/headless/desktop.h"
#include "platform/headless/world.h"
#include "platform/later.h"
#include "platform/menu.h"
#include "platform/text_box.h"
#include "platform/window.h"
#include "run/frmRunSummary.h"
#include "tests/faults/plan.h"
#include "tests/faults/watch.h"
#include "tests/study.h"
#include "tests/user.h"
#include "wizard/program.h"

namespace korventally::testing {
namespace {

/// What one read of a file takes.
constexpr std::uint32_t kRead = 12;
/// When the user, with nothing more to do, closes window after window; when nobody waits any more.
constexpr std::uint32_t kFirstClose = 200, kBetweenCloses = 500, kMostCloses = 400;

class Session {
 public:
  explicit Session(const Plan& plan);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  Outcome run();

 private:
  void lookOn();
  void actLater();
  void act(const Action& action);
  void actOn(Window& window, const Action& action);
  void mayRun(Control* control, const std::function<void()>& press);
  void endSession();
  void forgetDialogs();
  void closeNext();
  Answer answer(const std::string& text, Buttons buttons);

  const Plan& plan_;
  Outcome outcome_;
  const std::function<void(const std::string&)> onFailure_ = Desktop::onFailure;
  Study study_;
  Desktop& desktop_ = study_.desktop;
  std::unique_ptr<Watch> watch_;
  std::size_t nextAction_ = 0, nextAnswer_ = 0;
  std::uint32_t closes_ = 0;
  int shownMessages_ = 0;
  bool over_ = false;
};

Session::Session(const Plan& plan) : plan_(plan) {
  Desktop::onFailure = [this](const std::string& what) { outcome_.violations.push_back(what); };
  desktop_.putFile(kStudy + "notes.txt", "the user's");
  if (plan.surroundings) plan.surroundings(desktop_);
  watch_ = std::make_unique<Watch>(desktop_, outcome_.violations);
  desktop_.setEngine([this, script = desktop_.world().script](Desktop::Engine& engine) {
    watch_->engineStarts(engine);
    script(engine);
  });
  desktop_.answerMessages(
      [this](const std::string& text, Buttons buttons) { return answer(text, buttons); });
  desktop_.beforeEach(Desktop::Operation::kRead,
                      [this] { desktop_.setTicks(desktop_.now() + kRead); });
  for (const PlannedFault& fault : plan.faults) {
    desktop_.failCall(fault.operation, fault.nth, fault.error, fault.fromThenOn);
    if (fault.operation == Desktop::Operation::kLook) watch_->sawNothing();
  }
}

Session::~Session() {
  over_ = true;
  Window::unloadAll();
  forgetLater();
  forgetDialogs();
  Desktop::onFailure = onFailure_;
}

Outcome Session::run() {
  lookOn();
  actLater();
  try {
    runProgram(plan_.arguments);
    if (!over_) watch_->end();
  } catch (const std::exception& thrown) {
    outcome_.violations.emplace_back(thrown.what());
  }
  for (const auto operation :
       {Desktop::Operation::kDelete, Desktop::Operation::kWrite, Desktop::Operation::kOpen,
        Desktop::Operation::kRead, Desktop::Operation::kHold, Desktop::Operation::kStart,
        Desktop::Operation::kLook}) {
    outcome_.calls[operation] = desktop_.calls(operation);
  }
  outcome_.messages = watch_->messages();
  outcome_.completed = watch_->completed();
  return std::move(outcome_);
}

void Session::lookOn() {
  desktop_.at(Desktop::kYieldStep, [this] {
    watch_->look();
    lookOn();
  });
}

/// The next doing is planned before this one happens: it may come while this one lasts.
void Session::actLater() {
  if (over_) return;
  if (nextAction_ == plan_.actions.size()) {
    desktop_.at(closes_ == 0 ? kFirstClose : kBetweenCloses, [this] { closeNext(); });
    return;
  }
  const Action& action = plan_.actions[nextAction_++];
  desktop_.at(action.after, [this, &action] {
    actLater();
    act(action);
  });
}

void Session::act(const Action& action) {
  if (over_ || Window::openWindows().empty()) return;
  if (action.kind == Action::Kind::kEndSession) return endSession();
  // A message stands before all windows.
  if (shownMessages_ > 0) return;
  // Whichever dialog it opens, it is answered so.
  const std::string chosen = action.kind == Action::Kind::kClick ? action.text : "";
  desktop_.expectOpenFile(chosen);
  desktop_.expectBrowser(chosen);
  actOn(*Window::openWindows().back(), action);
  forgetDialogs();
}

void Session::forgetDialogs() {
  desktop_.world().openFiles.clear();
  desktop_.world().browsers.clear();
}

std::vector<Control*> usableControls(Window& window, const std::string& name) {
  std::vector<Control*> found;
  for (Control* control : window.tabOrder()) {
    const bool named = control->text() == name || control->accessibleName() == name;
    const bool box = name == "*" && control->kind() == Control::Kind::kCheckBox;
    if (control->usable() && (named || box)) found.push_back(control);
  }
  return found;
}

void Session::actOn(Window& window, const Action& action) {
  using enum Action::Kind;
  if (action.kind == kClose) {
    watch_->interrupted();
    return clickCloseBox(window);
  }
  if (action.kind == kKey) {
    const auto key = static_cast<Key>(std::stoi(action.text));
    const bool presses = key == Key::kEnter || key == Key::kSpace;
    return mayRun(presses ? window.focused() : nullptr, [&] { press(window, key); });
  }
  if (action.kind == kMenu) {
    for (const Menu& menu : window.menus()) {
      for (const MenuEntry* entry : menu.entries) {
        if (entry->text == action.where) entry->onClick();
      }
    }
    return;
  }
  const std::vector<Control*> controls = usableControls(window, action.where);
  if (controls.empty()) return;
  Control& control = *controls.front();
  const bool box = control.kind() == Control::Kind::kTextBox;
  if (action.kind == kClick) {
    if (action.where == "Cancel" || action.where == "Back") watch_->interrupted();
    return mayRun(&control, [&] { click(control); });
  }
  if (action.kind == kDrop) return drop(control, {action.text});
  if (box && action.kind == kPaste) paste(static_cast<TextBox&>(control), action.text);
  if (box && action.kind == kType) type(static_cast<TextBox&>(control), action.text);
}

/// Presses a control, which may be the one that runs the engine.
void Session::mayRun(Control* control, const std::function<void()>& press) {
  auto* const summary = dynamic_cast<frmRunSummary*>(Window::openWindows().back());
  if (summary == nullptr || control != &summary->cmdRUN) return press();
  watch_->runPressed();
  press();
  watch_->runReturned(*summary);
}

/// Once the windows have heard of it, the process is gone; what stays now, stays.
void Session::endSession() {
  watch_->interrupted();
  hurryLater();
  const std::vector<Window*> open = Window::openWindows();
  for (Window* each : open) each->sessionEnds();
  // Nobody can be told any more of what could not be deleted.
  if (plan_.faults.empty()) watch_->end();
  over_ = true;
  Window::unloadAll();
}

void Session::closeNext() {
  if (over_) return;
  if (++closes_ > kMostCloses) {
    outcome_.violations.push_back("a window stays open: " + Window::openWindows().back()->text());
    over_ = true;
    return Window::unloadAll();
  }
  actLater();
  if (Window::openWindows().empty() || shownMessages_ > 0) return;
  watch_->interrupted();
  clickCloseBox(*Window::openWindows().back());
}

Answer Session::answer(const std::string& text, Buttons buttons) {
  const std::size_t at = std::min(nextAnswer_, plan_.answers.size() - 1);
  const bool question = buttons == Buttons::kYesNo;
  const bool yes = question && plan_.answers[at] == 'Y';
  if (question) ++nextAnswer_;
  watch_->messageShown(text, question, yes);
  if (question && !yes) watch_->interrupted();
  // Time passes, and what does not need the windows goes on.
  ++shownMessages_;
  desktop_.advance(50);
  --shownMessages_;
  if (!question) return Answer::kOk;
  return yes ? Answer::kYes : Answer::kNo;
}

}  // namespace

Outcome play(const Plan& plan) { return Session(plan).run(); }

}  // namespace korventally::testing
