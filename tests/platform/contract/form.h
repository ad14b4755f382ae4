#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/button.h"
#include "platform/check_box.h"
#include "platform/frame.h"
#include "platform/label.h"
#include "platform/later.h"
#include "platform/option_button.h"
#include "platform/text_box.h"
#include "platform/window.h"

namespace korventally::testing {

/// A window with a control of each kind that a user can use. It writes down every event.
class Form : public Window {
 public:
  explicit Form(std::string caption = "Form") : Window(std::move(caption), {9000, 6000}) {
    setTabOrder({&box, &shortBox, &button, &small, &medium, &large, &red, &blue, &tick, &last});
    follow(box, "box");
    follow(shortBox, "shortBox");
    follow(button, "button");
    follow(small, "small");
    follow(large, "large");
    follow(red, "red");
    follow(blue, "blue");
    follow(tick, "tick");
    follow(last, "last");
  }

  bool closesOnEscape() const override { return escapeCloses; }

  /// Shows the form; the user does `visit` in it, and then it is closed.
  void open(const std::function<void()>& visit, Window* owner = nullptr) {
    runLater("visit of " + text(), 0, [this, visit] {
      visit();
      unload();
    });
    show(owner);
  }

  /// What has been written down since the last call.
  std::vector<std::string> takeLog() { return std::exchange(log, {}); }

  TextBox box{*this, {120, 120, 3000, 315}};
  TextBox shortBox{*this, {120, 600, 3000, 315}, "", 4};
  Frame outer{*this, {120, 1200, 4000, 2000}, "Outer"};
  Frame inner{outer, {120, 300, 3600, 1500}, "Inner"};
  Button button{inner, {120, 300, 1200, 375}, "Button"};
  Frame sizes{*this, {4500, 120, 2000, 1500}, "Sizes"};
  OptionButton small{sizes, {120, 300, 1500, 255}, "Small", true};
  OptionButton medium{sizes, {120, 600, 1500, 255}, "Medium"};
  OptionButton large{sizes, {120, 900, 1500, 255}, "Large"};
  Frame colors{*this, {4500, 1800, 2000, 1200}, "Colours"};
  OptionButton red{colors, {120, 300, 1500, 255}, "Red", true};
  OptionButton blue{colors, {120, 600, 1500, 255}, "Blue"};
  CheckBox tick{*this, {4500, 3300, 1500, 255}, "Tick"};
  Button last{*this, {4500, 3900, 1200, 375}, "Last"};

  using Window::setTakesFiles;

  bool escapeCloses = false;
  bool refusesToClose = false;
  std::function<void()> whenClosed;
  std::function<void()> whenShown;
  std::vector<std::string> log;

 protected:
  void Form_Load() override { log.push_back("load"); }
  void shown() override {
    if (whenShown) whenShown();
  }
  void filesDropped(const std::vector<std::string>& paths) override {
    for (const std::string& path : paths) log.push_back("dropped " + path);
  }
  bool queryUnload() override {
    log.push_back("query");
    return !refusesToClose;
  }
  void Form_Unload() override {
    log.push_back("unload");
    if (whenClosed) whenClosed();
  }

 private:
  void follow(Control& control, const std::string& name) {
    control.onClick = [this, name] { log.push_back(name + " click"); };
    control.onGotFocus = [this, name] { log.push_back(name + " got"); };
    control.onLostFocus = [this, name] { log.push_back(name + " lost"); };
  }
};

using Log = std::vector<std::string>;

}  // namespace korventally::testing
