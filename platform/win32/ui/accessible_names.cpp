#include "platform/win32/ui/accessible_names.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "platform/win32/system/ole.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/system_headers.h"

namespace korventally::win32 {
namespace {

constexpr MSAAPROPID kLiveSettingProperty{
    0xc12bcd8e, 0x2a8e, 0x4950, {0x8a, 0xe7, 0x36, 0x25, 0x11, 0x1d, 0x58, 0xeb}};
constexpr LONG kAssertive = 2;
constexpr DWORD kLiveRegionChanged = 0x8019;
constexpr DWORD kClient = static_cast<DWORD>(OBJID_CLIENT);

}  // namespace

AccessibleNames::~AccessibleNames() {
  clear();
  if (services_ != nullptr) services_->Release();
}

IAccPropServices* AccessibleNames::services() {
  if (std::exchange(asked_, true)) return services_;
  useOle();
  CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                   reinterpret_cast<void**>(&services_));
  return services_;
}

void AccessibleNames::add(HWND control, const std::string& name) {
  if (!name.empty()) untold_.emplace_back(control, name);
}

void AccessibleNames::tell() {
  if (untold_.empty() || services() == nullptr) return;
  for (const auto& [control, name] : std::exchange(untold_, {})) {
    services_->SetHwndPropStr(control, kClient, CHILDID_SELF, PROPID_ACC_NAME,
                              toWide(name).c_str());
    named_.push_back(control);
  }
}

void AccessibleNames::announce(HWND control) {
  if (services() != nullptr) {
    VARIANT live;
    live.vt = VT_I4;
    live.lVal = kAssertive;
    services_->SetHwndProp(control, kClient, CHILDID_SELF, kLiveSettingProperty, live);
    if (std::find(named_.begin(), named_.end(), control) == named_.end()) named_.push_back(control);
  }
  NotifyWinEvent(kLiveRegionChanged, control, OBJID_CLIENT, CHILDID_SELF);
  NotifyWinEvent(EVENT_SYSTEM_ALERT, control, OBJID_CLIENT, CHILDID_SELF);
}

void AccessibleNames::clear() {
  const MSAAPROPID properties[]{PROPID_ACC_NAME, kLiveSettingProperty};
  for (HWND control : std::exchange(named_, {})) {
    services_->ClearHwndProps(control, kClient, CHILDID_SELF, properties,
                              static_cast<int>(std::size(properties)));
  }
}

}  // namespace korventally::win32
