#include "cli/driver.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <map>

#include "cli/page_json.h"
#include "shell/about.h"
#include "shell/catalogue.h"
#include "shell/popup_menus.h"
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
    // The main window's own toolbars, then the active page's controls.
    if (name == "tlbMDITop") return container_.MDITop();
    if (name == "tlbSidebar") return container_.Sidebar();
    shell::Page& page = ActivePage();
    shell::Control* control = page.Find(name);
    if (control == nullptr) throw ScriptError(page.Caption() + " has no control " + name);
    if (!control->Visible()) throw ScriptError(name + " is hidden");
    return *control;
}

void Driver::MenuClick(const std::string& name) {
    if (name == "mnuFileClose") {
        // Closing the main window ends the program, unless a page keeps it open.
        if (container_.CloseAll()) ended_ = true;
        return;
    }
    if (name == "mnuWindowsShowAll") {
        ShowAllWindows("");
        return;
    }
    if (name == "mnuHelpAbout") {
        const auto about = shell::AboutBox(container_.Version());
        out_ << "about: " << store::Cp1252ToUtf8(about.caption) << ": "
             << store::Cp1252ToUtf8(about.version) << "\n";
        return;
    }
    if (container_.ClickAppMenu(name)) return;
    // A pop-up entry, or the method an entry calls; a method no entry calls can't be reached.
    const shell::PopupEntry* entry = shell::FindPopupEntry(name);
    if (entry == nullptr) entry = shell::PopupEntryCalling(name);
    if (entry == nullptr) throw ScriptError("no menu entry " + name);
    shell::Page& page = ActivePage();
    if (!container_.ClickPopupEntry(entry->name)) {
        throw ScriptError(page.Caption() + " offers no menu entry " + entry->name);
    }
}

void Driver::ShowAllWindows(const std::string& choice) {
    // The dialog lists every open window; OK opens the chosen row's page.
    std::string line = "windows:";
    int row = 0;
    for (const auto& entry : container_.OpenWindows()) {
        line += row == 0 ? " " : ", ";
        ++row;
        line += std::to_string(row) + ". " + store::Cp1252ToUtf8(entry.WindowName());
    }
    // The dialog's list starts with its first row selected.
    if (choice == "Cancel" || (choice.empty() && row == 0)) {
        out_ << line << " -> Cancel\n";
        return;
    }
    const int chosen = choice.empty() ? 1 : ParseNumber(choice, "ROW");
    if (chosen < 1 || chosen > container_.OpenWindows().Count()) {
        out_ << line << " -> ?\n";
        throw ScriptError("the Windows dialog has no row " + choice);
    }
    out_ << line << " -> OK " << chosen << "\n";
    container_.OpenFunctionPage(container_.OpenWindows().Item(chosen).WindowTag());
}

void Driver::WriteAsAnotherProgram(const std::string& file, const std::vector<std::string>& lines) {
    // As an editor or the scripts would: a new file put in place, each line ended by CRLF.
    const auto native =
        store::ToNativePath(container_.Files().SettingsFolder() + "\\" + Utf8ToCp1252(file));
    if (!native) throw ScriptError("no file " + file);
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + "\r\n";
    const std::filesystem::path temp = native->string() + ".outside";
    std::ofstream(temp, std::ios::binary) << Utf8ToCp1252(bytes);
    std::filesystem::rename(temp, *native);
}

void Driver::Execute(const std::vector<std::string>& words) {
    using shell::ControlKind;
    const std::string& action = words.front();
    if (ended_) throw ScriptError("the program has ended");
    // The user sees what another program did to a page's files before doing anything more.
    for (const auto& page : container_.OpenPages())
        page->CheckDisk();
    if (action == "open") {
        Need(words, 2, 2, "open KEY");
        if (!shell::IsCatalogueKey(words[1]))
            throw ScriptError("no function has the key " + words[1]);
        container_.OpenFunctionPage(words[1]);
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
    } else if (action == "key") {
        Need(words, 3, 3, "key CONTROL CODE");
        auto& list = As<shell::ListControl>(ControlOf(words[1]), ControlKind::List, "list");
        Refused(list.UserKeyDown(ParseNumber(words[2], "CODE")), "press a key on " + words[1]);
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
            case ControlKind::Slider:
                done =
                    static_cast<shell::Slider&>(control).UserSetValue(ParseNumber(value, "VALUE"));
                break;
            case ControlKind::Option:
                // An option is turned off only by picking another of its group.
                done = ParseNumber(value, "VALUE") == 1 &&
                       static_cast<shell::OptionButton&>(control).UserClick();
                break;
            default:
                throw ScriptError(words[1] + " takes no value");
        }
        Refused(done, "set " + words[1] + " to " + words[2]);
    } else if (action == "click" && words.size() == 3 && words[1] == "tvwFunctions") {
        Refused(container_.SelectNode(words[2]), "click the node " + words[2]);
        container_.OpenFunctionPage("");
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
        } else if (control.Kind() == ControlKind::Option && words.size() == 2) {
            done = static_cast<shell::OptionButton&>(control).UserClick();
        } else {
            throw ScriptError(words[1] + " can't be clicked so");
        }
        Refused(done, "click " + words[1] + (words.size() > 2 ? " " + words[2] : ""));
    } else if (action == "menu") {
        Need(words, 2, 2, "menu ENTRY|METHOD");
        MenuClick(words[1]);
    } else if (action == "edit") {
        // What a page's edit button does for a text file: the editor opens on it.
        Need(words, 2, 3, "edit FILE [E|N]");
        host_.OpenTextEditor(Utf8ToCp1252(words[1]), words.size() == 3 ? words[2] : "E");
    } else if (action == "window") {
        Need(words, 2, 2, "window N");
        Refused(container_.ClickWindowsMenu(ParseNumber(words[1], "N")),
                "click the Windows menu entry " + words[1]);
    } else if (action == "windows") {
        Need(words, 1, 2, "windows [ROW|Cancel]");
        ShowAllWindows(words.size() == 2 ? words[1] : "");
    } else if (action == "answer") {
        Need(words, 2, 3, "answer OK|Cancel|Yes|No [ICON]");
        static const std::map<std::string, shell::Answer> answers = {
            {"OK", shell::Answer::OK},
            {"Cancel", shell::Answer::Cancel},
            {"Yes", shell::Answer::Yes},
            {"No", shell::Answer::No}};
        const auto answer = answers.find(words[1]);
        if (answer == answers.end()) throw ScriptError("answer takes OK, Cancel, Yes or No");
        std::optional<shell::Icon> icon;
        if (words.size() == 3) {
            for (shell::Icon each :
                 {shell::Icon::None, shell::Icon::Information, shell::Icon::Question,
                  shell::Icon::Exclamation, shell::Icon::Critical}) {
                if (shell::IconName(each) == words[2]) icon = each;
            }
            if (!icon) {
                throw ScriptError(
                    "the icon is one of none, information, question, exclamation, critical");
            }
        }
        host_.QueueAnswer(answer->second, icon);
    } else if (action == "dialog") {
        Need(words, 2, 6, "dialog OK|Add|Cancel|Close [FIELD...]");
        if (words[1] != "OK" && words[1] != "Add" && words[1] != "Cancel" && words[1] != "Close") {
            throw ScriptError("dialog takes OK, Add, Cancel or Close");
        }
        host_.QueueDialog({words[1], {words.begin() + 2, words.end()}});
    } else if (action == "input") {
        Need(words, 2, 2, "input TEXT|Cancel");
        host_.QueueInput(TextOrCancel(words[1]));
    } else if (action == "file") {
        Need(words, 2, 2, "file PATH|Cancel");
        host_.QueueFile(PathOrCancel(words[1]));
    } else if (action == "disk") {
        Need(words, 2, words.size(), "disk FILE [LINE...]");
        WriteAsAnotherProgram(words[1], {words.begin() + 2, words.end()});
    } else if (action == "bar") {
        Need(words, 2, 2, "bar Reload|\"Keep mine\"");
        shell::Page& page = ActivePage();
        if (words[1] != "Reload" && words[1] != "Keep mine") {
            throw ScriptError("bar takes Reload or \"Keep mine\"");
        }
        Refused(words[1] == "Reload" ? page.UserReloadFromDisk() : page.UserKeepMine(),
                "click " + words[1] + " on the bar of " + page.Caption());
    } else if (action == "show") {
        Need(words, 1, 2, "show [KEY]");
        if (words.size() == 2 && words[1] == "frmContainer") {
            out_ << ContainerJson(container_) << "\n";
            return;
        }
        shell::Page* page = words.size() == 2 ? container_.Find(words[1]) : container_.Active();
        if (page == nullptr) throw ScriptError("no such page is open");
        out_ << PageJson(*page) << "\n";
    } else {
        throw ScriptError("unknown action " + action);
    }
}

}  // namespace qb::cli
