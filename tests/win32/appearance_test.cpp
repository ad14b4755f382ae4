#include <gtest/gtest.h>
#include <windows.h>
// Needs the types of the header above.
#include <commctrl.h>

#include <cstddef>
#include <initializer_list>
#include <vector>

#include "info/frmAboutKORVENTALLY.h"
#include "info/frmKORVENTALLYHelp.h"
#include "platform/events.h"
#include "platform/later.h"
#include "platform/win32/ui/native_lookup.h"
#include "run/frmRunSummary.h"
#include "tests/platform/contract/form.h"
#include "tests/platform/contract/world.h"
#include "wizard/frmKORVENTALLY.h"

namespace korventally::testing {
namespace {

using win32::nativeHandle;

constexpr RECT kTopLeft{0, 0, 0, 0};

/// The colours of a window's contents as they are on the screen.
std::vector<COLORREF> pixelsOf(HWND window) {
  RECT area;
  GetClientRect(window, &area);
  std::vector<COLORREF> pixels(static_cast<std::size_t>(area.right) * area.bottom);
  HDC screen = GetDCEx(window, nullptr, DCX_CACHE);
  HDC memory = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, area.right, area.bottom);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, area.right, area.bottom, screen, 0, 0, SRCCOPY);
  BITMAPINFO format{};
  format.bmiHeader = {
      sizeof(BITMAPINFOHEADER), area.right, area.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  GetDIBits(memory, bitmap, 0, static_cast<UINT>(area.bottom), pixels.data(), &format,
            DIB_RGB_COLORS);
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(window, screen);
  return pixels;
}

/// What is on the screen must be what every control would paint by itself.
void expectPainted(HWND window, const char* when) {
  HideCaret(GetFocus());
  const auto shown = pixelsOf(window);
  RedrawWindow(window, nullptr, nullptr,
               RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
  EXPECT_TRUE(shown == pixelsOf(window)) << when;
}

void turnAll(const Container& container) {
  for (Control* child : container.children()) {
    child->setEnabled(!child->enabled());
    if (child->kind() == Control::Kind::kTextBox) child->setVisible(!child->visible());
    if (child->kind() == Control::Kind::kFrame) turnAll(static_cast<const Frame&>(*child));
  }
}

/// Frames and labels, which lie around and behind others, and what Windows itself prints.
void renameAll(const Container& container) {
  for (Control* child : container.children()) {
    if (child->kind() == Control::Kind::kLabel || child->kind() == Control::Kind::kTextBox) {
      child->setText(child->text() + ".");
    }
    if (child->kind() != Control::Kind::kFrame) continue;
    child->setText(child->text() + ".");
    renameAll(static_cast<const Frame&>(*child));
  }
}

TEST(Appearance, OfAWindowIsThatOfItsControls) {
  World world;
  basModule::analysisCase = AnalysisCase{};
  frmKORVENTALLY wizard;
  frmRunSummary summary;
  frmAboutKORVENTALLY about;
  frmKORVENTALLYHelp help;
  for (Window* window : std::initializer_list<Window*>{&wizard, &summary, &about, &help}) {
    SCOPED_TRACE(window->text());
    runLater("visit", 0, [&] {
      HWND handle = nativeHandle(*window);
      expectPainted(handle, "when it appears");
      turnAll(*window);
      processPendingEvents();
      expectPainted(handle, "when everything has changed");
      renameAll(*window);
      processPendingEvents();
      expectPainted(handle, "when only captions have changed");
      SendMessageW(handle, WM_DPICHANGED, MAKEWPARAM(144, 144),
                   reinterpret_cast<LPARAM>(&kTopLeft));
      turnAll(*window);
      processPendingEvents();
      expectPainted(handle, "at another resolution");
      window->unload();
    });
    window->show();
  }
}

/// Some versions of Windows have a window's edge painted while it is being shown, and only then.
LRESULT CALLBACK paintEdgeNow(HWND box, UINT message, WPARAM first, LPARAM second, UINT_PTR,
                              DWORD_PTR edge) {
  if (message == WM_WINDOWPOSCHANGED) {
    HDC dc = GetWindowDC(box);
    SetPixel(dc, 0, 0, colors::kBlue);
    DefSubclassProc(box, WM_NCPAINT, 1, 0);
    *reinterpret_cast<COLORREF*>(edge) = GetPixel(dc, 0, 0);
    ReleaseDC(box, dc);
  }
  return DefSubclassProc(box, message, first, second);
}

TEST(Appearance, OfATextBoxThatComesBackHasAnEdge) {
  World world;
  Form form;
  form.open([&] {
    HWND box = nativeHandle(form.box);
    COLORREF edge = colors::kBlue;
    form.box.setVisible(false);
    SetWindowSubclass(box, paintEdgeNow, 0, reinterpret_cast<DWORD_PTR>(&edge));
    form.box.setVisible(true);
    EXPECT_NE(edge, COLORREF{colors::kBlue});
    RemoveWindowSubclass(box, paintEdgeNow, 0);
  });
}

std::vector<HWND> tipWindows() {
  std::vector<HWND> found;
  const auto note = [](HWND window, LPARAM list) -> BOOL {
    wchar_t name[32] = L"";
    GetClassNameW(window, name, 32);
    if (lstrcmpW(name, TOOLTIPS_CLASSW) == 0) {
      reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    }
    return TRUE;
  };
  EnumThreadWindows(GetCurrentThreadId(), note, reinterpret_cast<LPARAM>(&found));
  return found;
}

TEST(Appearance, OfATipNeedsTheMouse) {
  World world;
  Form form;
  form.red.setToolTip("The colour of a warning");
  form.open([&] {
    EXPECT_TRUE(tipWindows().empty());
    for (const Control* under : std::initializer_list<Control*>{&form.blue, &form.red, &form.red}) {
      HWND window = nativeHandle(*under);
      SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                   MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    }
    const std::vector<HWND> tips = tipWindows();
    ASSERT_EQ(tips.size(), 1U);
    EXPECT_EQ(SendMessageW(tips[0], TTM_GETTOOLCOUNT, 0, 0), 1);
  });
}

}  // namespace
}  // namespace korventally::testing
