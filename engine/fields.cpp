#include "engine/fields.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace korventally::engine {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }

void skipBlanks(std::string_view& text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
}

}  // namespace

Fields Fields::continuing(std::string_view rest) {
  Fields fields(rest);
  fields.atStart_ = false;
  return fields;
}

bool Fields::next(std::string_view& field) {
  skipBlanks(rest_);
  if (rest_.empty()) return false;
  if (!atStart_ && rest_.front() == ',') {
    rest_.remove_prefix(1);
    skipBlanks(rest_);
  }
  atStart_ = false;
  const auto separates = [](char c) { return isBlank(c) || c == ','; };
  const auto end = std::ranges::find_if(rest_, separates);
  field = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
  rest_.remove_prefix(field.size());
  return true;
}

bool isBlank(std::string_view line) {
  skipBlanks(line);
  return line.empty();
}

}  // namespace korventally::engine
