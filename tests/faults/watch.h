// Looks on while the simulated program runs, and notes what must never be.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/headless/desktop.h"
#include "run/frmRunSummary.h"

namespace korventally::testing {

class Watch {
 public:
  /// Remembers what stands on the desktop now: all of it is the user's.
  Watch(Desktop& desktop, std::vector<std::string>& violations);
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

  /// To be called at every step of the clock.
  void look();
  void engineStarts(const Desktop::Engine& engine);
  void messageShown(const std::string& text, bool question, bool yes);
  /// Around a press of "RUN" on the summary.
  void runPressed();
  void runReturned(const frmRunSummary& summary);
  /// The user has closed a window, stopped a run or ended the session.
  void interrupted() { ++interruptions_; }
  /// The program saw no file where there was one, so that it did not ask about it.
  void sawNothing() { mayOverwrite_ = true; }
  /// Nothing of the program runs any more; what stays must be the user's, or they were told.
  void end();

  const std::vector<std::string>& messages() const { return messages_; }
  int completed() const { return completed_; }

 private:
  struct Pressed {
    std::size_t messages, notepads;
    int interruptions, runs;
    std::uint32_t when;
  };

  void expect(bool holds, const std::string& what);
  void checkVerdict(const frmRunSummary& summary);
  bool wasTold(const std::string& path) const;
  std::map<std::string, std::string> files() const;

  Desktop& desktop_;
  std::vector<std::string>& violations_;
  const std::map<std::string, std::string> before_;
  std::vector<std::string> messages_;
  std::vector<Pressed> pressed_;
  std::string lastStatus_;
  std::uint32_t lastLook_;
  std::optional<std::uint32_t> asked_;  ///< when, whether the run is to go on
  int enginesAtLastRun_ = 0;
  bool engineRunning_ = false, awaited_ = false;
  int interruptions_ = 0;
  int runs_ = 0;
  int completed_ = 0;
  bool mayOverwrite_ = false;
};

}  // namespace korventally::testing
