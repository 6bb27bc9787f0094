#include "shell/scripted_host.h"

#include "shell/edit_dialog.h"
#include "store/cp1252.h"
#include "store/paths.h"

namespace qb::shell {

using store::Cp1252ToUtf8;
using store::Utf8ToCp1252;

std::string AnswerName(Answer answer) {
    switch (answer) {
        case Answer::OK:
            return "OK";
        case Answer::Cancel:
            return "Cancel";
        case Answer::Yes:
            return "Yes";
        case Answer::No:
            return "No";
    }
    return "?";
}

std::string IconName(Icon icon) {
    switch (icon) {
        case Icon::None:
            return "none";
        case Icon::Information:
            return "information";
        case Icon::Question:
            return "question";
        case Icon::Exclamation:
            return "exclamation";
        case Icon::Critical:
            return "critical";
    }
    return "?";
}

std::string QuoteIfNeeded(const std::string& utf8) {
    if (!utf8.empty() && utf8.find(' ') == std::string::npos &&
        utf8.find('"') == std::string::npos) {
        return utf8;
    }
    std::string out = "\"";
    for (char c : utf8) {
        if (c == '"' || c == '\\') out.push_back('\\');
        out.push_back(c);
    }
    return out + "\"";
}

namespace {

bool Fits(Answer answer, Buttons buttons) {
    switch (buttons) {
        case Buttons::OK:
            return answer == Answer::OK;
        case Buttons::OKCancel:
            return answer == Answer::OK || answer == Answer::Cancel;
        case Buttons::YesNo:
            return answer == Answer::Yes || answer == Answer::No;
    }
    return false;
}

}  // namespace

std::vector<std::string> ScriptedHost::Unused() const {
    std::vector<std::string> unused;
    for (Answer a : answers_)
        unused.push_back("answer " + AnswerName(a));
    for (const auto& d : dialogs_)
        unused.push_back("dialog " + d.button);
    for (const auto& i : inputs_)
        unused.push_back("input " + (i ? Cp1252ToUtf8(*i) : "Cancel"));
    for (const auto& f : files_)
        unused.push_back("file " + (f ? Cp1252ToUtf8(*f) : "Cancel"));
    return unused;
}

Answer ScriptedHost::ShowMessage(const Message& message) {
    const std::string shown =
        "message: " + Cp1252ToUtf8(message.title) + ": " + Cp1252ToUtf8(message.text);
    std::optional<Answer> given;
    std::optional<Icon> icon;
    if (!answers_.empty()) {
        given = answers_.front();
        answers_.pop_front();
        icon = icons_.front();
        icons_.pop_front();
    } else if (answerUnqueued) {
        given = answerUnqueued(message);
    }
    if (!given) {
        out_ << shown << " -> ?\n";
        throw UnansweredPrompt("no answer queued for: " + shown);
    }
    const Answer answer = *given;
    out_ << shown << " -> " << AnswerName(answer) << "\n";
    if (!Fits(answer, message.buttons)) {
        throw UnansweredPrompt("the box has no " + AnswerName(answer) + " button: " + shown);
    }
    if (icon && *icon != message.icon) {
        throw UnansweredPrompt("the box shows the " + IconName(message.icon) + " icon, not " +
                               IconName(*icon) + ": " + shown);
    }
    return answer;
}

DialogResult ScriptedHost::ShowDialog(const DialogRequest& request) {
    const std::string shown = "dialog: " + Cp1252ToUtf8(request.caption);
    if (dialogs_.empty()) {
        out_ << shown << " -> ?\n";
        throw UnansweredPrompt("no answer queued for: " + shown);
    }
    DialogAnswer answer = std::move(dialogs_.front());
    dialogs_.pop_front();
    // A button the page switched off isn't there to be clicked, whatever the fields hold.
    if (answer.button == "Add" && !request.addButton) {
        out_ << shown << " -> Add refused\n";
        throw UnansweredPrompt("the dialog's Add button is switched off: " + shown);
    }
    // The answer is played on the dialog as the user would: each given field typed in, then the
    // button clicked. A click the dialog ignores leaves it open, which no script can go on from.
    EditDialog dialog(request);
    for (size_t i = 0; i < answer.fields.size(); ++i) {
        if (!dialog.UserSetField(static_cast<int>(i), Utf8ToCp1252(answer.fields[i]))) {
            out_ << shown << " -> " << answer.button << " refused\n";
            throw UnansweredPrompt("the dialog takes no " + answer.fields[i] + " in field " +
                                   std::to_string(i) + ": " + shown);
        }
    }
    std::optional<DialogResult> result;
    if (answer.button == "OK") {
        result = dialog.ClickOK();
    } else if (answer.button == "Add") {
        result = dialog.ClickAdd();
    } else {
        result = dialog.ClickCancel();
    }
    if (!result) {
        out_ << shown << " -> " << answer.button << " refused\n";
        throw UnansweredPrompt("the dialog ignores " + answer.button + ": " + shown);
    }
    std::string line = shown + " -> " + answer.button;
    if (!result->mode.empty()) {
        for (size_t i = 0; i < dialog.Fields().size(); ++i)
            line += " " + QuoteIfNeeded(Cp1252ToUtf8(result->fields[i]));
    }
    out_ << line << "\n";
    return *result;
}

std::optional<std::string> ScriptedHost::AskInput(const std::string& prompt,
                                                  const std::string& title, const std::string&) {
    const std::string shown = "input: " + Cp1252ToUtf8(title) + ": " + Cp1252ToUtf8(prompt);
    if (inputs_.empty()) {
        out_ << shown << " -> ?\n";
        throw UnansweredPrompt("no answer queued for: " + shown);
    }
    auto answer = std::move(inputs_.front());
    inputs_.pop_front();
    out_ << shown << " -> " << (answer ? QuoteIfNeeded(Cp1252ToUtf8(*answer)) : "Cancel") << "\n";
    return answer;
}

std::optional<std::string> ScriptedHost::AskFile(const std::string& title,
                                                 const std::string& filter,
                                                 const std::string& initialFolder) {
    // A folder of this machine is shown as the system names it, so that a transcript reads the
    // same wherever the hub stands.
    std::string folder = Cp1252ToUtf8(initialFolder);
    if (store::HasDrive(initialFolder)) {
        if (const auto native = store::ToNativePath(initialFolder)) folder = native->string();
    }
    const std::string shown =
        "file: " + Cp1252ToUtf8(title) + ": " + Cp1252ToUtf8(filter) + ": " + folder;
    if (files_.empty()) {
        out_ << shown << " -> ?\n";
        throw UnansweredPrompt("no answer queued for: " + shown);
    }
    auto answer = std::move(files_.front());
    files_.pop_front();
    out_ << shown << " -> " << (answer ? Cp1252ToUtf8(*answer) : "Cancel") << "\n";
    return answer;
}

void ScriptedHost::OpenTextEditor(const std::string& file, const std::string& mode) {
    if (!openTextEditor) throw UnansweredPrompt("no text editor to open " + Cp1252ToUtf8(file));
    openTextEditor(file, mode);
}

void ScriptedHost::OpenWebAddress(const std::string& address) {
    out_ << "browse: " << Cp1252ToUtf8(address) << "\n";
}

}  // namespace qb::shell
