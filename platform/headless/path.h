#pragma once

#include <string>

#include "platform/result.h"

namespace korventally::headless {

/// A path as Windows resolves it: drive and names, no final backslash ("C:\Study", "C:").
struct FullPath {
  std::string text;
  /// Whether it was given with a final backslash, which can only name a folder.
  bool namesFolder = false;
};

/// Resolves a path against the root of drive C:, the current directory. Blanks and full stops at
/// the end of the last name are dropped, unless the path is literal; wildcards, other characters
/// that no name can hold and devices are an error.
Result<FullPath> resolve(std::string path);

/// The folder that holds a full path; a drive holds itself.
std::string parentOf(const std::string& fullPath);

/// The form in which two names that differ only in case are equal.
std::string foldCase(std::string name);

/// The error of that number, with Windows' sentence.
Error systemError(long code, const std::string& path);

}  // namespace korventally::headless
