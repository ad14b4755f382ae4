#pragma once

#include <string>

namespace korventally::win32 {

/// Turns "description|pattern|description|pattern" into the list of the open-file dialog, where
/// each piece ends with a null character. The descriptions stay as they stand; the patterns lose
/// what the dialog would look for in file names: blanks around them and a final ";".
std::wstring dialogFilter(const std::wstring& pieces);

}  // namespace korventally::win32
