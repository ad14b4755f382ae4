#include "driver/input.h"

#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace korventally::driver {
namespace {

constexpr auto kPause = 10ms;

INPUT mouse(DWORD flags, LONG x = 0, LONG y = 0) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = x;
  input.mi.dy = y;
  input.mi.dwFlags = flags;
  return input;
}

INPUT key(WORD code, wchar_t character, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = code;
  input.ki.wScan = character != 0 ? character : static_cast<WORD>(MapVirtualKeyW(code, 0));
  input.ki.dwFlags = flags;
  return input;
}

void send(std::vector<INPUT> inputs) {
  const auto count = static_cast<UINT>(inputs.size());
  if (SendInput(count, inputs.data(), sizeof(INPUT)) != count) {
    throw std::runtime_error("the system took no input");
  }
}

/// The mouse moves in 65536ths of the screen; this is the middle of a pixel.
LONG share(LONG pixel, int size) { return (2 * pixel + 1) * 32768 / size; }

/// Whether it is so, and stays so for as long as the display may take to report what it knows.
bool staysSo(const std::function<bool()>& isSo) {
  constexpr int kLooks = 6;
  for (int look = 0; look < kLooks; ++look) {
    if (!isSo()) return false;
    Sleep(kPause.count());
  }
  return true;
}

/// Sends the input, again if need be, until the display no longer takes it back.
void sendUntil(const std::function<bool()>& isSo, const INPUT& input,
               const std::string& expectation) {
  const auto lasts = [&] {
    if (staysSo(isSo)) return true;
    send({input});
    return staysSo(isSo);
  };
  expectSoon(lasts, expectation);
}

/// The display moves its own pointer after Windows', and its reports of that can put the mouse
/// back for a moment. Once it has stayed where it is, all of them have arrived.
bool restsAt(POINT place) {
  POINT now;
  return GetCursorPos(&now) && now.x == place.x && now.y == place.y;
}

/// The display knows nothing of keys that were never pressed on it, and says so whenever a window
/// comes beneath the mouse: a modifier is up again then, and the key after it comes alone.
bool isHeld(WORD modifier) { return GetAsyncKeyState(modifier) < 0; }

}  // namespace

bool waitUntil(const std::function<bool()>& isSo, std::chrono::milliseconds limit) {
  const auto end = std::chrono::steady_clock::now() + limit;
  while (!isSo()) {
    if (std::chrono::steady_clock::now() > end) return false;
    Sleep(kPause.count());
  }
  return true;
}

void expectSoon(const std::function<bool()>& isSo, const std::string& expectation,
                std::chrono::milliseconds limit) {
  if (!waitUntil(isSo, limit)) throw std::runtime_error("waited in vain: " + expectation);
}

void clickAt(POINT screen) {
  const LONG x = share(screen.x, GetSystemMetrics(SM_CXSCREEN));
  const LONG y = share(screen.y, GetSystemMetrics(SM_CYSCREEN));
  sendUntil([&] { return restsAt(screen); }, mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, x, y),
            "the mouse rests where it clicks");
  send({mouse(MOUSEEVENTF_LEFTDOWN), mouse(MOUSEEVENTF_LEFTUP)});
}

void pressKey(WORD code, WORD modifier) {
  std::vector<INPUT> inputs{key(code, 0, 0), key(code, 0, KEYEVENTF_KEYUP)};
  if (modifier != 0) {
    const INPUT release = key(modifier, 0, KEYEVENTF_KEYUP);
    try {
      sendUntil([&] { return isHeld(modifier); }, key(modifier, 0, 0), "the modifier is held");
    } catch (...) {
      send({release});
      throw;
    }
    inputs.push_back(release);
  }
  send(inputs);
}

void typeText(const std::wstring& text) {
  std::vector<INPUT> inputs;
  for (const wchar_t character : text) {
    inputs.push_back(key(0, character, KEYEVENTF_UNICODE));
    inputs.push_back(key(0, character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP));
  }
  if (!inputs.empty()) send(inputs);
}

void copyText(const std::wstring& text) {
  HGLOBAL memory = GlobalAlloc(GHND, (text.size() + 1) * sizeof(wchar_t));
  text.copy(static_cast<wchar_t*>(GlobalLock(memory)), text.size());
  GlobalUnlock(memory);
  expectSoon([] { return OpenClipboard(nullptr) != 0; }, "the clipboard can be opened");
  EmptyClipboard();
  SetClipboardData(CF_UNICODETEXT, memory);
  CloseClipboard();
}

}  // namespace korventally::driver
