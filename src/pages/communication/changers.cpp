// The topic and kick bar changers: one page over a list of texts the scripts show in turn, every
// so many minutes. The two differ only in their words.

#include "pages/communication/communication.h"
#include "shell/page_frame.h"

namespace qb::pages {

namespace {

struct Changer {
    std::string name;    // "TopicChanger": the folder and the files' names
    std::string plural;  // "Topics": the list and its toolbar
    std::string noun;    // "Topic": the dialogs' and the delete prompt's words
    std::string label;   // above the list
};

const std::vector<Changer>& Members() {
    static const std::vector<Changer> members = {
        {"TopicChanger", "Topics", "Topic", "Topics"},
        {"KickBarChanger", "KickBars", "KickBar", "KickBar Topics"},
    };
    return members;
}

std::string Folder(const Changer& member) {
    return "Communication\\" + member.name + "\\";
}

struct ChangerFiles {
    store::FileSchema settings;
    store::FileSchema list;
};

const std::vector<ChangerFiles>& Files() {
    static const std::vector<ChangerFiles> files = [] {
        using store::FieldKind;
        std::vector<ChangerFiles> all;
        for (const Changer& member : Members()) {
            const std::string table = "t" + member.name + "Topics";
            all.push_back({{Folder(member) + member.name + "Settings.tbl",
                            "t" + member.name + "Settings",
                            {{.kind = FieldKind::Number,
                              .key = "iDelay",
                              .defaultValue = "10",
                              .range = store::Range{1, 720}}}},
                           {Folder(member) + member.name + "Topics.tbl",
                            table,
                            {{.kind = FieldKind::Rows, .key = table, .defaultValue = ""}},
                            store::FileKind::Data}});
        }
        return all;
    }();
    return files;
}

const ChangerFiles& FilesOf(const Changer& member) {
    return Files().at(static_cast<size_t>(&member - Members().data()));
}

shell::PageDecl ChangerPage(const Changer& member) {
    using namespace shell::decl;
    using shell::Item;
    const ChangerFiles& files = FilesOf(member);
    const std::string list = "lvw" + member.plural;
    const std::string toolbar = "tlb" + member.plural;
    constexpr int kWidth = 6000;
    const auto dialog = [&](std::string caption) {
        // Nothing bars the dialog's Add: the list takes rows in a run.
        return shell::RowDialogDecl{.kind = shell::DialogKind::OneFields,
                                    .caption = std::move(caption),
                                    .labels = {member.noun},
                                    .required = 1};
    };
    return {
        .key = "Communication~" + member.name,
        .caption = "Communication ~ " + member.name,
        .size = {6600, 6075},
        .files = {&files.settings, &files.list},
        .controls = {Label("lblLabel(0)", "Delay"), Spin("txtDelay", "updDelay", "iDelay"),
                     Label("lblLabel(1)", member.label),
                     Toolbar(toolbar, {shell::SetupListToolbar}),
                     In(files.list, Rows(list, files.list.table, kWidth,
                                         {{"column1", member.plural, kWidth - 350}}))},
        .editors = {{.list = list,
                     .toolbar = toolbar,
                     .add = dialog("Add " + member.noun),
                     .edit = dialog("Edit " + member.noun),
                     .confirmDelete =
                         shell::Prompt{"Do you really want to delete this " + member.noun + "?",
                                       "Delete " + member.noun + "?"}}},
        .layout = shell::Column({shell::Row({Item("lblLabel(0)"), Item("txtDelay"),
                                             Item("updDelay"), shell::Stretch()}),
                                 Item("lblLabel(1)"), Item(toolbar), Item(list)}),
    };
}

}  // namespace

std::vector<shell::PageEntry> ChangerPages() {
    static const std::vector<shell::PageDecl> pages = [] {
        std::vector<shell::PageDecl> all;
        for (const Changer& member : Members())
            all.push_back(ChangerPage(member));
        return all;
    }();
    return {pages.begin(), pages.end()};
}

std::vector<store::BuildStep> ChangerBuilds() {
    std::vector<store::BuildStep> steps;
    for (const ChangerFiles& files : Files()) {
        steps.emplace_back(files.settings);
        steps.emplace_back(files.list);
    }
    return steps;
}

}  // namespace qb::pages
