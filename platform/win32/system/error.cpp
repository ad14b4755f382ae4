#include "platform/win32/system/error.h"

#include <iterator>
#include <string>

#include "platform/result.h"
#include "platform/win32/system/path.h"
#include "platform/win32/system/text.h"

namespace korventally::win32 {
namespace {

constexpr DWORD kDeletePending = 303;  // ERROR_DELETE_PENDING, missing from older headers

/// "Access denied" is said of what will stay so, and also of a file that is on its way out because
/// somebody deleted it while somebody else has it open. Attributes tell the two apart.
bool isLastingDenial(const std::string& path) {
  constexpr DWORD kProtected = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY |
                               FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
  const DWORD attributes = GetFileAttributesW(nativePath(path).c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES) return (attributes & kProtected) != 0;
  return GetLastError() == ERROR_FILE_NOT_FOUND;  // it is the folder that takes no new file
}

ErrorKind kindOf(DWORD code, const std::string& path) {
  switch (code) {
    case ERROR_FILE_NOT_FOUND:
      return ErrorKind::kNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_NOT_READY:
    case ERROR_REM_NOT_LIST:
    case ERROR_BAD_NETPATH:
    case ERROR_DEV_NOT_EXIST:
    case ERROR_UNEXP_NET_ERR:
    case ERROR_NETNAME_DELETED:
    case ERROR_BAD_NET_NAME:
    case ERROR_SEM_TIMEOUT:
    case ERROR_DEVICE_NOT_CONNECTED:
    case ERROR_CONNECTION_UNAVAIL:
    case ERROR_NETWORK_UNREACHABLE:
    case ERROR_HOST_UNREACHABLE:
    case ERROR_CONNECTION_ABORTED:
      return ErrorKind::kOutOfReach;
    case ERROR_FILE_EXISTS:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case kDeletePending:
      return ErrorKind::kBusy;
    case ERROR_ACCESS_DENIED:
      return isLastingDenial(path) ? ErrorKind::kOther : ErrorKind::kBusy;
    default:
      return ErrorKind::kOther;
  }
}

/// Windows' own sentence in the user's language, on one line.
std::string sentenceOf(DWORD code) {
  wchar_t buffer[1024];
  constexpr DWORD kFlags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS |
                           FORMAT_MESSAGE_MAX_WIDTH_MASK;  // no line breaks inside
  const DWORD length = FormatMessageW(kFlags, nullptr, code, 0, buffer,
                                      static_cast<DWORD>(std::size(buffer)), nullptr);
  std::wstring text(buffer, length);
  text.erase(text.find_last_not_of(L" \r\n\t") + 1);
  return text.empty() ? "The system gave no reason." : fromWide(text);
}

}  // namespace

Error systemError(DWORD code, const std::string& path) {
  return {kindOf(code, path), static_cast<long>(code), sentenceOf(code), fullPath(path)};
}

Error lastError(const std::string& path) { return systemError(GetLastError(), path); }

}  // namespace korventally::win32
