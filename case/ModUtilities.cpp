#include "case/ModUtilities.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stop_token>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "case/failures.h"
#include "case/run_files.h"
#include "platform/color.h"
#include "platform/control.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/label.h"
#include "platform/later.h"
#include "platform/process.h"
#include "platform/result.h"
#include "platform/text_box.h"

namespace korventally {
namespace {

enum class FieldChange { kEnable, kDisable, kClearHighlight };

/// The colour code of fields: the colour before decides the colour after.
OleColor nextColor(OleColor before, FieldChange change) {
  switch (change) {
    case FieldChange::kEnable:
      return before == colors::kDarkYellow ? colors::kYellow : colors::kWhite;
    case FieldChange::kDisable:
      return before == colors::kYellow ? colors::kDarkYellow : colors::kButtonFace;
    case FieldChange::kClearHighlight:
      return before == colors::kYellow ? colors::kWhite : before;
  }
  return before;
}

constexpr std::uint32_t kEditorBatchLifetime = 5000;

void removeEditorBatch(const std::string& path) {
  if (timeIsUp()) return (void)deleteFile(path);
  const Status removed = removeOwnFile(path);
  if (removed) return;
  const std::vector<Window*>& windows = Window::openWindows();
  showFailure(windows.empty() ? nullptr : windows.back(),
              "A file of the program's own could not be deleted:", removed.error(),
              "Please delete it when no program uses it any more.");
}

bool isPrintable(std::int16_t keyCode) { return keyCode >= 32 && keyCode <= 127; }
bool isDigit(std::int16_t keyCode) { return keyCode >= '0' && keyCode <= '9'; }

}  // namespace

void EnableControl(Control& control) { control.setEnabled(true); }
void DisableControl(Control& control) { control.setEnabled(false); }

void EnableField(TextBox& field) {
  field.setEnabled(true);
  field.setBackColor(nextColor(field.backColor(), FieldChange::kEnable));
}

void DisableField(TextBox& field) {
  field.setEnabled(false);
  field.setBackColor(nextColor(field.backColor(), FieldChange::kDisable));
}

void HighlightField(TextBox& field) { field.setBackColor(colors::kYellow); }

void ClearFieldHighlight(TextBox& field) {
  if (!field.isEmpty()) {
    field.setBackColor(nextColor(field.backColor(), FieldChange::kClearHighlight));
  }
  field.setText(trimBlanks(field.text()));
}

void EnableStep(const ControlGroup& controls, const FieldGroup& fields) {
  for (Control* control : controls) EnableControl(*control);
  for (TextBox* field : fields) EnableField(*field);
}

void DisableStep(const ControlGroup& controls, const FieldGroup& fields) {
  for (Control* control : controls) DisableControl(*control);
  for (TextBox* field : fields) DisableField(*field);
}

void SwitchStep(const ControlGroup& controlsToClose, const FieldGroup& fieldsToClose,
                const ControlGroup& controlsToOpen, const FieldGroup& fieldsToOpen) {
  DisableStep(controlsToClose, fieldsToClose);
  EnableStep(controlsToOpen, fieldsToOpen);
}

void FilterDecimalKey(std::int16_t& keyCode) {
  if (keyCode != '.') FilterDigitKey(keyCode);
}

void FilterDigitKey(std::int16_t& keyCode) {
  if (isPrintable(keyCode) && !isDigit(keyCode)) keyCode = 0;
}

void moveOnAtEnter(Window& window, std::int16_t& keyCode) {
  constexpr std::int16_t kEnter = 13;
  if (keyCode != kEnter) return;
  window.moveFocus();
  keyCode = 0;
}

void WaitMilliseconds(std::int16_t duration, const std::stop_token& stop) {
  if (duration <= 0) return;
  const std::uint32_t start = tickCount();
  // Unsigned: the difference stays right when the tick counter wraps during the wait.
  while (!timeIsUp() && !stop.stop_requested() &&
         tickCount() - start < static_cast<std::uint32_t>(duration)) {
    processPendingEvents();
  }
}

void AnimateRunning(Label& label, const std::stop_token& stop) {
  for (const char* caption : {"Running.", "Running..", "Running..."}) {
    if (stop.stop_requested()) return;
    label.setText(caption);
    WaitMilliseconds(500, stop);
  }
}

std::vector<std::string> editorBatchLines(const std::string& directory,
                                          const std::string& fileName) {
  return {"notepad " + batchQuoted(joinPath(trimBlanks(directory), "") + fileName)};
}

Status OpenFileInNotepad(const std::string& directory, const std::string& fileName,
                         const std::stop_token& stop) {
  const std::string folder = joinPath(trimBlanks(directory), "");
  const std::string batch = folder + kEditorBatchFile;
  // An editor opened a moment ago has its batch file still in use.
  runNow(batch);
  Status written = retryWhileBusy(
      [&] { return writeTextFile(batch, editorBatchLines(directory, fileName)); }, stop);
  if (stop.stop_requested()) return written ? removeOwnFile(batch) : Status();
  if (!written) return written;
  auto started = startBatchFile(batch, WindowStyle::kHidden, StartFolder::kSystem);
  const std::shared_ptr<BatchRun> editor = started ? std::move(started.value()) : nullptr;
  runLater(batch, kEditorBatchLifetime, [batch, editor] {
    if (editor) editor->endInterpreter();
    removeEditorBatch(batch);
  });
  if (!started) return started.error();
  return {};
}

std::string trimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::size_t characterCount(std::string_view text) {
  // In UTF-8 every character has one byte that does not continue another one.
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string joinPath(const std::string& folder, const std::string& name) {
  return folder.ends_with('\\') ? folder + name : folder + '\\' + name;
}

std::string batchQuoted(const std::string& path) {
  std::string quoted = "\"";
  for (const char c : path) quoted.append(c == '%' ? 2 : 1, c);
  return quoted + '"';
}

}  // namespace korventally
