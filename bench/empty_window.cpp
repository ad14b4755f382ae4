// The least that a program with a window can be: what the wizard's start is held against.
#include <windows.h>

namespace {

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, first, second);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE program, HINSTANCE, PWSTR, int show) {
  WNDCLASSW type{};
  type.lpfnWndProc = onMessage;
  type.hInstance = program;
  type.lpszClassName = L"Empty";
  type.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
  RegisterClassW(&type);
  HWND window = CreateWindowW(L"Empty", L"Empty", WS_OVERLAPPEDWINDOW, 0, 0, 900, 700, nullptr,
                              nullptr, program, nullptr);
  ShowWindow(window, show);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}
