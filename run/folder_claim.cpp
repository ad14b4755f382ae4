#include "run/folder_claim.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "case/run_files.h"
#include "platform/files.h"
#include "platform/process.h"
#include "platform/result.h"

namespace korventally {
namespace {

constexpr std::string_view kFirstLine = "KorvenTally is running a case in this directory.\r\n";

/// What a claim can hold at most: nobody has to read a file to its end that is no claim.
Result<std::string> beginningOf(const std::string& path) {
  auto file = openForReading(path);
  if (!file) return file.error();
  std::array<char, 512> buffer;
  const auto count = file.value()->read(buffer);
  if (!count) return count.error();
  return std::string(buffer.data(), count.value());
}

}  // namespace

Result<std::unique_ptr<HeldFile>> claimFolder(const std::string& workDir) {
  const std::string path = workDir + kClaimFile;
  const auto there = beginningOf(path);
  if (!there && there.error().kind != ErrorKind::kNotFound) return there.error();
  // A power cut can leave a claim behind that nobody has, even one without its text.
  if (there && !there.value().empty() && !there.value().starts_with(kFirstLine)) {
    return Error{ErrorKind::kOther, 0, "There is a file of this name that is not KorvenTally's.",
                 path};
  }
  // Not while somebody has it.
  if (there) {
    if (Status deleted = deleteFile(path); !deleted) return deleted.error();
  }
  return holdFile(path, std::string(kFirstLine) + thisProcess() + "\r\n");
}

std::string holderOfClaim(const std::string& workDir) {
  const auto there = beginningOf(workDir + kClaimFile);
  if (!there || !there.value().starts_with(kFirstLine)) return {};
  const std::string rest = there.value().substr(kFirstLine.size());
  return rest.substr(0, rest.find_first_of("\r\n"));
}

}  // namespace korventally
