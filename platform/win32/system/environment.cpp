#include "platform/win32/system/environment.h"

#include <windows.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace korventally::win32 {
namespace {

/// The name of "name=value". The drives' current directories have names that start with "=".
std::wstring_view nameOf(std::wstring_view entry) { return entry.substr(0, entry.find(L'=', 1)); }

int compareNames(std::wstring_view left, std::wstring_view right) {
  const std::wstring_view a = nameOf(left), b = nameOf(right);
  return CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(),
                              static_cast<int>(b.size()), TRUE);
}

std::vector<std::wstring> currentEntries() {
  const std::unique_ptr<wchar_t, decltype(&FreeEnvironmentStringsW)> block(
      GetEnvironmentStringsW(), &FreeEnvironmentStringsW);
  std::vector<std::wstring> entries;
  for (const wchar_t* at = block.get(); at != nullptr && *at != L'\0';) {
    entries.emplace_back(at);
    at += entries.back().size() + 1;
  }
  return entries;
}

}  // namespace

std::wstring environmentWith(const std::vector<Variable>& additions) {
  std::vector<std::wstring> entries = currentEntries();
  for (const auto& [name, value] : additions) {
    std::wstring added = name;
    added.append(L"=").append(value);
    std::erase_if(entries, [&](const std::wstring& entry) {
      return compareNames(entry, added) == CSTR_EQUAL;
    });
    entries.push_back(std::move(added));
  }
  // Windows looks variables up by halving a sorted block.
  std::stable_sort(entries.begin(), entries.end(), [](const auto& left, const auto& right) {
    return compareNames(left, right) == CSTR_LESS_THAN;
  });
  std::wstring block;
  for (const std::wstring& entry : entries) block += entry + L'\0';
  return block + L'\0';
}

}  // namespace korventally::win32
