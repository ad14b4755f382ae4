#include "engine/native_path.h"

#include <cstddef>

namespace korventally::engine {
namespace {

using Letter = NativePath::Letter;

#ifdef _WIN32
constexpr Letter kSeparator = L'\\';
constexpr Letter kSeparators[] = L"\\/";
constexpr Letter kFolderEnds[] = L"\\/:";
#else
constexpr Letter kSeparator = '/';
constexpr Letter kSeparators[] = "/";
constexpr Letter kFolderEnds[] = "/";
#endif

}  // namespace

std::size_t NativePath::folderEnd() const {
  const std::size_t last = text_.find_last_of(kFolderEnds);
  return last == Text::npos ? 0 : last + 1;
}

NativePath NativePath::asName() const {
  const std::size_t last = text_.find_last_not_of(kSeparators);
  if (last == Text::npos || last + 1 == text_.size()) return *this;
  // "C:" would be the current folder of that drive.
  const bool isRoot = text_.find_last_of(kFolderEnds, last) == last;
  return text_.substr(0, last + (isRoot ? 2 : 1));
}

NativePath operator/(const NativePath& folder, const NativePath& name) {
  NativePath path = folder;
  if (path.folderEnd() != path.text_.size()) path.text_ += kSeparator;
  path.text_ += name.text_;
  return path;
}

}  // namespace korventally::engine
