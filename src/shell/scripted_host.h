#pragma once
// A host that answers every prompt from queues filled in advance, and writes down each prompt as
// the user would have seen it. A prompt with no queued answer is an error, so that no script or
// test can pass by skipping a dialog.

#include <deque>
#include <functional>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "shell/host.h"

namespace qb::shell {

class UnansweredPrompt : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A scripted answer to an edit dialog: the fields the user types in, from field 0 on (fields not
// given keep what the page put in), and the button clicked.
struct DialogAnswer {
    std::string button;  // "OK", "Add", "Cancel" or "Close" (the close box)
    std::vector<std::string> fields;
};

class ScriptedHost : public Host {
  public:
    // Prompts are written to `transcript` as UTF-8, one line each.
    explicit ScriptedHost(std::ostream& transcript) : out_(transcript) {}

    // `icon`, when given, is the icon the box must show: a box with another is an error.
    void QueueAnswer(Answer answer, std::optional<Icon> icon = std::nullopt) {
        answers_.push_back(answer);
        icons_.push_back(icon);
    }
    void QueueDialog(DialogAnswer answer) { dialogs_.push_back(std::move(answer)); }
    void QueueInput(std::optional<std::string> text) { inputs_.push_back(std::move(text)); }
    void QueueFile(std::optional<std::string> path) { files_.push_back(std::move(path)); }
    // Answers queued but never asked for.
    std::vector<std::string> Unused() const;

    Answer ShowMessage(const Message& message) override;
    DialogResult ShowDialog(const DialogRequest& request) override;
    std::optional<std::string> AskInput(const std::string& prompt, const std::string& title,
                                        const std::string& initial) override;
    std::optional<std::string> AskFile(const std::string& title, const std::string& filter,
                                       const std::string& initialFolder) override;
    void OpenTextEditor(const std::string& file, const std::string& mode) override;
    void OpenWebAddress(const std::string& address) override;

    // Answers a message box when no answer is queued: a standing answer, or the user asked on a
    // terminal. Without it, or when it gives none, the prompt is unanswered.
    std::function<std::optional<Answer>(const Message& message)> answerUnqueued;

    // Where the text editor page opens; set by whoever owns the open pages.
    std::function<void(const std::string& file, const std::string& mode)> openTextEditor;

  private:
    std::ostream& out_;
    std::deque<Answer> answers_;
    std::deque<std::optional<Icon>> icons_;  // beside answers_
    std::deque<DialogAnswer> dialogs_;
    std::deque<std::optional<std::string>> inputs_;
    std::deque<std::optional<std::string>> files_;
};

// A value as the script syntax writes it: double quoted when it holds a blank or is empty.
std::string QuoteIfNeeded(const std::string& utf8);

// "information", "question", "exclamation", "critical" or "none".
std::string IconName(Icon icon);

}  // namespace qb::shell
