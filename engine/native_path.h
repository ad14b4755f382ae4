#pragma once

#include <compare>  // IWYU pragma: keep
#include <cstddef>
#include <string>
#include <utility>

namespace korventally::engine {

/// A path in the system's own characters, as it was given. The standard library's own class brings
/// half a megabyte of locales with it, for conversions that are none of use: on Windows they follow
/// the C runtime instead of the code page.
class NativePath {
 public:
#ifdef _WIN32
  using Letter = wchar_t;
#else
  using Letter = char;
#endif
  using Text = std::basic_string<Letter>;

  NativePath() = default;
  NativePath(Text text) : text_(std::move(text)) {}
  NativePath(const Letter* text) : text_(text) {}
  /// From a path of the standard library.
  template <typename Path>
  requires requires(const Path& path) { Text(path.native()); }
  NativePath(const Path& path) : text_(path.native()) {}

  const Text& native() const { return text_; }
  const Letter* c_str() const { return text_.c_str(); }
  bool empty() const { return text_.empty(); }

  /// What follows the last separator, or the drive.
  NativePath filename() const { return text_.substr(folderEnd()); }

  /// All before it, with its separator; empty for a bare name.
  NativePath folder() const { return text_.substr(0, folderEnd()); }

  /// The path without the separators at its end; a root keeps its own.
  NativePath asName() const;

  friend NativePath operator/(const NativePath& folder, const NativePath& name);
  friend auto operator<=>(const NativePath&, const NativePath&) = default;

 private:
  std::size_t folderEnd() const;

  Text text_;
};

}  // namespace korventally::engine
