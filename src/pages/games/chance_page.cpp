#include <map>
#include <memory>

#include "families/lists/string_lists.h"
#include "pages/games/chance_game.h"

namespace qb::pages {
namespace {

using store::FieldKind;

constexpr const char* kMenus[] = {"First", "Second"};

std::string FolderOf(const ChanceGame& game) {
    return "Games\\" + game.name + "\\";
}

std::string Indexed(const std::string& array, size_t index) {
    return array + "(" + std::to_string(index) + ")";
}

// The list of comments at `index` on the page: the shared menus First and Second pop up over
// them, and the Delete key deletes a row.
StringList CommentList(const ChanceGame& game, const ChanceComments& comments, size_t index) {
    const int width = (game.size.width - 420) / 2 - 120;
    return {.key = "t" + game.name + comments.name,
            .list = "lvw" + comments.name,
            .toolbar = "tlb" + comments.name,
            .columns = {{"column1", comments.name, width - 350}},
            .words = WordsOf(comments.noun),
            .sample = {{"", comments.sample}},
            .popup = std::string("mnu") + kMenus[index],
            .methods = std::string("gMenu") + kMenus[index],
            .selectFirstAfterDelete = true,
            .deleteKey = true};
}

store::FileSchema SettingsSchema(const ChanceGame& game) {
    store::FileSchema schema{.file = FolderOf(game) + game.name + "Settings.tbl",
                             .table = "t" + game.name + "Settings",
                             .fields = {{FieldKind::Flag, game.flag, "1"}}};
    for (const ChanceNumber& number : game.numbers) {
        schema.fields.push_back(
            {.kind = FieldKind::Number, .key = number.key, .defaultValue = number.defaultValue});
        schema.fields.back().range = number.range;
    }
    for (const ChanceTable& table : game.tables) {
        store::Field field{.kind = FieldKind::Rows, .key = table.key, .defaultValue = ""};
        field.rowForm = table.form;
        field.quotedRows = table.quoted;
        schema.fields.push_back(std::move(field));
        schema.pageForm.fixedRows[table.key] = table.rows;
        schema.builderForm.fixedRows[table.key] =
            table.builderRows.empty() ? table.rows : table.builderRows;
        if (table.builderQuoted) schema.builderForm.lines[table.key].quoted = table.builderQuoted;
    }
    return schema;
}

// A file of the list alone. The builder's new file holds its one row with no tab and no comma.
store::FileSchema CommentSchema(const ChanceGame& game, const StringList& list) {
    store::FileSchema schema =
        ListFile(FolderOf(game) + list.key.substr(1) + ".tbl", list.key, {list});
    schema.builderForm.lines[list.key] = {.depth = 0, .rowComma = false};
    return schema;
}

struct ChanceParts {
    store::FileSchema settings;
    std::vector<store::FileSchema> comments;
    std::vector<store::FileSchema> scriptFiles;
    shell::PageDecl page;
};

void MakePage(const ChanceGame& game, ChanceParts& parts) {
    using namespace shell::decl;
    using shell::Item;
    shell::PageDecl& page = parts.page;
    page.key = game.key;
    page.caption = game.caption;
    page.size = game.size;
    // A discard reloads the files and leaves nothing to save.
    page.discardClears = true;
    page.files.push_back(&parts.settings);
    page.controls.push_back(Check(game.check, game.flag, "Play In Main"));
    shell::Layout settings = shell::Column({Item(game.check)});
    for (size_t index = 0; index < game.numbers.size(); ++index) {
        const std::string label = Indexed("lblLabel", index);
        page.controls.push_back(Label(label, game.numbers[index].caption));
        page.controls.push_back(Spin(Indexed("txtUpDown", index), Indexed("updUpDown", index),
                                     game.numbers[index].key));
        settings.items.push_back(shell::Row(
            {Item(label), Item(Indexed("txtUpDown", index)), Item(Indexed("updUpDown", index))}));
    }
    shell::Layout body = shell::Column({shell::Row({settings, shell::Stretch()})});
    shell::Layout lists = shell::Row({});
    for (size_t index = 0; index < game.comments.size(); ++index) {
        const StringList list = CommentList(game, game.comments[index], index);
        parts.comments.push_back(CommentSchema(game, list));
        const int width = list.columns.front().width + 350;
        for (shell::ControlDecl& control : ListControls(list, width)) {
            if (!control.key.empty()) control = In(parts.comments.back(), std::move(control));
            page.controls.push_back(std::move(control));
        }
        page.editors.push_back(ListEditor(list));
        lists.items.push_back(ListLayout(list));
    }
    if (game.comments.empty()) {
        body.items.push_back(shell::Stretch());
    } else {
        body.items.push_back(std::move(lists));
    }
    // SAVE writes the settings, then each list's file.
    for (const store::FileSchema& file : parts.comments)
        page.files.push_back(&file);
    page.layout = std::move(body);
}

const ChanceParts& PartsOf(const ChanceGame& game) {
    static std::map<const ChanceGame*, std::unique_ptr<ChanceParts>> made;
    auto& parts = made[&game];
    if (!parts) {
        parts = std::make_unique<ChanceParts>();
        parts->settings = SettingsSchema(game);
        // Room for each list's file before the page points at them.
        parts->comments.reserve(game.comments.size());
        MakePage(game, *parts);
        for (const std::string& name : game.scriptFiles) {
            const std::string table = game.name + name;
            parts->scriptFiles.push_back(
                {FolderOf(game) + table + ".tbl", "t" + table, {}, store::FileKind::Data});
        }
    }
    return *parts;
}

}  // namespace

shell::PageEntry ChancePageOf(const ChanceGame& game) {
    return {PartsOf(game).page};
}

std::vector<store::BuildStep> ChanceBuilds(const ChanceGame& game) {
    const ChanceParts& parts = PartsOf(game);
    std::vector<store::BuildStep> steps{parts.settings};
    for (const store::FileSchema& file : parts.comments)
        steps.emplace_back(file);
    for (const store::FileSchema& file : parts.scriptFiles)
        steps.emplace_back(file);
    return steps;
}

}  // namespace qb::pages
