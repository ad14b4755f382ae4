#pragma once

namespace korventally::win32 {

/// OLE for the thread of the windows, from the first call until the program ends. Windows' dialogs
/// and the names for screen readers need it; most uses of the program never do, and loading it
/// takes a good part of the start.
void useOle();

}  // namespace korventally::win32
