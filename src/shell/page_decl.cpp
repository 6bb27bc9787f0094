#include "shell/page_decl.h"

#include <map>
#include <set>
#include <stdexcept>

namespace qb::shell {

namespace decl {

ControlDecl Label(std::string name, std::string caption) {
    return {.kind = ControlKind::Label, .name = std::move(name), .caption = std::move(caption)};
}

ControlDecl Toolbar(std::string name, std::vector<void (*)(shell::Toolbar&)> setups) {
    return {.kind = ControlKind::Toolbar, .name = std::move(name), .setups = std::move(setups)};
}

ControlDecl Button(std::string name, std::string caption) {
    return {.kind = ControlKind::Button, .name = std::move(name), .caption = std::move(caption)};
}

ControlDecl Tooltip(std::string name) {
    return {.kind = ControlKind::Tooltip, .name = std::move(name)};
}

ControlDecl List(std::string name, int width, std::vector<ListColumn> columns, bool checkBoxes) {
    return {.kind = ControlKind::List,
            .name = std::move(name),
            .checkBoxes = checkBoxes,
            .width = width,
            .columns = std::move(columns)};
}

ControlDecl Check(std::string name, std::string key, std::string caption) {
    return {.kind = ControlKind::Check,
            .name = std::move(name),
            .caption = std::move(caption),
            .key = std::move(key)};
}

ControlDecl Text(std::string name, std::string key, std::string caption) {
    return {.kind = ControlKind::Text,
            .name = std::move(name),
            .caption = std::move(caption),
            .key = std::move(key)};
}

ControlDecl Combo(std::string name, std::string key, std::string caption) {
    return {.kind = ControlKind::Combo,
            .name = std::move(name),
            .caption = std::move(caption),
            .key = std::move(key)};
}

ControlDecl Spin(std::string textBox, std::string name, std::string key) {
    return {.kind = ControlKind::UpDown,
            .name = std::move(name),
            .key = std::move(key),
            .textBox = std::move(textBox)};
}

ControlDecl SpinOnly(std::string textBox, std::string name, store::Range range) {
    return {.kind = ControlKind::UpDown,
            .name = std::move(name),
            .textBox = std::move(textBox),
            .range = range};
}

ControlDecl Option(std::string name, std::string key, std::string caption, std::string value) {
    return {.kind = ControlKind::Option,
            .name = std::move(name),
            .caption = std::move(caption),
            .key = std::move(key),
            .value = std::move(value)};
}

ControlDecl Slider(std::string name, std::string caption, store::Range range, int largeChange) {
    return {.kind = ControlKind::Slider,
            .name = std::move(name),
            .caption = std::move(caption),
            .range = range,
            .largeChange = largeChange};
}

ControlDecl Frame(std::string name, std::string caption) {
    return {.kind = ControlKind::Frame, .name = std::move(name), .caption = std::move(caption)};
}

ControlDecl ProfileChecks(std::string name, std::string key, std::string columnText, int width) {
    return {.kind = ControlKind::List,
            .name = std::move(name),
            .key = std::move(key),
            .checkBoxes = true,
            .width = width,
            .columns = {{"column1", std::move(columnText), width - 350}}};
}

ControlDecl FlagRows(std::string name, std::string key, int width,
                     std::vector<ListColumn> columns) {
    return {.kind = ControlKind::List,
            .name = std::move(name),
            .key = std::move(key),
            .checkBoxes = true,
            .width = width,
            .columns = std::move(columns)};
}

ControlDecl Rows(std::string name, std::string key, int width, std::vector<ListColumn> columns) {
    return {.kind = ControlKind::List,
            .name = std::move(name),
            .key = std::move(key),
            .width = width,
            .columns = std::move(columns)};
}

ControlDecl ProfileRows(std::string name, std::string columnText, int width) {
    return {.kind = ControlKind::List,
            .name = std::move(name),
            .width = width,
            .columns = {{"column1", std::move(columnText), width - 350}},
            .profileRows = true};
}

ControlDecl Marks(ControlDecl control) {
    control.marksOnly = true;
    return control;
}

ControlDecl In(const store::FileSchema& file, ControlDecl control) {
    control.file = &file;
    return control;
}

ControlDecl With(Quirks quirks, ControlDecl control) {
    control.quirks = std::move(quirks);
    return control;
}

ControlDecl Tipped(std::string tip, ControlDecl control) {
    control.tip = std::move(tip);
    return control;
}

ControlDecl Edits(std::string file, ControlDecl toolbar) {
    toolbar.editsFile = std::move(file);
    return toolbar;
}

}  // namespace decl

void AddCheckLists(PageDecl& page, Layout& row, const std::vector<CheckListDecl>& lists,
                   int firstLabel, int width) {
    int label = firstLabel;
    for (const CheckListDecl& list : lists) {
        const std::string name = "lblLabel(" + std::to_string(label++) + ")";
        page.controls.push_back(decl::Label(name, list.label));
        page.controls.push_back(decl::ProfileChecks(list.list, list.key, list.column, width));
        row.items.push_back(Column({Item(name), Item(list.list)}));
    }
}

namespace {

using store::FieldKind;

// Whether a control of this kind can show the field.
bool Fits(const ControlDecl& control, const store::FileSchema& file, const store::Field& field) {
    switch (control.kind) {
        case ControlKind::Check:
            return field.kind == FieldKind::Flag || (field.kind == FieldKind::NamedFlags &&
                                                     control.key.find('.') != std::string::npos);
        case ControlKind::Text:
            return field.kind == FieldKind::String || field.kind == FieldKind::Number ||
                   field.kind == FieldKind::Flag;
        case ControlKind::Combo:
            if (control.quirks.profileCombo) return field.kind == FieldKind::Number;
            return !field.choices.empty();
        case ControlKind::Option:
            return field.kind == FieldKind::Number || field.kind == FieldKind::String ||
                   field.kind == FieldKind::Flag;
        case ControlKind::UpDown:
            return field.kind == FieldKind::Number && field.range.has_value();
        case ControlKind::List:
            if (field.kind == FieldKind::ProfileChecks || field.kind == FieldKind::NamedFlags) {
                return control.checkBoxes;
            }
            if (field.kind == FieldKind::Rows) return true;
            // A check list of a whole file of flags.
            return field.kind == FieldKind::Flag && control.key == file.table;
        default:
            return false;
    }
}

const store::Field* BoundField(const store::FileSchema& file, const std::string& key) {
    if (const store::Field* field = store::FindField(file, key)) return field;
    // The file's own table names a file of flags as a whole.
    if (key == file.table && !file.fields.empty()) return &file.fields.front();
    return nullptr;
}

}  // namespace

void Validate(const PageDecl& decl) {
    const auto fail = [&](const std::string& what) {
        throw std::logic_error(decl.key + ": " + what);
    };
    std::set<std::string> names{"fraFrame", "tlbFormToolbar", "stsStatusBar"};
    std::map<std::string, ControlKind> kinds;
    for (const ControlDecl& control : decl.controls) {
        for (const std::string& name : {control.textBox, control.name}) {
            if (name.empty()) continue;
            if (!names.insert(name).second) fail("two controls are named " + name);
        }
        kinds[control.name] = control.kind;
        if (control.kind == ControlKind::UpDown && control.key.empty() && !control.range) {
            fail(control.name + " is bound to nothing and has no range");
        }
        if (control.key.empty()) continue;
        const store::FileSchema* file = control.file;
        if (file == nullptr) {
            if (decl.files.empty()) fail(control.name + " is bound, but the page has no file");
            file = decl.files.front();
        }
        const store::Field* field = BoundField(*file, control.key);
        if (field == nullptr) {
            fail(control.name + " is bound to " + control.key + ", which " + file->file +
                 " doesn't have");
        }
        if (!Fits(control, *file, *field)) {
            fail(control.name + " can't show " + control.key + " of " + file->file);
        }
    }
    const auto declared = [&](const std::string& name, ControlKind kind) {
        const auto found = kinds.find(name);
        return found != kinds.end() && found->second == kind;
    };
    for (const RowEditorDecl& editor : decl.editors) {
        if (!declared(editor.list, ControlKind::List)) fail("no list " + editor.list + " to edit");
        if (!declared(editor.toolbar, ControlKind::Toolbar)) {
            fail("no toolbar " + editor.toolbar + " for " + editor.list);
        }
    }
}

}  // namespace qb::shell
