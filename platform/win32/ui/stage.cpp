#include "platform/win32/ui/stage.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "platform/control.h"
#include "platform/font.h"
#include "platform/geometry.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/gdi.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/theme.h"

namespace korventally::win32 {
namespace {

constexpr int kPointsPerInch = 72;

GdiObject<HFONT> createFont(const Font& font, int dpi) {
  LOGFONTW wanted{};
  wanted.lfHeight = static_cast<LONG>(-std::lround(font.points * dpi / kPointsPerInch));
  wanted.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  wanted.lfUnderline = font.underlined;
  wanted.lfCharSet = std::string_view(font.face) == "Symbol" ? SYMBOL_CHARSET : DEFAULT_CHARSET;
  wanted.lfQuality = DEFAULT_QUALITY;
  lstrcpynW(wanted.lfFaceName, toWide(font.face).c_str(), LF_FACESIZE);
  return GdiObject<HFONT>(CreateFontIndirectW(&wanted));
}

}  // namespace

void Stage::setDpi(int dpi) {
  if (dpi == dpi_) return;
  dpi_ = dpi;
  fonts_.clear();
  forgetTheme();
}

int Stage::fromTwips(int twips) const { return MulDiv(twips, dpi_, kTwipsPerInch); }

HFONT Stage::font(const Font& font) {
  const auto known = std::find_if(fonts_.begin(), fonts_.end(),
                                  [&](const auto& entry) { return entry.first == font; });
  if (known != fonts_.end()) return known->second.get();
  fonts_.emplace_back(font, createFont(font, dpi_));
  return fonts_.back().second.get();
}

void Stage::soil(const Control& control) {
  if (soiled_.empty()) PostMessageW(window_, kPaintSoiled, 0, 0);
  soiled_.insert(&control);
}

const ButtonTheme& Stage::buttonTheme() {
  if (!theme_) theme_.emplace(dpi_);
  return *theme_;
}

}  // namespace korventally::win32
