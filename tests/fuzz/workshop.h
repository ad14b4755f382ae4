// What the targets share.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace korventally::fuzz {

/// A promise that was broken. No code of the program catches it.
struct Broken : std::logic_error {
  using std::logic_error::logic_error;
};

void require(bool kept, const std::string& promise);

/// Takes the first byte off, as a number from 0 on below `choices`: an input chooses how it is
/// read.
unsigned takeChoice(std::string_view& bytes, unsigned choices);

/// A folder of this process's own, in the system's temporary one; deleted at the end.
const std::filesystem::path& workshop();

/// A file there with these bytes.
std::filesystem::path fileWith(std::string_view bytes, const std::string& name = "input");

/// The number that a text is, as programs in Fortran write it, too ("0.28-103").
double numberIn(std::string text);

}  // namespace korventally::fuzz
