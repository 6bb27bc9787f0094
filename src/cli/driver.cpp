#include "cli/driver.h"

#include <charconv>

#include "cli/page_json.h"
#include "store/cp1252.h"
#include "store/paths.h"

namespace qb::cli {
namespace {

using store::Utf8ToCp1252;

int ParseNumber(const std::string& text, const char* what) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw ScriptError(std::string(what) + " must be a number: " + text);
    }
    return value;
}

void Need(const std::vector<std::string>& words, size_t min, size_t max, const char* usage) {
    if (words.size() < min || words.size() > max) throw ScriptError(std::string("usage: ") + usage);
}

void Refused(bool done, const std::string& what) {
    if (!done) throw ScriptError("the user can't " + what);
}

template <class C>
C& As(shell::Control& control, shell::ControlKind kind, const char* what) {
    if (control.Kind() != kind) throw ScriptError(control.Name() + " is no " + what);
    return static_cast<C&>(control);
}

std::optional<std::string> TextOrCancel(const std::string& word) {
    if (word == "Cancel") return std::nullopt;
    return Utf8ToCp1252(word);
}

// A file chosen in the dialog: a Linux path is handed to the page in the scripts' form.
std::optional<std::string> PathOrCancel(const std::string& word) {
    if (word == "Cancel") return std::nullopt;
    if (word.starts_with("/")) return store::ToScriptPath(word);
    return Utf8ToCp1252(word);
}

}  // namespace

std::vector<std::string> SplitWords(const std::string& line) {
    std::vector<std::string> words;
    size_t i = 0;
    while (i < line.size()) {
        while (i < line.size() && (line[i] == ' ' || line[i] == '\t'))
            ++i;
        if (i >= line.size()) break;
        std::string word;
        if (line[i] == '"') {
            ++i;
            bool closed = false;
            while (i < line.size()) {
                if (line[i] == '\\' && i + 1 < line.size()) {
                    word.push_back(line[i + 1]);
                    i += 2;
                } else if (line[i] == '"') {
                    ++i;
                    closed = true;
                    break;
                } else {
                    word.push_back(line[i++]);
                }
            }
            if (!closed) throw ScriptError("unclosed quote: " + line);
        } else {
            while (i < line.size() && line[i] != ' ' && line[i] != '\t')
                word.push_back(line[i++]);
        }
        words.push_back(std::move(word));
    }
    return words;
}

int Driver::Run(std::istream& script, std::ostream& err) {
    std::string line;
    int number = 0;
    try {
        while (std::getline(script, line)) {
            ++number;
            if (!line.empty() && line.back() == '\r') line.pop_back();
            const auto words = SplitWords(line);
            if (words.empty() || words.front().starts_with("#")) continue;
            Execute(words);
        }
        const auto unused = host_.Unused();
        if (!unused.empty()) {
            throw ScriptError("answer queued but never asked for: " + unused.front());
        }
    } catch (const ScriptError& error) {
        out_.flush();
        err << "drive: line " << number << ": " << error.what() << "\n";
        return 2;
    } catch (const shell::UnansweredPrompt& error) {
        out_.flush();
        err << "drive: line " << number << ": " << error.what() << "\n";
        return 2;
    }
    return 0;
}

shell::Page& Driver::ActivePage() const {
    shell::Page* page = container_.Active();
    if (page == nullptr) throw ScriptError("no page is open");
    return *page;
}

shell::Control& Driver::ControlOf(const std::string& name) const {
    shell::Page& page = ActivePage();
    shell::Control* control = page.Find(name);
    if (control == nullptr) throw ScriptError(page.Caption() + " has no control " + name);
    if (!control->Visible()) throw ScriptError(name + " is hidden");
    return *control;
}

void Driver::Execute(const std::vector<std::string>& words) {
    using shell::ControlKind;
    const std::string& action = words.front();
    if (action == "open") {
        Need(words, 2, 2, "open KEY");
        if (container_.Open(words[1]) == nullptr)
            throw ScriptError("no page has the key " + words[1]);
    } else if (action == "close") {
        Need(words, 1, 2, "close [KEY]");
        shell::Page* page = words.size() == 2 ? container_.Find(words[1]) : container_.Active();
        if (page == nullptr) throw ScriptError("no such page is open");
        container_.Close(*page);
    } else if (action == "check") {
        Need(words, 4, 4, "check CONTROL ROW on|off");
        if (words[3] != "on" && words[3] != "off") throw ScriptError("check takes on or off");
        auto& list = As<shell::ListControl>(ControlOf(words[1]), ControlKind::List, "list");
        Refused(list.UserCheck(ParseNumber(words[2], "ROW"), words[3] == "on"),
                "tick row " + words[2] + " of " + words[1]);
    } else if (action == "select" || action == "dblclick" || action == "rightclick") {
        Need(words, 3, 3, "select|dblclick|rightclick CONTROL ROW");
        auto& list = As<shell::ListControl>(ControlOf(words[1]), ControlKind::List, "list");
        const int row = ParseNumber(words[2], "ROW");
        const bool done = action == "select"     ? list.UserSelect(row)
                          : action == "dblclick" ? list.UserDoubleClick(row)
                                                 : list.UserRightClick(row);
        Refused(done, action + " row " + words[2] + " of " + words[1]);
    } else if (action == "set") {
        Need(words, 3, 3, "set CONTROL VALUE");
        shell::Control& control = ControlOf(words[1]);
        const std::string value = Utf8ToCp1252(words[2]);
        bool done = false;
        switch (control.Kind()) {
            case ControlKind::Text:
                done = static_cast<shell::TextBox&>(control).UserSetText(value);
                break;
            case ControlKind::Check:
                done = static_cast<shell::CheckBox&>(control).UserSetValue(
                    ParseNumber(value, "VALUE"));
                break;
            case ControlKind::Combo:
                done = static_cast<shell::ComboBox&>(control).UserSetText(value);
                break;
            case ControlKind::UpDown:
                done =
                    static_cast<shell::UpDown&>(control).UserSetValue(ParseNumber(value, "VALUE"));
                break;
            default:
                throw ScriptError(words[1] + " takes no value");
        }
        Refused(done, "set " + words[1] + " to " + words[2]);
    } else if (action == "click") {
        Need(words, 2, 4, "click CONTROL [BUTTONKEY [MENUKEY]]");
        shell::Control& control = ControlOf(words[1]);
        bool done = false;
        if (control.Kind() == ControlKind::Toolbar) {
            if (words.size() < 3) throw ScriptError("click on a toolbar needs a BUTTONKEY");
            auto& toolbar = static_cast<shell::Toolbar&>(control);
            done = words.size() == 4 ? toolbar.UserMenuClick(words[2], words[3])
                                     : toolbar.UserClick(words[2]);
        } else if (control.Kind() == ControlKind::Button && words.size() == 2) {
            done = static_cast<shell::Button&>(control).UserClick();
        } else if (control.Kind() == ControlKind::Check && words.size() == 2) {
            auto& check = static_cast<shell::CheckBox&>(control);
            done = check.UserSetValue(check.Value() == 1 ? 0 : 1);
        } else {
            throw ScriptError(words[1] + " can't be clicked so");
        }
        Refused(done, "click " + words[1] + (words.size() > 2 ? " " + words[2] : ""));
    } else if (action == "menu") {
        Need(words, 2, 2, "menu METHOD");
        shell::Page& page = ActivePage();
        if (!page.HasMenuMethod(words[1])) {
            throw ScriptError(page.Caption() + " offers no menu entry " + words[1]);
        }
        page.CallMenuMethod(words[1]);
    } else if (action == "answer") {
        Need(words, 2, 2, "answer OK|Cancel|Yes|No");
        const std::string& word = words[1];
        if (word == "OK") {
            host_.QueueAnswer(shell::Answer::OK);
        } else if (word == "Cancel") {
            host_.QueueAnswer(shell::Answer::Cancel);
        } else if (word == "Yes") {
            host_.QueueAnswer(shell::Answer::Yes);
        } else if (word == "No") {
            host_.QueueAnswer(shell::Answer::No);
        } else {
            throw ScriptError("answer takes OK, Cancel, Yes or No");
        }
    } else if (action == "dialog") {
        Need(words, 2, 6, "dialog OK|Add|Cancel [FIELD...]");
        if (words[1] != "OK" && words[1] != "Add" && words[1] != "Cancel") {
            throw ScriptError("dialog takes OK, Add or Cancel");
        }
        host_.QueueDialog({words[1], {words.begin() + 2, words.end()}});
    } else if (action == "input") {
        Need(words, 2, 2, "input TEXT|Cancel");
        host_.QueueInput(TextOrCancel(words[1]));
    } else if (action == "file") {
        Need(words, 2, 2, "file PATH|Cancel");
        host_.QueueFile(PathOrCancel(words[1]));
    } else if (action == "show") {
        Need(words, 1, 2, "show [KEY]");
        shell::Page* page = words.size() == 2 ? container_.Find(words[1]) : container_.Active();
        if (page == nullptr) throw ScriptError("no such page is open");
        out_ << PageJson(*page) << "\n";
    } else {
        throw ScriptError("unknown action " + action);
    }
}

}  // namespace qb::cli
