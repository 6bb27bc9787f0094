#include "families/lists/string_lists.h"

#include <algorithm>
#include <map>
#include <memory>

#include "shell/page_frame.h"

namespace qb::pages {

ListWords WordsOf(const std::string& noun) {
    return {
        .addTitle = "Add " + noun,
        .labels = {noun},
        .editTitle = "Edit " + noun,
        .floor = {"There must be a minimum of one " + noun, "Cannot delete", shell::Icon::Critical},
        .confirm = {"Do you really want to delete this " + noun + "?", "Delete " + noun + "?"}};
}

store::Field ListField(const StringList& list) {
    store::Field field{.kind = store::FieldKind::Rows, .key = list.key, .defaultValue = ""};
    field.rowForm = list.keyed ? store::RowForm::Named : store::RowForm::Bare;
    field.sampleRows = list.sample;
    if (!list.rowValue.empty()) {
        field.quotedRows = false;
        field.rowValue = list.rowValue;
    }
    return field;
}

std::vector<shell::ControlDecl> ListControls(const StringList& list, int width, bool bound) {
    using namespace shell::decl;
    shell::ControlDecl rows = bound ? Rows(list.list, list.key, width, list.columns)
                                    : List(list.list, width, list.columns);
    return {Toolbar(list.toolbar, {shell::SetupListToolbar}),
            With({.restoreRows = list.restore}, std::move(rows))};
}

shell::RowEditorDecl ListEditor(const StringList& list) {
    const auto dialog = [&](const std::string& caption) {
        // Nothing bars the dialog's Add: every list takes rows in a run.
        return shell::RowDialogDecl{.kind = list.words.labels.size() == 2
                                                ? shell::DialogKind::TwoFields
                                                : shell::DialogKind::OneFields,
                                    .caption = caption,
                                    .labels = list.words.labels,
                                    .required = 1};
    };
    return {.list = list.list,
            .toolbar = list.toolbar,
            .popup = list.popup,
            .methods = list.methods,
            .columns = list.words.labels.size() == 2 ? std::vector<int>{1, 2} : std::vector<int>{1},
            .add = dialog(list.words.addTitle),
            .edit = dialog(list.words.editTitle),
            .confirmDelete = list.words.confirm,
            .floor = list.floor,
            .floorPrompt = list.words.floor,
            .refuseDuplicate = list.refuseDuplicate,
            .trimValues = list.trimValues,
            .selectFirstAfterDelete = list.selectFirstAfterDelete,
            .deleteKey = list.deleteKey};
}

shell::Layout ListLayout(const StringList& list) {
    return shell::Column({shell::Item(list.toolbar), shell::Item(list.list)});
}

store::FileSchema ListFile(std::string file, std::string table,
                           const std::vector<StringList>& lists) {
    store::FileSchema schema{std::move(file), std::move(table), {}, store::FileKind::Data};
    for (const StringList& list : lists) {
        schema.fields.push_back(ListField(list));
        if (!list.builderName.empty()) {
            schema.builderForm.lines[list.key] = {.name = list.builderName};
        }
    }
    return schema;
}

const ListPageParts& MakeListPage(const ListPage& member) {
    static std::map<std::string, std::unique_ptr<ListPageParts>> made;
    auto& parts = made[member.key];
    if (parts) return *parts;
    parts = std::make_unique<ListPageParts>();
    parts->file = ListFile(member.file, member.table, member.lists);

    shell::PageDecl& page = parts->page;
    page.key = member.key;
    page.caption = member.caption;
    page.size = member.size;
    // The settings are written first, then the lists.
    if (member.settings != nullptr) page.files.push_back(member.settings);
    page.files.push_back(&parts->file);
    page.controls = member.settingsControls;
    shell::Layout lists = shell::Row({});
    const int width =
        (member.size.width - 420) / std::max(1, static_cast<int>(member.lists.size())) - 120;
    for (const StringList& list : member.lists) {
        for (shell::ControlDecl& control : ListControls(list, width)) {
            if (!control.key.empty()) control = shell::decl::In(parts->file, std::move(control));
            page.controls.push_back(std::move(control));
        }
        page.editors.push_back(ListEditor(list));
        lists.items.push_back(ListLayout(list));
    }
    shell::Layout body = shell::Column({});
    if (member.settings != nullptr) body.items.push_back(member.settingsLayout);
    body.items.push_back(std::move(lists));
    page.layout = std::move(body);
    // A discard reloads the files and leaves nothing to save.
    page.discardClears = true;
    return *parts;
}

}  // namespace qb::pages
