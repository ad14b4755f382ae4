// Recognises a dispersion model's own output where a file made from it is expected.
#pragma once

#include <string>
#include <string_view>

namespace korventally::engine {

/// True when a file that begins with these bytes is a model's unformatted output: a record with a
/// length, a date and eight bytes for each value.
bool isUnformattedModelFile(std::string_view beginning);

/// Sentences on a file that begins with these bytes and is a model's own, formatted (with or
/// without its header) or not; they name the way in. Empty for all other files. `name` is the
/// file's.
std::string objectionToModelFile(const std::string& name, std::string_view beginning);

}  // namespace korventally::engine
