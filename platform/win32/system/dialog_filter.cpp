#include "platform/win32/system/dialog_filter.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace korventally::win32 {
namespace {

std::wstring trimmedPattern(const std::wstring& piece) {
  const std::size_t first = piece.find_first_not_of(L' ');
  const std::size_t last = piece.find_last_not_of(L" ;");
  if (first == std::wstring::npos || last == std::wstring::npos) return {};
  return piece.substr(first, last + 1 - first);
}

}  // namespace

std::wstring dialogFilter(const std::wstring& pieces) {
  std::wstring list;
  bool isPattern = false;
  for (std::size_t start = 0; start <= pieces.size(); isPattern = !isPattern) {
    const std::size_t end = std::min(pieces.find(L'|', start), pieces.size());
    const std::wstring piece = pieces.substr(start, end - start);
    list += (isPattern ? trimmedPattern(piece) : piece) + L'\0';
    start = end + 1;
  }
  return list + L'\0';
}

}  // namespace korventally::win32
