#include "platform/picture_box.h"

#include <memory>

#include "platform/win32/ui/gdi.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/painted_control.h"
#include "platform/win32/ui/resource_ids.h"

namespace korventally::win32 {
namespace {

constexpr int kIconSide = 48;

struct BitmapPicture {
  int id;
  SIZE size;  ///< pixels at 96 dpi
};

BitmapPicture bitmapOf(Picture picture) {
  if (picture == Picture::kAboutBanner) return {KORVENTALLY_ABOUT_BANNER, {125, 45}};
  return {KORVENTALLY_LOGO, {54, 24}};
}

/// Of the sizes stored, the one drawn for this resolution or the next finer one.
int sizeFor(int dpi) {
  if (dpi <= 96) return 0;
  return dpi <= 144 ? 1 : 2;
}

RECT centred(const RECT& area, SIZE size) {
  const LONG left = (area.right - size.cx) / 2;
  const LONG top = (area.bottom - size.cy) / 2;
  return {left, top, left + size.cx, top + size.cy};
}

void stretch(HDC dc, const RECT& place, HBITMAP bitmap) {
  BITMAP source{};
  GetObjectW(bitmap, sizeof source, &source);
  HDC memory = CreateCompatibleDC(dc);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  SetStretchBltMode(dc, HALFTONE);
  SetBrushOrgEx(dc, 0, 0, nullptr);
  StretchBlt(dc, place.left, place.top, place.right - place.left, place.bottom - place.top, memory,
             0, 0, source.bmWidth, source.bmHeight, SRCCOPY);
  SelectObject(memory, before);
  DeleteDC(memory);
}

class NativePictureBox : public PaintedControl {
 public:
  NativePictureBox(PictureBox& model, const Site& site)
      : PaintedControl(model, site, L"STATIC", SS_SIMPLE), picture_(model.picture()) {}

 protected:
  void paint(HDC dc, const RECT& area) override {
    paintGround(dc, area);
    if (picture_ == Picture::kIcon48) {
      paintIcon(dc, area);
    } else {
      paintBitmap(dc, area, bitmapOf(picture_));
    }
  }

 private:
  void paintIcon(HDC dc, const RECT& area) {
    const int side = stage().scaled(kIconSide);
    const auto icon = static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr),
                                                    MAKEINTRESOURCEW(KORVENTALLY_PROGRAM_ICON),
                                                    IMAGE_ICON, side, side, LR_DEFAULTCOLOR));
    if (icon == nullptr) return;
    const RECT place = centred(area, {side, side});
    DrawIconEx(dc, place.left, place.top, icon, side, side, 0, nullptr, DI_NORMAL);
    DestroyIcon(icon);
  }

  void paintBitmap(HDC dc, const RECT& area, const BitmapPicture& picture) {
    const int id = picture.id + sizeFor(stage().dpi());
    const GdiObject<HBITMAP> bitmap(static_cast<HBITMAP>(LoadImageW(
        GetModuleHandleW(nullptr), MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    if (!bitmap) return;
    const SIZE size{stage().scaled(picture.size.cx), stage().scaled(picture.size.cy)};
    stretch(dc, centred(area, size), bitmap.get());
  }

  Picture picture_;
};

}  // namespace

std::unique_ptr<NativeControl> makePictureBox(PictureBox& model, const Site& site) {
  return std::make_unique<NativePictureBox>(model, site);
}

}  // namespace korventally::win32
