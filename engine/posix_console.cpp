#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/console.h"

namespace korventally::engine {
namespace {

std::intptr_t ifOpen(int descriptor) { return ::fcntl(descriptor, F_GETFD) >= 0 ? descriptor : -1; }

void write(std::intptr_t descriptor, std::string_view text) {
  while (descriptor >= 0 && !text.empty()) {
    const ssize_t written = ::write(static_cast<int>(descriptor), text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

}  // namespace

Console::Console() : output_(ifOpen(STDOUT_FILENO)), error_(ifOpen(STDERR_FILENO)) {
  // A reader that went away must not end the run.
  ::signal(SIGPIPE, SIG_IGN);
}

void Console::say(const std::string& line) const { write(output_, line + "\n"); }

void Console::sayInPassing(const std::string& line) const {
  if (output_ >= 0 && ::isatty(static_cast<int>(output_)) != 0) say(line);
}

void Console::complain(const std::string& line) const { write(error_, line + "\n"); }

}  // namespace korventally::engine
