#include "engine/import/file_names.h"

#include <string_view>
#include <vector>

#include "engine/fault.h"
#include "engine/system_files.h"

namespace korventally::engine {
namespace {

using Letter = NativePath::Letter;
using Letters = std::basic_string_view<Letter>;

constexpr Letter kAny = '*', kOne = '?';

bool isSame(Letter one, Letter other) {
#ifdef _WIN32
  const auto small = [](Letter c) { return c >= 'A' && c <= 'Z' ? Letter(c + 'a' - 'A') : c; };
  return small(one) == small(other);
#else
  return one == other;
#endif
}

bool fits(Letters name, Letters pattern) {
  for (; !pattern.empty() && pattern.front() != kAny; pattern.remove_prefix(1)) {
    if (name.empty()) return false;
    if (pattern.front() != kOne && !isSame(pattern.front(), name.front())) return false;
    name.remove_prefix(1);
  }
  if (pattern.empty()) return name.empty();
  // What the first star stands for, from nothing to all of the rest.
  pattern.remove_prefix(1);
  for (; !name.empty(); name.remove_prefix(1)) {
    if (fits(name, pattern)) return true;
  }
  return fits(name, pattern);
}

}  // namespace

std::vector<NativePath> filesNamed(const NativePath& name) {
  const NativePath pattern = name.filename();
  const Letters letters = pattern.native();
  const bool isPattern = letters.find(kAny) != letters.npos || letters.find(kOne) != letters.npos;
  if (!isPattern || fileExists(name)) return {name};
  std::vector<NativePath> found;
  const NativePath folder = name.folder();
  for (const NativePath& file : filesIn(folder.empty() ? pathFromText(".") : folder)) {
    if (fits(file.native(), letters)) found.push_back(folder / file);
  }
  if (found.empty()) throw Fault("There is no file that fits " + textFromPath(name) + ".");
  return found;
}

}  // namespace korventally::engine
