#pragma once

#include <cstddef>
#include <cstdint>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"
#include "platform/label.h"
#include "platform/result.h"
#include "platform/text_box.h"
#include "platform/window.h"

namespace korventally {

/// Controls that are switched together, in the order in which they are switched.
using ControlGroup = std::vector<Control*>;
using FieldGroup = std::vector<TextBox*>;

void EnableControl(Control& control);
void DisableControl(Control& control);

/// Enables a text field: dark yellow turns yellow again, everything else white.
void EnableField(TextBox& field);
/// Disables a text field: yellow turns dark yellow, everything else the button face.
void DisableField(TextBox& field);
/// Marks a field whose value the user must supply or correct.
void HighlightField(TextBox& field);
/// Takes the mark from a field that holds text, blanks included, then trims its blanks.
void ClearFieldHighlight(TextBox& field);

void EnableStep(const ControlGroup& controls, const FieldGroup& fields);
void DisableStep(const ControlGroup& controls, const FieldGroup& fields);
/// Closes before it opens, so a control that stands on both sides ends up enabled.
void SwitchStep(const ControlGroup& controlsToClose, const FieldGroup& fieldsToClose,
                const ControlGroup& controlsToOpen, const FieldGroup& fieldsToOpen);

/// Keystroke filters: a printable character that is no digit (for FilterDecimalKey: and no ".")
/// becomes 0, which discards it. Control keys and characters above 127 pass.
void FilterDecimalKey(std::int16_t& keyCode);
void FilterDigitKey(std::int16_t& keyCode);

/// Enter in a box moves the focus on as Tab does, and is discarded.
void moveOnAtEnter(Window& window, std::int16_t& keyCode);

/// Waits at least `duration` milliseconds, busily, while events are handled: any other handler may
/// run before it returns. A duration of zero or less returns at once. Ends early when `stop` is
/// requested, and when time is up (`timeIsUp`).
void WaitMilliseconds(std::int16_t duration, const std::stop_token& stop = {});

/// Shows "Running.", "Running..", "Running..." in turn, 500 ms each; ends early when `stop` is
/// requested.
void AnimateRunning(Label& label, const std::stop_token& stop = {});

/// Opens a file of the directory in notepad, through the batch file "open_file.bat" in that
/// directory. The batch file is deleted 5000 ms after it was started, or before that when the next
/// file is to be opened or the session ends. Returns why the batch file could not be written or
/// started, or not be deleted after `stop` was requested, because nobody wants the file opened any
/// more.
Status OpenFileInNotepad(const std::string& directory, const std::string& fileName,
                         const std::stop_token& stop = {});

/// What that batch file holds.
std::vector<std::string> editorBatchLines(const std::string& directory,
                                          const std::string& fileName);

/// Text without its leading and trailing blanks (character 32 only).
std::string trimBlanks(std::string_view text);

/// Characters of a text, as a user counts them when typing.
std::size_t characterCount(std::string_view text);

/// A file of a folder that is named with or without its final backslash.
std::string joinPath(const std::string& folder, const std::string& name);

/// A path in double quotes as a batch file must spell it: "%" is doubled, because the command
/// interpreter halves it.
std::string batchQuoted(const std::string& path);

}  // namespace korventally
