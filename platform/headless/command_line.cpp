#include "platform/headless/command_line.h"

#include <cctype>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korventally::headless {
namespace {

/// No variable is defined and no argument given, so whatever a single percent sign starts vanishes.
std::string expandPercent(std::string_view line) {
  std::string text;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] != '%') {
      text += line[i];
      continue;
    }
    const char next = i + 1 < line.size() ? line[i + 1] : '\0';
    if (next == '%') text += '%';
    const bool pair = next == '%' || next == '*' || std::isdigit(static_cast<unsigned char>(next));
    const std::size_t end = pair ? i + 1 : line.find('%', i + 1);
    if (end != std::string_view::npos) i = end;
  }
  return text;
}

/// Collects words into commands.
class Commands {
 public:
  void add(char c) { word_ += c; }
  void endWord() {
    if (!word_.empty()) words_.push_back(word_);
    word_.clear();
  }
  void endCommand() {
    endWord();
    if (!words_.empty()) commands_.push_back(words_);
    words_.clear();
  }
  const std::vector<std::vector<std::string>>& all() const { return commands_; }

 private:
  std::string word_;
  std::vector<std::string> words_;
  std::vector<std::vector<std::string>> commands_;
};

}  // namespace

std::optional<std::vector<std::vector<std::string>>> readCommandLine(std::string_view line) {
  Commands commands;
  bool quoted = false;
  for (const char c : expandPercent(line)) {
    if (c == '"') {
      quoted = !quoted;
    } else if (quoted) {
      commands.add(c);
    } else if (std::string_view("|<>()^@").find(c) != std::string_view::npos) {
      return std::nullopt;
    } else if (c == '&') {
      commands.endCommand();
    } else if (c == ' ') {
      commands.endWord();
    } else {
      commands.add(c);
    }
  }
  if (quoted) return std::nullopt;
  commands.endCommand();
  return commands.all();
}

}  // namespace korventally::headless
