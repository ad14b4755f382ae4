// A file that the engine writes beside its list file, as a service and not as the result: whatever
// goes wrong with it is a sentence for the warnings, and no run fails because of it.
//
// Its first bytes mark it as the engine's own, so that a later run replaces it and nothing else.
// While it grows it begins with other bytes of the same length: a file that is cut short, by a kill
// or a power cut, can be told from a whole one.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "engine/system_files.h"

namespace korventally::engine {

struct Mark {
  std::string_view whole;       ///< how the file begins once everything is on the disk
  std::string_view unfinished;  ///< as many bytes that stand there until then
  std::string_view rest;        ///< what follows in both cases
};

class SideFile {
 public:
  /// Deletes the file of an earlier run at once, so that none is left should this run fail. A file
  /// of that name that is not the engine's own stays as it is, and so does one with a `role` in the
  /// case, such as "the control file".
  SideFile(const std::string& pathText, const std::string& role, const Mark& mark);
  SideFile(const SideFile&) = delete;
  SideFile& operator=(const SideFile&) = delete;

  /// Deletes what was written unless keep() was called.
  ~SideFile();

  /// Creates the file with its mark and this text. This and the calls below do nothing when there
  /// is a problem already.
  void begin(std::string_view text);
  /// Adds the text, at once or together with what follows.
  void add(std::string_view text);
  /// Puts everything on the disk and then says so in the mark.
  void finish();
  /// The run has its verdict: the file stays.
  void keep() { keep_ = true; }

  /// Does work for the file that may run out of memory; that is a problem like any other.
  void attempt(const std::function<void()>& work);

  const std::string& name() const { return name_; }
  /// Why there is no file; empty when there is one.
  const std::string& problem() const { return problem_; }

 private:
  void write();
  void discard() noexcept;

  std::string name_;
  NativePath path_;
  Mark mark_;
  std::string problem_;
  std::optional<OutputFile> file_;
  std::string pending_;  ///< text that is not in the file yet
  bool keep_ = false;
};

}  // namespace korventally::engine
