#include "shell/page.h"

#include <stdexcept>

#include "shell/page_frame.h"

namespace qb::shell {

Page::Page(PageContext& context, std::string key, std::string caption, PageSize size)
    : context_(context),
      fraFrame(Add<Frame>("fraFrame")),
      tlbFormToolbar(Add<Toolbar>("tlbFormToolbar")),
      stsStatusBar(Add<StatusBar>("stsStatusBar")),
      key_(std::move(key)),
      caption_(std::move(caption)),
      size_(size),
      minimum_(size) {
    tlbFormToolbar.onButtonClick = [this](const std::string& button) { FormToolbarClick(button); };
}

Page::~Page() = default;

void Page::Load() {
    SetupStatusBar(stsStatusBar, size_.width);
    SetupPageToolbar(tlbFormToolbar, noRestore_);
    Setup();
    Reload();
    MarkClean();
}

void Page::Reload() {
    // A page asks its files once per key; the scope reads each file once for the whole load.
    store::TableFiles::ReadScope scope(context_.files);
    LoadSettings();
}

bool Page::QueryUnload() {
    if (!bSaveRequired) return true;
    return Confirm("Discard all unsaved changes?", "Discard changes?");
}

void Page::FormToolbarClick(const std::string& key) {
    if (key == "SAVE") {
        SaveSettings();
        MarkClean();
    } else if (key == "DISCARD") {
        if (!Confirm("Discard all unsaved changes?", "Discard changes?")) return;
        Reload();
        if (discardClears_) MarkClean();
    } else if (key == "RESTORE") {
        if (!Confirm("Restore to defaults?", "Restore defaults?")) return;
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
