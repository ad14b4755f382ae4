#include "engine/fields.h"

#include <algorithm>

namespace korventally::engine {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

void SkipBlanks(std::string_view& text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
}

}  // namespace

Fields Fields::Continuing(std::string_view rest) {
  Fields fields(rest);
  fields.at_start_ = false;
  return fields;
}

bool Fields::Next(std::string_view& field) {
  SkipBlanks(rest_);
  if (rest_.empty()) return false;
  if (!at_start_ && rest_.front() == ',') {
    rest_.remove_prefix(1);
    SkipBlanks(rest_);
  }
  at_start_ = false;
  const auto separates = [](char c) { return IsBlank(c) || c == ','; };
  const auto end = std::ranges::find_if(rest_, separates);
  field = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
  rest_.remove_prefix(field.size());
  return true;
}

bool IsBlank(std::string_view line) {
  SkipBlanks(line);
  return line.empty();
}

}  // namespace korventally::engine
