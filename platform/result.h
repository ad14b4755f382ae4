#pragma once

#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace korventally {

/// What a caller may want to tell apart; everything else is kOther.
enum class ErrorKind {
  kNotFound,    ///< no such file in a folder that is there
  kOutOfReach,  ///< the folder is missing, perhaps for now: its drive or network may come back
  kBusy,        ///< another program holds the file, or has it marked for deletion: worth a retry
  kNotAnsi,     ///< text that Windows' ANSI code page lacks
  kOther,
};

/// Why a system operation failed, and on what.
struct Error {
  ErrorKind kind = ErrorKind::kOther;
  long code = 0;     ///< Windows' own number; 0 when Windows was not asked
  std::string text;  ///< Windows' reason, one sentence
  std::string path;  ///< full path of the file or folder
};

/// A value, or the error that kept it from being made.
template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : content_(std::move(value)) {}
  Result(Error error) : content_(std::move(error)) {}

  bool ok() const { return content_.index() == 0; }
  explicit operator bool() const { return ok(); }
  T& value() & { return std::get<0>(content_); }
  const T& value() const& { return std::get<0>(content_); }
  /// By value, so that nothing refers into a result that is gone.
  T value() && { return std::get<0>(std::move(content_)); }
  const Error& error() const { return std::get<1>(content_); }

 private:
  std::variant<T, Error> content_;
};

/// Success, or why not.
class [[nodiscard]] Status {
 public:
  Status() = default;
  Status(Error error) : error_(std::move(error)) {}

  bool ok() const { return !error_; }
  explicit operator bool() const { return ok(); }
  const Error& error() const { return *error_; }

 private:
  std::optional<Error> error_;
};

}  // namespace korventally
