#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "platform/process.h"
#include "platform/result.h"

namespace korventally {

class Window;

/// The simulated desktop: a world of its own for tests. It has drives with files, a clock that
/// moves only when someone yields, processes that act on that clock, a notepad that remembers what
/// it opened, and dialogs that are answered from a queue. One exists at a time;
/// `platform/headless/` implements the platform on it.
class Desktop {
 public:
  Desktop();
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  static Desktop& current();
  /// Is told everything that went otherwise than the test expects. Tests bind it to their
  /// framework; until then it ends the program.
  static std::function<void(const std::string&)> onFailure;

  // Files: names are compared as Windows does, whatever their case. Contents are exact bytes.
  enum class Attribute { kNormal, kHidden, kSystem, kReadOnly };
  void makeFolder(const std::string& path);
  void putFile(const std::string& path, std::string bytes,
               Attribute attribute = Attribute::kNormal);
  void appendFile(const std::string& path, const std::string& bytes);
  void removeFile(const std::string& path);
  std::optional<std::string> fileBytes(const std::string& path) const;
  /// The names in a folder, sorted; folders end with a backslash.
  std::vector<std::string> list(const std::string& folder) const;
  /// Another program holds the file open and shares nothing, until `milliseconds` have passed.
  void lockFile(const std::string& path, std::uint32_t milliseconds);
  /// The network loses the folder with all that is in it, or has it again. Its server closes what
  /// this program has open there; other programs go on with the files where they are.
  void cutOff(const std::string& folder);
  void reconnect();
  void setInstallationDirectory(std::string path);

  // Faults: the n-th call (from 1) of an operation fails with the error, and with `fromThenOn`
  // every later call too. A look whether something is there sees nothing when it fails.
  enum class Operation { kDelete, kWrite, kOpen, kRead, kHold, kStart, kLook };
  void failCall(Operation operation, int nth, Error error, bool fromThenOn = false);
  int calls(Operation operation) const;
  /// What another program does just before each call of an operation.
  void beforeEach(Operation operation, std::function<void()> action);

  // Time: every yield moves the clock by `kYieldStep` milliseconds.
  static constexpr std::uint32_t kYieldStep = 5;
  std::uint32_t now() const;
  /// Sets the tick counter, for tests of its wrap.
  void setTicks(std::uint32_t ticks);
  /// Something happens `delay` milliseconds from now.
  void at(std::uint32_t delay, std::function<void()> action);
  /// Lets the time pass while events are handled.
  void advance(std::uint32_t milliseconds);

  // Dialogs: answered in the order given. One that nobody expected fails the test (and is answered
  // with OK or No); one expected that never came fails it in the destructor. While a message is
  // shown, `meanwhile` runs first, if given.
  void expectMessage(std::string text, std::string title, Answer answer = Answer::kOk,
                     std::function<void()> meanwhile = {});
  /// Answers every message that was not expected by name.
  using Answerer = std::function<Answer(const std::string& text, Buttons buttons)>;
  void answerMessages(Answerer answerer);
  /// The user picks `path` in the open-file dialog, or cancels it with the empty text. `look`
  /// sees the dialog as it was set up.
  void expectOpenFile(std::string path, std::function<void(const CommonDialog&)> look = {});
  /// The user picks `path` in the folder browser, or cancels it with the empty text. `look` sees
  /// the title, the flags and the folder that the browser's callback preselected.
  struct Browser {
    std::string title;
    unsigned flags = 0;
    bool rootIsDrives = false;
    std::string preselected;
  };
  /// What the user picks for the computer's drives, an item without a path.
  static constexpr const char* kThisComputer = "::";
  void expectBrowser(std::string path, std::function<void(const Browser&)> look = {});
  /// What the user does in the next window that opens, up to closing it. A window left open by
  /// that fails the test and is closed.
  void expectWindow(std::function<void(Window&)> visit);
  /// Whether the user can use the window: it is open, and no modal one stands before it.
  bool takesInput(const Window& window) const;
  /// What was said to assistive programs.
  const std::vector<std::string>& announcements() const;

  // Processes. A batch file is read as the command interpreter reads it; `korventally.exe` runs the
  // scripted engine, `notepad` remembers its file.
  class Engine;
  using EngineScript = std::function<void(Engine&)>;
  /// What the engine does when it starts; the file `korventally.exe` must exist for it to start.
  void setEngine(EngineScript script);
  const std::vector<std::string>& filesInNotepad() const;
  /// How each batch file was started.
  const std::vector<WindowStyle>& startStyles() const;
  int enginesStarted() const;
  bool enginesRunning() const;
  /// Whether the program runs below normal priority now.
  bool belowNormalPriority() const;

  struct World;
  World& world() { return *world_; }

 private:
  std::unique_ptr<World> world_;
};

/// One running engine: a script plans its doings on the desktop's clock, and they end with it.
class Desktop::Engine {
 public:
  virtual ~Engine() = default;
  /// The control file's path as the interpreter passed it, and its bytes at the start.
  virtual const std::string& controlFile() const = 0;
  virtual const std::string& controlBytes() const = 0;
  /// Adds a line to a file (created if need be), `delay` milliseconds after the start.
  virtual void writeLine(std::uint32_t delay, const std::string& path, const std::string& line) = 0;
  /// Does anything else at that time.
  virtual void at(std::uint32_t delay, std::function<void()> action) = 0;
  /// Ends the process at that time; without it the engine runs for ever.
  virtual void end(std::uint32_t delay) = 0;
};

}  // namespace korventally
