// The archives' permission pages: the command shape of the permission matrices, a file per
// command with a row per profile number; and Hyperlink's right clicks, the same page over its
// four right click files.

#include "pages/archive/archive.h"
#include "store/table_text.h"

namespace qb::pages {
namespace {

const std::vector<std::string> kCommands = {"Clear", "Delete", "Modify", "NewItems", "Submit"};
const std::vector<std::string> kRightClicks = {"Category", "Item", "Pending", "Voting"};

constexpr const char* kHyperlinkFolder = "TheVellum\\Hyperlink";

// A permission file as the builder writes it: its own table name (the right click files' with
// RC in it), each profile number on one tab with its value quoted, and no sub-table close. The
// old values are read by key over the whole file, whichever table name it carries: a file the
// page saved names the right click tables without RC, and every cell must survive a rebuild.
store::BuildStep EnableBuild(std::string file, std::string table) {
    return {kHyperlinkFolder,
            [file = std::move(file), table = std::move(table)](store::BuildRun& run) {
                const store::TableFiles::ReadScope scope(run.files);
                const std::string path = run.files.SettingsFolder() + "\\" + file;
                store::TableText text(table + " = {");
                for (int number = -1; number <= run.lastProfile; ++number) {
                    std::string value =
                        run.files.ReadTableValue(path, std::to_string(number), "", false);
                    if (value.empty()) value = "0";
                    text.Line(1, "[" + std::to_string(number) + "] = \"" + value + "\",");
                }
                run.files.WriteTextFile(file, text.End());
            }};
}

// The tables of the archive's own data, which the scripts fill: made empty when missing.
const std::vector<store::FileSchema>& HyperlinkDataTables() {
    static const std::vector<store::FileSchema> tables = [] {
        std::vector<store::FileSchema> made;
        for (const char* name : {"CategoryIndex", "Index", "Items", "PendingIndex", "PendingItems",
                                 "VoteIP", "VoteNick"}) {
            made.push_back({.file = std::string(kHyperlinkFolder) + "\\Hyperlink" + name + ".tbl",
                            .table = std::string("tHyperlink") + name,
                            .fields = {},
                            .kind = store::FileKind::Data});
        }
        return made;
    }();
    return tables;
}

}  // namespace

const std::vector<CommandMatrix>& ArchivePermissions() {
    static const std::vector<CommandMatrix> members = [] {
        std::vector<CommandMatrix> made;
        for (const ArchiveKind& kind : ArchiveKinds()) {
            made.push_back({kind.name + "~Permissions", kCommands,
                            "TheVellum\\" + kind.name + "\\" + kind.name + "Enable",
                            "t" + kind.name + "Enable"});
        }
        // The page names the right click tables as it names the commands' tables, without RC;
        // the builder names them with it.
        made.push_back({"Hyperlink~RightClicks", kRightClicks,
                        "TheVellum\\Hyperlink\\HyperlinkRCEnable", "tHyperlinkEnable", "RIGHTCLICK",
                        "View By Right Click"});
        return made;
    }();
    return members;
}

const CommandMatrix& ArcadePermissions() {
    return ArchivePermissions().at(4);
}

std::vector<store::BuildStep> HyperlinkPermissionBuilds() {
    std::vector<store::BuildStep> steps;
    for (const std::string& command : kCommands) {
        steps.push_back(
            EnableBuild(std::string(kHyperlinkFolder) + "\\HyperlinkEnable" + command + ".tbl",
                        "tHyperlinkEnable" + command));
    }
    for (const std::string& rightClick : kRightClicks) {
        steps.push_back(
            EnableBuild(std::string(kHyperlinkFolder) + "\\HyperlinkRCEnable" + rightClick + ".tbl",
                        "tHyperlinkRCEnable" + rightClick));
    }
    for (const store::FileSchema& table : HyperlinkDataTables())
        steps.emplace_back(table);
    return steps;
}

}  // namespace qb::pages
