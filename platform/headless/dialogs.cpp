#include "platform/dialogs.h"

#include <string>
#include <utility>

#include "platform/headless/world.h"

namespace korventally {
namespace {

Answer answerOfWhoCloses(Buttons buttons) {
  return buttons == Buttons::kOk ? Answer::kOk : Answer::kNo;
}

std::string shown(const std::string& text, const std::string& title) {
  return "\"" + title + "\": \"" + text + "\"";
}

}  // namespace

Answer messageBox(Window* /*owner*/, const std::string& text, const std::string& title,
                  Buttons buttons) {
  auto& expected = Desktop::current().world().messages;
  const auto& answerer = Desktop::current().world().answerer;
  if (expected.empty() && answerer) return answerer(text, buttons);
  if (expected.empty()) {
    Desktop::onFailure("a message that nobody expected, " + shown(text, title));
    return answerOfWhoCloses(buttons);
  }
  const headless::ExpectedMessage message = std::move(expected.front());
  expected.pop_front();
  if (message.text != text || message.title != title) {
    Desktop::onFailure("another message than expected, " + shown(text, title) + " instead of " +
                       shown(message.text, message.title));
    return answerOfWhoCloses(buttons);
  }
  if ((message.answer == Answer::kOk) != (buttons == Buttons::kOk)) {
    Desktop::onFailure("the message has no such button, " + shown(text, title));
    return answerOfWhoCloses(buttons);
  }
  if (message.meanwhile) message.meanwhile();
  return message.answer;
}

void CommonDialog::ShowOpen() {
  auto& expected = Desktop::current().world().openFiles;
  if (expected.empty()) return Desktop::onFailure("an open-file dialog that nobody expected");
  const headless::ExpectedFile file = std::move(expected.front());
  expected.pop_front();
  if (file.look) file.look(*this);
  if (!file.path.empty()) FileName = file.path;
}

}  // namespace korventally
