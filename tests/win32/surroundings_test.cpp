#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/later.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/native_lookup.h"
#include "tests/platform/contract/form.h"
#include "tests/platform/contract/world.h"

namespace korventally::testing {
namespace {

using win32::nativeHandle;

SIZE outerSize(const Control& control) {
  RECT area;
  GetWindowRect(nativeHandle(control), &area);
  return {area.right - area.left, area.bottom - area.top};
}

/// What the system does to the windows that do not belong to it.
class Surroundings : public ::testing::Test {
 protected:
  void moveToScreenOf(int dpi) {
    const RECT suggested{10, 20, 30, 40};
    SendMessageW(nativeHandle(form), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                 reinterpret_cast<LPARAM>(&suggested));
  }

  World world;
  Form form;
};

TEST_F(Surroundings, ScreensOfOtherResolutionsScaleEverything) {
  form.open([&] {
    for (const int dpi : {144, 192, 120, 96}) {
      SCOPED_TRACE(dpi);
      moveToScreenOf(dpi);
      EXPECT_EQ(outerSize(form.box).cx, 200 * dpi / 96);
      EXPECT_EQ(outerSize(form.last).cy, MulDiv(25, dpi, 96));
      RECT client;
      GetClientRect(nativeHandle(form), &client);
      EXPECT_EQ(client.right, 600 * dpi / 96);
      LOGFONTW font{};
      GetObjectW(reinterpret_cast<HFONT>(SendMessageW(nativeHandle(form.box), WM_GETFONT, 0, 0)),
                 sizeof font, &font);
      EXPECT_EQ(font.lfHeight, -MulDiv(static_cast<int>(form.box.font().points * 100), dpi, 7200));
    }
  });
}

TEST_F(Surroundings, TextStandsInTheMiddleOfItsBox) {
  form.open([&] {
    moveToScreenOf(192);
    HWND box = nativeHandle(form.box);
    RECT outer;
    RECT inner;
    GetWindowRect(box, &outer);
    GetClientRect(box, &inner);
    MapWindowPoints(box, nullptr, reinterpret_cast<POINT*>(&inner), 2);
    EXPECT_GT(inner.top - outer.top, 4);
    EXPECT_NEAR(inner.top - outer.top, outer.bottom - inner.bottom, 1);
    // What lies above the text takes the mouse like the text.
    const LPARAM above = MAKELPARAM(inner.left + 5, inner.top - 1);
    EXPECT_EQ(SendMessageW(box, WM_NCHITTEST, 0, above), HTCLIENT);
  });
}

TEST_F(Surroundings, TheFocusAndTheWheelScrollAWindowThatIsTooLarge) {
  form.open([&] {
    moveToScreenOf(400);
    const auto place = [](const Control& control) {
      RECT area;
      GetWindowRect(nativeHandle(control), &area);
      return area;
    };
    for (Control* control : std::initializer_list<Control*>{&form.last, &form.box}) {
      form.setFocus(*control);
      RECT view;
      GetClientRect(nativeHandle(form), &view);
      MapWindowPoints(nativeHandle(form), nullptr, reinterpret_cast<POINT*>(&view), 2);
      RECT seen;
      const RECT whole = place(*control);
      IntersectRect(&seen, &view, &whole);
      EXPECT_TRUE(EqualRect(&seen, &whole)) << control->text();
    }
    const LONG before = place(form.box).top;
    SendMessageW(nativeHandle(form), WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
    EXPECT_LT(place(form.box).top, before);
  });
}

/// Taller than any screen here, with nothing to go to but a button at its end.
class TallWindow : public Window {
 public:
  TallWindow() : Window("Tall", {6000, 45000}) { setTabOrder({&cmdOK}); }
  Button cmdOK{*this, {0, 44000, 1215, 375}, "OK"};
};

TEST_F(Surroundings, ATallWindowOpensAtItsBeginningAndScrollsByKeys) {
  TallWindow tall;
  runLater("visit", 0, [&] {
    HWND window = nativeHandle(tall);
    const auto placeAfter = [&](WPARAM key) {
      PostMessageW(nativeHandle(tall.cmdOK), WM_KEYDOWN, key, 1);
      processPendingEvents();
      return GetScrollPos(window, SB_VERT);
    };
    EXPECT_EQ(GetScrollPos(window, SB_VERT), 0);
    const int paged = placeAfter(VK_NEXT);
    EXPECT_GT(paged, 0);
    EXPECT_LT(placeAfter(VK_PRIOR), paged);
    const int end = placeAfter(VK_END);
    EXPECT_LT(placeAfter(VK_UP), end);
    EXPECT_EQ(placeAfter(VK_HOME), 0);
    tall.unload();
  });
  tall.show();
}

/// Helps after five seconds, if what is tested has not ended by then.
class Rescue {
 public:
  explicit Rescue(std::function<void()> help)
      : thread_([help = std::move(help)](const std::stop_token& stop) {
          std::mutex mutex;
          std::unique_lock lock(mutex);
          std::condition_variable_any ended;
          ended.wait_for(lock, stop, std::chrono::seconds(5), [] { return false; });
          if (!stop.stop_requested()) help();
        }) {}

 private:
  std::jthread thread_;
};

TEST_F(Surroundings, AnotherProgramCanCloseAWindowThatWaits) {
  std::atomic<bool> rescued = false;
  const Rescue rescue([&, thread = GetCurrentThreadId()] {
    rescued = true;
    PostThreadMessageW(thread, WM_NULL, 0, 0);
  });
  std::jthread other;
  runLater("visit", 0, [&] {
    other = std::jthread([window = nativeHandle(form)] {
      Sleep(100);  // until the window has nothing left to do
      SendMessageW(window, WM_CLOSE, 0, 0);
    });
  });
  form.show();
  EXPECT_FALSE(rescued);
}

TEST_F(Surroundings, WhatIsDueIsDoneWhileAMessageBoxIsOpen) {
  const Rescue rescue([] { PostMessageW(FindWindowW(nullptr, L"Still open"), WM_CLOSE, 0, 0); });
  bool done = false;
  bool openThen = false;
  runLater("later", 100, [&] {
    done = true;
    HWND box = FindWindowW(nullptr, L"Still open");
    openThen = box != nullptr;
    PostMessageW(box, WM_CLOSE, 0, 0);
  });
  messageBox(nullptr, "Text", "Still open");
  EXPECT_TRUE(done);
  EXPECT_TRUE(openThen);
}

TEST_F(Surroundings, TheEndOfTheSessionIsHeardWithoutAWindow) {
  form.open([] {});
  bool hurried = false;
  runLater("left to do", 3000, [&] { hurried = timeIsUp(); });
  runLater("log off", 0, [] {
    const auto end = [](HWND window, LPARAM) -> BOOL {
      EXPECT_TRUE(SendMessageW(window, WM_QUERYENDSESSION, 0, 0));
      SendMessageW(window, WM_ENDSESSION, TRUE, 0);
      return TRUE;
    };
    EnumThreadWindows(GetCurrentThreadId(), end, 0);
  });
  finishLater();
  EXPECT_TRUE(hurried);
}

}  // namespace
}  // namespace korventally::testing
