#include "engine/import/options.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "engine/fault.h"
#include "engine/import/file_names.h"
#include "engine/import/model_value.h"
#include "engine/system_files.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

using Set = void (*)(ImportOptions&, const NativePath&);

struct Option {
  std::string_view name;
  Set set;
};

template <typename Choice>
Choice choose(const char* option, const NativePath& value, std::string_view first, Choice one,
              std::string_view second, Choice other) {
  const std::string text = textFromPath(value);
  if (text == first) return one;
  if (text == second) return other;
  throw Fault(std::string(option) + " takes " + std::string(first) + " or " + std::string(second) +
              ", not " + inQuotes(text) + ".");
}

void setOnly(ImportOptions& options, const NativePath& value) {
  const std::string text = textFromPath(value);
  for (std::string_view rest = text; !rest.empty();) {
    const std::size_t comma = std::min(rest.find(','), rest.size());
    if (comma > 0) options.only.emplace_back(rest.substr(0, comma));
    rest.remove_prefix(std::min(comma + 1, rest.size()));
  }
}

constexpr std::array kOptions = {
    Option{"--out", [](ImportOptions& o, const NativePath& v) { o.folder = v; }},
    Option{"--all", [](ImportOptions& o, const NativePath& v) { o.all = textFromPath(v); }},
    Option{"--facility",
           [](ImportOptions& o, const NativePath& v) { o.facility = textFromPath(v); }},
    Option{"--only", setOnly},
    Option{"--unit",
           [](ImportOptions& o, const NativePath& v) {
             o.unit =
                 choose("--unit", v, "ug/m3", ValueUnit::kMicrograms, "g/m3", ValueUnit::kGrams);
           }},
    Option{"--calms", [](ImportOptions& o, const NativePath& v) { o.calms = v; }},
    Option{"--receptors", [](ImportOptions& o, const NativePath& v) { o.receptors = v; }},
    Option{"--zero-hours",
           [](ImportOptions& o, const NativePath& v) {
             o.zeroHours =
                 choose("--zero-hours", v, "calm", ZeroHours::kCalm, "valid", ZeroHours::kValid);
           }},
};

void requireSense(const ImportOptions& options) {
  if (options.files.empty()) throw Fault("No file of a dispersion model is given.");
  if (options.folder.empty()) throw Fault("--out FOLDER is missing: where the results go.");
  if (options.all == options.facility) {
    throw Fault("--all and --facility name one group, " + inQuotes(options.all) + ".");
  }
  if (options.calms && options.zeroHours != ZeroHours::kJudge) {
    throw Fault("--calms names the calm hours; --zero-hours cannot be given beside it.");
  }
}

}  // namespace

const char* const kImportUsage =
    "korventally import [OPTION]... --out FOLDER FILE...\n"
    "                           makes a case of a dispersion model's hourly files (POSTFILE)\n"
    "  --all NAME               the group of all sources (ALL)\n"
    "  --facility NAME          the group of the facility (FACILITY)\n"
    "  --only NAME,...          takes these groups only\n"
    "  --unit ug/m3|g/m3        what the files hold (ug/m3)\n"
    "  --calms FILE             names the calm hours: the model's message or surface file\n"
    "  --zero-hours calm|valid  what hours of zeros everywhere are, where nothing names them\n"
    "  --receptors FILE         X, Y, ID of the receptors, or a formatted file, for unformatted "
    "ones";

bool ImportOptions::wants(std::string_view group) const {
  return only.empty() || std::ranges::find(only, group) != only.end();
}

ImportOptions parseImportOptions(const std::vector<NativePath>& arguments) {
  ImportOptions options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string word = textFromPath(arguments[i]);
    if (!word.starts_with("--")) {
      std::ranges::copy(filesNamed(arguments[i]), std::back_inserter(options.files));
      continue;
    }
    const auto option = std::ranges::find(kOptions, std::string_view(word), &Option::name);
    if (option == kOptions.end()) throw Fault("There is no option " + inQuotes(word) + ".");
    if (++i == arguments.size()) throw Fault("Nothing follows the option " + word + ".");
    option->set(options, arguments[i]);
  }
  requireSense(options);
  return options;
}

}  // namespace korventally::engine
