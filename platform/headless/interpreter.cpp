#include "platform/headless/interpreter.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/headless/path.h"

namespace korventally::headless {
namespace {

constexpr std::string_view kDelimiters = " \t;,=\v\f";

bool isDelimiter(char c) { return kDelimiters.find(c) != std::string_view::npos; }

/// Takes lines whose percent signs are expanded, character by character.
class Splitter {
 public:
  explicit Splitter(const Surroundings& surroundings) : surroundings_(surroundings) {}

  void takeLine(std::string_view line) {
    ignored_ = false;
    for (const char c : line) {
      if (c != '\r' && !ignored_ && !failed_) take(c);
    }
    if (escaped_) return;  // a caret at its end: the next line goes on with this one
    quoted_ = false;
    endCommand();
  }

  std::optional<std::vector<Command>> commands() {
    endCommand();
    const bool complete = !failed_ && blocks_ == 0;
    return complete ? std::optional(std::move(commands_)) : std::nullopt;
  }

 private:
  void take(char c) {
    if (std::exchange(escaped_, false)) return add(c);
    if (c == '"') quoted_ = !quoted_;
    if (quoted_ || c == '"') return add(c);
    const bool begins = text_.empty() && target_ == Target::kNone;
    if (c == '^') {
      escaped_ = true;
    } else if (c == '<' || c == '>') {
      redirect();
    } else if (c == '&' && target_ == Target::kAwaited) {
      target_ = Target::kBegun;  // ">&1"
    } else if (c == '&' || c == '|') {
      endCommand();
    } else if (begins && (c == '@' || isDelimiter(c))) {
      // passed over
    } else if (begins && c == ':') {
      ignored_ = true;  // a label
    } else if (begins && c == '(') {
      ++blocks_;
    } else if (c == ')' && (begins || blocks_ > 0)) {
      endBlock();
    } else {
      add(c);
    }
  }

  void add(char c) {
    const bool separates = !quoted_ && isDelimiter(c);
    if (target_ == Target::kAwaited && !separates) target_ = Target::kBegun;
    if (target_ == Target::kBegun && separates) target_ = Target::kNone;
    if (target_ == Target::kNone) addToCommand(c);
  }

  void addToCommand(char c) {
    text_ += c;
    if (!quoted_ && isDelimiter(c)) ignored_ = firstWord() == "rem";
  }

  /// The number of a handle belongs to the sign, the file or handle behind it is no argument.
  void redirect() {
    const std::size_t size = text_.size();
    const bool handle =
        size > 1 && isDelimiter(text_[size - 2]) && text_.back() >= '0' && text_.back() <= '9';
    if (handle) text_.pop_back();
    redirected_ = true;
    target_ = Target::kAwaited;
  }

  std::string firstWord() const {
    const auto end = std::find_if(text_.begin(), text_.end(), isDelimiter);
    return foldCase(std::string(text_.begin(), end));
  }

  void endBlock() {
    endCommand();
    ignored_ = blocks_ == 0;
    if (blocks_ > 0) --blocks_;
  }

  void endCommand() {
    const std::string first = firstWord();
    failed_ = failed_ || first == "for" || first == "if";
    if (surroundings_.delayedExpansion) expandExclamationMarks();
    std::vector<std::string> words = argumentsOf(text_);
    if (!words.empty() && first != "rem") commands_.push_back({std::move(words), redirected_});
    text_.clear();
    redirected_ = false;
    target_ = Target::kNone;
  }

  /// Carets count once more in a command that has such a mark, also in quotes.
  void expandExclamationMarks() {
    if (text_.find('!') == std::string::npos) return;
    std::string all;
    for (std::size_t i = 0; i < text_.size(); ++i) {
      if (text_[i] == '^' && i + 1 < text_.size()) {
        all += text_[++i];
      } else if (text_[i] != '!') {
        all += text_[i];
      } else if (const std::size_t end = text_.find('!', i + 1); end != std::string::npos) {
        const std::string name = text_.substr(i + 1, end - i - 1);
        const auto value = surroundings_.variable ? surroundings_.variable(name) : std::nullopt;
        all += value.value_or("");
        i = end;
      }
    }
    text_ = all;
  }

  const Surroundings& surroundings_;
  std::vector<Command> commands_;
  std::string text_;  // of the command, without its carets
  enum class Target { kNone, kAwaited, kBegun } target_ = Target::kNone;  // of a redirection
  bool quoted_ = false;
  bool escaped_ = false;
  bool ignored_ = false;  // the rest of the line
  bool redirected_ = false;
  bool failed_ = false;
  int blocks_ = 0;
};

}  // namespace

std::optional<std::vector<Command>> readBatchFile(std::string_view text,
                                                  const Surroundings& surroundings) {
  if (text.find('\0') != std::string_view::npos) return std::nullopt;
  Splitter splitter(surroundings);
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\n\x1A"), text.size());
    const auto line = expandPercents(text.substr(0, end), surroundings);
    if (!line) return std::nullopt;
    splitter.takeLine(*line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return splitter.commands();
}

// Backslashes count only in front of a quote, where two stand for one and an odd one for the quote;
// in the program's name they are never special.
std::vector<std::string> argumentsOf(std::string_view commandLine) {
  std::vector<std::string> words;
  bool quoted = false, inWord = false;
  std::size_t backslashes = 0;  // right before the next character
  for (const char c : commandLine) {
    const bool separates = !quoted && (c == ' ' || c == '\t');
    if (!separates && !inWord) {
      words.emplace_back();
      backslashes = 0;
    }
    inWord = !separates;
    if (separates) continue;
    std::string& word = words.back();
    const std::size_t escapes = words.size() == 1 ? 0 : std::exchange(backslashes, 0);
    if (c == '\\') backslashes = escapes + 1;
    if (c != '"') {
      word += c;
      continue;
    }
    word.erase(word.size() - (escapes + 1) / 2);
    if (escapes % 2 == 1) word += c;
    if (escapes % 2 == 0) quoted = !quoted;
  }
  return words;
}

}  // namespace korventally::headless
