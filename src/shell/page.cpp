#include "shell/page.h"

#include <algorithm>
#include <stdexcept>

#include "shell/page_frame.h"
#include "shell/profile_checks.h"
#include "store/paths.h"

namespace qb::shell {
namespace {

constexpr int kDeleteKey = 46;

}  // namespace

Page::Page(PageContext& context, const PageDecl& decl)
    : context_(context),
      fraFrame(Add<Frame>("fraFrame")),
      tlbFormToolbar(Add<Toolbar>("tlbFormToolbar")),
      stsStatusBar(Add<StatusBar>("stsStatusBar")),
      key_(decl.key),
      caption_(decl.caption),
      tag_(decl.tag),
      size_(decl.size),
      minimum_(decl.minimum.value_or(decl.size)),
      noRestore_(decl.noRestore),
      discardClears_(decl.discardClears),
      saveMakesFolders_(decl.saveMakesFolders),
      toolbarOff_(decl.toolbarOff),
      files_(decl.files) {
    tlbFormToolbar.onButtonClick = [this](const std::string& button) { FormToolbarClick(button); };
    MakeDeclared(decl);
}

Page::~Page() = default;

void Page::MakeDeclared(const PageDecl& decl) {
    const auto markDirty = [this] { MarkDirty(); };
    for (const ControlDecl& control : decl.controls) {
        Control* textBox = nullptr;
        if (!control.textBox.empty()) {
            // The up-down's value stands in a text box the user can't type into.
            auto& box = Add<TextBox>(control.textBox);
            box.SetReadOnly(true);
            textBox = &box;
        }
        Control* made = nullptr;
        if (control.kind == ControlKind::UpDown) {
            store::Range range{0, 0};
            if (control.key.empty()) {
                range = *control.range;
            } else {
                const store::FileSchema* file = control.file ? control.file : files_.front();
                range = *store::FindField(*file, control.key)->range;
            }
            auto& updown = Add<UpDown>(control.name, range.min, range.max, range.step);
            updown.SetBuddy(control.textBox);
            made = &updown;
        } else {
            auto owned = MakeControl(control);
            made = owned.get();
            controls_.push_back(std::move(owned));
        }
        if (!control.tip.empty()) made->SetTip(control.tip);
        if (control.kind == ControlKind::Toolbar && !control.setups.empty()) {
            toolbarSetups_.push_back({static_cast<Toolbar*>(made), control.setups});
        }
        if (control.kind == ControlKind::Toolbar && !control.editsFile.empty()) {
            static_cast<Toolbar*>(made)->onButtonClick =
                [this, file = control.editsFile](const std::string&) {
                    context_.host.OpenTextEditor(file, "E");
                };
        }
        if (control.kind == ControlKind::List && !control.columns.empty()) {
            listColumns_.push_back({static_cast<ListControl*>(made), control.columns});
        }
        if (control.profileRows) profileLists_.push_back(static_cast<ListControl*>(made));
        if (control.key.empty() && !control.marksOnly) continue;
        const store::FileSchema* file =
            control.key.empty() ? nullptr : (control.file ? control.file : files_.front());
        auto binding = Bind(control, file, *made, textBox, markDirty);
        // The options of one field, one after the other, are one group with one binding.
        if (binding && !bindings_.empty() && &bindings_.back()->File() == file &&
            bindings_.back()->Join(*made, control)) {
            continue;
        }
        if (binding) bindings_.push_back(std::move(binding));
    }
    for (const RowEditorDecl& editor : decl.editors) {
        auto& list = Get<ListControl>(editor.list);
        auto& toolbar = Get<Toolbar>(editor.toolbar);
        auto& made = *editors_.emplace_back(std::make_unique<RowEditor>(
            editor, list, toolbar, context_.host, context_.files, markDirty));
        toolbar.onButtonClick = [&made](const std::string& key) {
            if (key == "NEW") made.Add();
            if (key == "DELETE") made.Delete();
            if (key == "EDIT") made.Edit();
        };
        list.onDoubleClick = [&made](int) { made.Edit(); };
        if (editor.deleteKey) {
            list.onKeyDown = [&made](int keyCode) {
                if (keyCode == kDeleteKey) made.Delete();
            };
        }
        if (!editor.popup.empty()) {
            list.onRightClick = [this, popup = editor.popup](int) { ShowPopupMenu(popup); };
        }
        if (editor.methods.empty()) continue;
        if (editor.add || editor.customAdd) {
            PublishMenuMethod(editor.methods + "AddClick", [&made] { made.Add(); });
        }
        if (editor.confirmDelete) {
            PublishMenuMethod(editor.methods + "DeleteClick", [&made] { made.Delete(); });
        }
        if (editor.edit || editor.customEdit || !editor.editsFile.empty()) {
            PublishMenuMethod(editor.methods + "EditClick", [&made] { made.Edit(); });
        }
    }
    if (decl.layout) {
        SetBody(*decl.layout);
    } else {
        // One below the other, in the order declared; a page without a list keeps its controls
        // at the top.
        Layout body = Column({});
        bool fills = false;
        for (const auto& control : controls_) {
            const ControlKind kind = control->Kind();
            if (control.get() == &fraFrame || control.get() == &tlbFormToolbar ||
                control.get() == &stsStatusBar || kind == ControlKind::Tooltip) {
                continue;
            }
            fills = fills || kind == ControlKind::List;
            body.items.push_back(Item(*control));
        }
        if (!fills) body.items.push_back(Stretch());
        body_ = std::move(body);
    }
}

void Page::AddBinding(std::unique_ptr<Binding> binding) {
    bindings_.push_back(std::move(binding));
}

Control& Page::Declared(const std::string& name) const {
    Control* control = Find(name);
    if (control == nullptr) throw std::logic_error(key_ + " has no control " + name);
    return *control;
}

RowEditor& Page::Editor(const std::string& list) {
    for (const auto& editor : editors_) {
        if (editor->Decl().list == list) return *editor;
    }
    throw std::logic_error(key_ + " has no row editor of " + list);
}

void Page::SetBody(Layout body) {
    ResolveNames(body);
    body_ = std::move(body);
}

void Page::ResolveNames(Layout& layout) const {
    if (layout.type == Layout::Type::Item && layout.control == nullptr) {
        layout.control = &Declared(layout.name);
    }
    for (Layout& item : layout.items)
        ResolveNames(item);
}

void Page::Load() {
    SetupStatusBar(stsStatusBar, size_.width);
    SetupPageToolbar(tlbFormToolbar, noRestore_);
    for (auto& [toolbar, setups] : toolbarSetups_) {
        for (auto* setup : setups)
            setup(*toolbar);
    }
    for (auto& [list, columns] : listColumns_) {
        for (const ListColumn& column : columns)
            list->AddColumn(column.key, column.text, column.width);
    }
    Setup();
    Reload();
    MarkClean();
    if (toolbarOff_) {
        for (int button = 1; button <= tlbFormToolbar.Count(); ++button)
            tlbFormToolbar.SetButtonEnabled(button, false);
    }
}

void Page::LoadSettings() {
    for (ListControl* list : profileLists_)
        ResetProfileChecks(*list, context_.profiles);
    for (const auto& binding : bindings_)
        binding->Load(context_.files, context_.profiles);
}

void Page::RestoreDefaults() {
    for (const auto& binding : bindings_)
        binding->Restore(context_.profiles);
}

std::vector<std::string> Page::BoundKeys(const store::FileSchema& file) const {
    std::vector<std::string> keys;
    for (const auto& binding : bindings_) {
        if (&binding->File() == &file) keys.push_back(binding->Key());
    }
    return keys;
}

std::string Page::BoundText(const store::FileSchema& file) const {
    // A list whose rows are the file's rows shapes the file first.
    std::vector<const Binding*> bound;
    store::FileSchema shaped = file;
    for (const auto& binding : bindings_) {
        if (&binding->File() != &file) continue;
        bound.push_back(binding.get());
        binding->Shape(shaped);
    }
    const auto bindingOf = [&](const store::Field& field, int row) -> const Binding* {
        for (const Binding* binding : bound) {
            const std::string& key = binding->Key();
            if (key == field.key || key == file.table) return binding;
            if (field.kind == store::FieldKind::NamedFlags && row >= 0 &&
                static_cast<size_t>(row) < field.rows.size() &&
                key == field.key + "." + field.rows[static_cast<size_t>(row)]) {
                return binding;
            }
        }
        return nullptr;
    };
    const auto isBound = [&](const store::Field& field) {
        // A list bound to a whole sub-table writes it with the rows it holds, even with none.
        if (bindingOf(field, -1) != nullptr) return true;
        // A value or a table the page always writes the same needs no control.
        if (file.pageForm.fixed.contains(field.key) || file.pageForm.fixedRows.contains(field.key))
            return true;
        if (field.kind != store::FieldKind::NamedFlags) return false;
        for (size_t row = 0; row < field.rows.size(); ++row) {
            if (bindingOf(field, static_cast<int>(row)) != nullptr) return true;
        }
        return false;
    };
    return store::RenderTable(
        shaped, context_.profiles.LastNumber(),
        [&](const store::Field& field, int row) {
            const Binding* binding = bindingOf(field, row);
            return binding != nullptr ? binding->ValueOf(field, row) : field.defaultValue;
        },
        store::Writer::Page, isBound,
        [&](const store::Field& field) {
            const Binding* binding = bindingOf(field, 0);
            return binding != nullptr ? binding->Rows() : std::vector<store::ListEntry>{};
        });
}

void Page::SaveSettings() {
    for (const store::FileSchema* file : files_) {
        if (saveMakesFolders_) MakeFoldersOf(file->file);
        context_.files.WriteTextFile(file->file, BoundText(*file), file->inAppFolder);
    }
}

void Page::MakeFoldersOf(std::string_view file) {
    auto& files = context_.files;
    std::string folder = files.SettingsFolder();
    for (size_t from = 0, slash = file.find('\\'); slash != std::string_view::npos;
         from = slash + 1, slash = file.find('\\', from)) {
        folder += "\\" + std::string(file.substr(from, slash - from));
        if (!files.FolderExists(folder)) files.CreateFolder(folder);
    }
}

void Page::Reload() {
    // A page asks its files once per key; the scope reads each file once for the whole load.
    store::TableFiles::ReadScope scope(context_.files);
    LoadSettings();
    for (const auto& editor : editors_)
        editor->Loaded();
    NoteFilesOnDisk();
}

void Page::NoteFilesOnDisk() {
    read_.clear();
    kept_.clear();
    for (const store::FileSchema* file : files_)
        read_[file] = context_.files.StampOf(file->file, file->inAppFolder);
    SetDiskBar(false);
}

void Page::SetDiskBar(bool shown) {
    if (!shown) barFiles_.clear();
    if (diskBar_ == shown) return;
    diskBar_ = shown;
    if (onDiskBar) onDiskBar();
}

std::vector<std::string> Page::ChangedOnDisk() {
    std::vector<std::string> changed;
    for (const store::FileSchema* file : files_) {
        const store::FileStamp now = context_.files.StampOf(file->file, file->inAppFolder);
        if (now == read_[file]) continue;
        // The program's own write (another page's, a text editor's): the page wrote or saw it.
        if (context_.files.WroteLast(file->file, file->inAppFolder, now)) {
            read_[file] = now;
            continue;
        }
        changed.push_back(file->file);
    }
    return changed;
}

bool Page::CheckDisk() {
    bool news = false;
    const std::vector<std::string> changed = ChangedOnDisk();
    for (const std::string& name : changed) {
        for (const store::FileSchema* file : files_) {
            if (file->file != name) continue;
            const auto kept = kept_.find(file);
            if (kept == kept_.end() ||
                kept->second != context_.files.StampOf(file->file, file->inAppFolder)) {
                news = true;
            }
        }
    }
    if (news) {
        barFiles_ = changed;
        SetDiskBar(true);
    }
    return diskBar_;
}

bool Page::UserReloadFromDisk() {
    if (!diskBar_) return false;
    Reload();
    MarkClean();
    return true;
}

bool Page::UserKeepMine() {
    if (!diskBar_) return false;
    for (const store::FileSchema* file : files_)
        kept_[file] = context_.files.StampOf(file->file, file->inAppFolder);
    SetDiskBar(false);
    return true;
}

std::vector<std::string> Page::WatchedPaths() const {
    std::vector<std::string> paths;
    for (const store::FileSchema* file : files_) {
        const auto native =
            store::ToNativePath(context_.files.Resolve(file->file, file->inAppFolder, true));
        if (!native) continue;
        paths.push_back(native->string());
        paths.push_back(native->parent_path().string());
    }
    std::sort(paths.begin(), paths.end());
    paths.erase(std::unique(paths.begin(), paths.end()), paths.end());
    return paths;
}

bool Page::QueryUnload() {
    if (!bSaveRequired) return true;
    return Confirm("Discard all unsaved changes?", "Discard changes?");
}

void Page::FormToolbarClick(const std::string& key) {
    if (key == "SAVE") {
        const std::vector<std::string> changed = ChangedOnDisk();
        if (!changed.empty()) {
            const Message ask{changed.front() +
                                  " changed on disk since this page read it. Overwrite it with "
                                  "the page's values?",
                              "Vandrell's Quillbook: File Changed On Disk", Buttons::YesNo,
                              Icon::Exclamation};
            if (context_.host.ShowMessage(ask) != Answer::Yes) return;
        }
        SaveSettings();
        MarkClean();
        NoteFilesOnDisk();
    } else if (key == "DISCARD") {
        if (!Confirm("Discard all unsaved changes?", "Discard changes?")) return;
        Reload();
        if (discardClears_) MarkClean();
    } else if (key == "RESTORE") {
        if (!Confirm("Restore to defaults?", "Restore defaults?")) return;
        // RESTORE leaves the row buttons as they stand, even over a list it empties or fills.
        RestoreDefaults();
        MarkDirty();
    }
}

Control* Page::Find(const std::string& name) const {
    for (const auto& control : controls_) {
        if (control->Name() == name) return control.get();
    }
    return nullptr;
}

bool Page::HasMenuMethod(const std::string& method) const {
    return menuMethods_.contains(method);
}

void Page::CallMenuMethod(const std::string& method) {
    const auto found = menuMethods_.find(method);
    if (found == menuMethods_.end()) {
        throw std::logic_error(caption_ + " has no method " + method);
    }
    found->second();
}

void Page::PublishMenuMethod(std::string method, std::function<void()> call) {
    menuMethods_[std::move(method)] = std::move(call);
}

void Page::SetPopupEntryVisible(const std::string& entry, bool visible) {
    if (visible) {
        hiddenEntries_.erase(entry);
    } else {
        hiddenEntries_.insert(entry);
    }
}

void Page::MarkDirty() {
    bSaveRequired = MarkSaveRequired(tlbFormToolbar, stsStatusBar);
}

void Page::MarkClean() {
    bSaveRequired = ClearSaveRequired(tlbFormToolbar, stsStatusBar);
}

bool Page::Confirm(const std::string& text, const std::string& title) {
    return context_.host.ShowMessage({text, title, Buttons::OKCancel, Icon::Question}) ==
           Answer::OK;
}

}  // namespace qb::shell
