#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "platform/headless/batch_process.h"
#include "platform/headless/clock.h"
#include "platform/headless/desktop.h"
#include "platform/headless/faults.h"
#include "platform/headless/file_system.h"
#include "platform/process.h"

namespace korventally {

namespace headless {

struct ExpectedMessage {
  std::string text;
  std::string title;
  Answer answer;
  std::function<void()> meanwhile;
};

struct ExpectedFile {
  std::string path;
  std::function<void(const CommonDialog&)> look;
};

struct ExpectedFolder {
  std::string path;
  std::function<void(const Desktop::Browser&)> look;
};

/// A window that is on the screen.
struct ShownWindow {
  Window* window;
  Window* owner;
  std::function<void(Window&)> visit;  ///< none when the user has been there
};

}  // namespace headless

/// What the simulated desktop is made of; the platform's functions work on it.
struct Desktop::World {
  headless::Clock clock;
  headless::FileSystem files;
  headless::Faults faults;
  std::string installation;

  std::deque<headless::ExpectedMessage> messages;
  Desktop::Answerer answerer;
  std::deque<headless::ExpectedFile> openFiles;
  std::deque<headless::ExpectedFolder> browsers;
  std::deque<std::function<void(Window&)>> visits;
  std::vector<headless::ShownWindow> shown;
  std::vector<std::string> announcements;

  EngineScript script;
  std::vector<std::shared_ptr<headless::BatchProcess>> processes;
  std::vector<std::string> notepad;
  std::vector<WindowStyle> styles;
  int enginesStarted = 0;
  int lowPriorities = 0;
};

}  // namespace korventally
