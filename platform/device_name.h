#pragma once

#include <string_view>

namespace korventally {

/// Whether some Windows takes a file of that name, without its folder, for a device: "NUL",
/// "com1.lst". Windows 11 has given most of these names free, earlier ones keep them in any folder.
bool isDeviceName(std::string_view name);

}  // namespace korventally
