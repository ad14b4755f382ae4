#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "platform/win32/ui/system_headers.h"

namespace korventally::driver {

using namespace std::chrono_literals;

/// Looks again and again until something is so; false when the time limit passes first.
bool waitUntil(const std::function<bool()>& isSo, std::chrono::milliseconds limit = 10s);

/// Throws what was expected when something is not so within the time limit.
void expectSoon(const std::function<bool()>& isSo, const std::string& expectation,
                std::chrono::milliseconds limit = 10s);

/// What the mouse and the keyboard themselves send. It arrives wherever Windows takes it: a
/// window that is covered, disabled or without the focus gets nothing.
void clickAt(POINT screen);
void pressKey(WORD key, WORD modifier = 0);
void typeText(const std::wstring& text);

/// Puts text on the clipboard, as "Copy" does in another program.
void copyText(const std::wstring& text);

}  // namespace korventally::driver
