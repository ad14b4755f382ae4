// The readers of foreign bytes, each behind a function that a fuzzer feeds.
#pragma once

#include <array>
#include <string_view>

namespace korventally::fuzz {

/// Takes any bytes. Throws Broken, or crashes, where the program breaks a promise.
using Run = void (*)(std::string_view bytes);

void configurationFile(std::string_view bytes);
void listFile(std::string_view bytes);
void groupCaption(std::string_view bytes);
void listFileName(std::string_view bytes);
void controlFile(std::string_view bytes);
void receptorFile(std::string_view bytes);
void concentrationFile(std::string_view bytes);
void formattedImport(std::string_view bytes);
void unformattedImport(std::string_view bytes);

struct Target {
  const char* name;
  Run run;
};

/// By the names of their source files and of the folders with their inputs.
inline constexpr std::array kTargets = {Target{"configuration_file", configurationFile},
                                        Target{"list_file", listFile},
                                        Target{"group_caption", groupCaption},
                                        Target{"list_file_name", listFileName},
                                        Target{"control_file", controlFile},
                                        Target{"receptor_file", receptorFile},
                                        Target{"concentration_file", concentrationFile},
                                        Target{"formatted_import", formattedImport},
                                        Target{"unformatted_import", unformattedImport}};

}  // namespace korventally::fuzz
