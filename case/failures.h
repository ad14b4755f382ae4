#pragma once

#include <functional>
#include <stop_token>
#include <string>

#include "platform/result.h"

namespace korventally {

class Window;

/// Tries an operation again for about 1.5 s while another program keeps the file busy, as a virus
/// scanner does with a new one, or its folder is out of reach, as on a network that stumbles.
/// Events are handled in between; a request to `stop` ends the trying.
Status retryWhileBusy(const std::function<Status()>& operation, const std::stop_token& stop = {});

/// Deletes one of the program's own files, with retries. One that is gone already is as good.
Status removeOwnFile(const std::string& path, const std::stop_token& stop = {});

/// Success only when it is certain that nothing stands under a name, not even a folder or a hidden
/// file.
Status nothingAt(const std::string& path);

/// Windows' reason with its number.
std::string reasonOf(const Error& error);

/// Says in a message box, as long as there is time for one, what failed, on which file,
/// Windows' reason and what to do about it.
void showFailure(Window* owner, const std::string& what, const Error& error,
                 const std::string& advice);

}  // namespace korventally
