#include <map>
#include <memory>
#include <stdexcept>

#include "families/quiz/quiz_game.h"
#include "shell/page_frame.h"
#include "store/table_text.h"
#include "store/text_rules.h"

namespace qb::pages {
namespace {

using store::FieldKind;

std::string Indexed(const std::string& array, size_t index) {
    return array + "(" + std::to_string(index) + ")";
}

// The game's default lookup: key in, default out, empty for a key it doesn't know.
std::string DefaultIn(const QuizGame& game, const std::string& key) {
    for (const auto* flags : {&SharedQuizFlags(), &game.flags}) {
        for (const QuizFlag& flag : *flags) {
            if (flag.key == key) return flag.defaultValue;
        }
    }
    for (const QuizNumber& number : game.numbers) {
        if (number.key == key) return number.defaultValue;
    }
    for (const store::ListEntry& entry : game.defaults) {
        if (entry.key == key) return entry.value;
    }
    return {};
}

std::string FileOf(const QuizGame& game) {
    return game.folder + "\\" + game.settings + ".tbl";
}

// A key's kind by its prefix, as the scripts name them.
FieldKind KindOf(const std::string& key) {
    switch (key.front()) {
        case 'b':
            return FieldKind::Flag;
        case 'i':
            return FieldKind::Number;
        case 't':
            return FieldKind::NamedValues;
        default:
            return FieldKind::String;
    }
}

store::FileSchema MakeSchema(const QuizGame& game) {
    store::FileSchema schema{.file = FileOf(game), .table = "t" + game.settings, .fields = {}};
    for (const std::string& key : game.pageOrder) {
        store::Field field{.kind = KindOf(key), .key = key, .defaultValue = DefaultIn(game, key)};
        // The builder keeps only the first character of these defaults; a value the file holds
        // stays whole.
        for (const std::string& cut : game.oneCharacterDefaults) {
            if (cut == key) field.defaultValue = field.defaultValue.substr(0, 1);
        }
        for (const QuizNumber& number : game.numbers) {
            if (number.key == key) field.range = number.range;
        }
        if (field.kind == FieldKind::NamedValues) {
            for (const QuizCalculation& row : game.calculation)
                field.defaultRows.push_back({row.key, row.defaultValue});
        }
        schema.fields.push_back(std::move(field));
    }
    schema.pageForm.lines = game.pageLines;
    schema.pageForm.fixed = game.pageFixed;
    schema.builderForm.order = game.builderOrder;
    return schema;
}

// The Numbers game's four operand rows: a row per key of the nested table, its type in the
// first column and the value's four numbers in the next four. The rows are fixed; the list's
// own editing is another matter.
class CalculationBinding : public shell::Binding {
  public:
    CalculationBinding(const store::FileSchema& file, const store::Field& field,
                       const QuizGame& game, shell::ListControl& list)
        : Binding(file, field, field.key), game_(game), list_(list) {}

    void Load(store::TableFiles& files, const store::ProfileList&) override {
        Fill([&](const QuizCalculation& row) {
            std::string value = files.ReadTableValue(File().file, row.key, "");
            // A row the file lacks shows its default rather than four empty numbers, which the
            // builder would keep as they are.
            return value.empty() ? row.defaultValue : value;
        });
    }
    void Restore(const store::ProfileList&) override {
        Fill([](const QuizCalculation& row) { return row.defaultValue; });
    }
    std::string Value(int row) const override {
        std::string value;
        for (int column = 2; column <= 5; ++column) {
            if (column > 2) value += ',';
            value += list_.Cell(row + 1, column);
        }
        return value;
    }

  private:
    template <class ValueOf>
    void Fill(ValueOf valueOf) {
        list_.Clear();
        for (const QuizCalculation& row : game_.calculation) {
            const std::string value = valueOf(row);
            const int index = list_.Count() + 1;
            list_.Append(row.key, row.type);
            // A value of fewer than four numbers leaves the columns behind them empty.
            size_t from = 0;
            for (int column = 2; column <= 5 && from <= value.size(); ++column) {
                const size_t comma = value.find(',', from);
                list_.SetCell(index, column,
                              value.substr(from, comma == std::string::npos ? std::string::npos
                                                                            : comma - from));
                from = comma == std::string::npos ? value.size() + 1 : comma + 1;
            }
        }
    }

    const QuizGame& game_;
    shell::ListControl& list_;
};

void SetupNumbersToolbar(shell::Toolbar& toolbar) {
    SetupEditToolbar(toolbar);
    toolbar.SetButtonTip("EDIT", "Edit question");
}

void SetupAsciiToolbar(shell::Toolbar& toolbar) {
    SetupEditToolbar(toolbar);
    toolbar.SetButtonTip("EDIT", "Edit ascii");
}

// The width of a list: its columns beside a scroll bar.
int WidthOf(const std::vector<shell::ListColumn>& columns) {
    int width = 350;
    for (const shell::ListColumn& column : columns)
        width += column.width;
    return width;
}

struct QuizParts {
    store::FileSchema schema;
    shell::PageDecl page;
};

shell::PageDecl MakePage(const QuizGame& game, const store::FileSchema& schema) {
    using namespace shell::decl;
    using shell::Item;
    shell::PageDecl page{.key = game.key,
                         .caption = game.caption,
                         .size = game.size,
                         .files = {&schema},
                         // A discard reloads the file and leaves nothing to save.
                         .discardClears = true};
    shell::Layout checks = shell::Column({});
    std::vector<QuizFlag> flags = SharedQuizFlags();
    flags.insert(flags.end(), game.flags.begin(), game.flags.end());
    for (size_t index = 0; index < flags.size(); ++index) {
        const std::string name = Indexed(game.checks, index);
        page.controls.push_back(Check(name, flags[index].key, flags[index].caption));
        checks.items.push_back(Item(name));
    }
    for (const QuizText& text : game.texts) {
        shell::Quirks quirks = text.quirks;
        if (!text.restoreKey.empty()) quirks.restoreValue = DefaultIn(game, text.restoreKey);
        page.controls.push_back(With(quirks, Text(text.control, text.key, text.caption)));
        checks.items.push_back(Item(text.control));
    }
    checks.items.push_back(shell::Stretch());

    shell::Layout numbers = shell::Column({});
    for (size_t index = 0; index < game.numbers.size(); ++index) {
        const QuizNumber& number = game.numbers[index];
        const std::string label = Indexed("lblLabel", index);
        const std::string box = Indexed("txtTextBoxUpDown", index);
        const std::string spin = Indexed("updUpDownTextBox", index);
        page.controls.push_back(Label(label, number.caption));
        // Every box of the array marks the page when it changes, the dead one too.
        page.controls.push_back(number.key.empty() ? Marks(SpinOnly(box, spin, number.range))
                                                   : Spin(box, spin, number.key));
        numbers.items.push_back(shell::Row({Item(label), Item(box), Item(spin)}));
    }
    numbers.items.push_back(shell::Stretch());

    shell::Layout right = shell::Column({});
    size_t option = 0;
    for (size_t group = 0; group < game.options.size(); ++group) {
        const std::string frame = Indexed("fraOption", group);
        page.controls.push_back(Frame(frame, game.options[group].caption));
        shell::Layout inside = shell::Column({});
        for (const QuizOption& each : game.options[group].options) {
            const std::string name = Indexed("optOption", option++);
            page.controls.push_back(
                Option(name, game.options[group].key, each.caption, each.value));
            inside.items.push_back(Item(name));
        }
        right.items.push_back(shell::InFrame(frame, std::move(inside)));
    }
    if (!game.calculation.empty()) {
        page.controls.push_back(Toolbar("tlbNumbers", {SetupNumbersToolbar}));
        page.controls.push_back(List("lvwNumbers", 4200,
                                     {{"column1", "Type", 600},
                                      {"column2", "X Min", 850},
                                      {"column3", "X Max", 850},
                                      {"column4", "Y Min", 850},
                                      {"column5", "Y Max", 850}}));
        right.items.push_back(Item("tlbNumbers"));
        right.items.push_back(Item("lvwNumbers"));
    }
    if (game.stages) {
        page.controls.push_back(
            Slider("sldAscii", "Ascii", {0, game.stages->last, 1}, game.stages->largeChange));
        page.controls.push_back(Toolbar("tlbAscii", {SetupAsciiToolbar}));
        right.items.push_back(shell::Row({Item("sldAscii"), Item("tlbAscii"), shell::Stretch()}));
    }
    if (game.words) {
        page.controls.push_back(Toolbar(kWordToolbar, {shell::SetupWordListToolbar}));
        page.controls.push_back(List(kWordList, WidthOf(game.words->columns), game.words->columns));
        right.items.push_back(Item(kWordToolbar));
        right.items.push_back(Item(kWordList));
    }
    // A column of lists fills the page's height; options alone keep to the top.
    if (game.calculation.empty() && !game.words) right.items.push_back(shell::Stretch());
    shell::Layout body = shell::Row({checks, numbers});
    if (!game.options.empty() || !game.calculation.empty() || game.stages || game.words)
        body.items.push_back(right);
    page.layout = std::move(body);
    return page;
}

const QuizParts& PartsOf(const QuizGame& game) {
    static std::map<const QuizGame*, std::unique_ptr<QuizParts>> made;
    auto& parts = made[&game];
    if (!parts) {
        parts = std::make_unique<QuizParts>();
        parts->schema = MakeSchema(game);
        parts->page = MakePage(game, parts->schema);
    }
    return *parts;
}

class QuizPage : public shell::Page {
  public:
    QuizPage(shell::PageContext& context, const QuizGame& game)
        : Page(context, PartsOf(game).page), game_(game) {
        const store::FileSchema& schema = PartsOf(game).schema;
        for (const store::Field& field : schema.fields) {
            if (field.kind != FieldKind::NamedValues) continue;
            auto& operands = Get<shell::ListControl>("lvwNumbers");
            AddBinding(std::make_unique<CalculationBinding>(schema, field, game, operands));
            Get<shell::Toolbar>("tlbNumbers").onButtonClick = [this](const std::string& key) {
                if (key == "EDIT") EditOperands();
            };
            operands.onDoubleClick = [this](int) { EditOperands(); };
        }
        if (game.stages) {
            Get<shell::Toolbar>("tlbAscii").onButtonClick = [this](const std::string&) {
                EditStage();
            };
        }
        if (game.words) {
            auto& toolbar = Get<shell::Toolbar>(kWordToolbar);
            words_ = std::make_unique<WordListEditor>(
                *game.words, game.folder + "\\" + game.words->file,
                Get<shell::ListControl>(kWordList), toolbar, context.host, context.files,
                [this] { ShowPopupMenu("mnuFirst"); });
            // The shared menu's entries do what the list's buttons do, where they can.
            for (const auto& [entry, button] :
                 {std::pair{"Add", "NEW"}, std::pair{"Delete", "DELETE"},
                  std::pair{"Edit", "EDIT"}}) {
                PublishMenuMethod(
                    std::string("gMenuFirst") + entry + "Click",
                    [&toolbar, key = std::string(button)] { toolbar.UserClick(key); });
            }
        }
    }

  protected:
    // A game whose hidden character the scripts can't do without refuses to save it empty. The
    // toolbar clears the mark all the same, so the page looks saved though nothing was written.
    void SaveSettings() override {
        if (!game_.requiredText.empty() && Get<shell::TextBox>(game_.requiredText).Text().empty()) {
            const shell::Prompt& prompt = game_.requiredPrompt;
            context_.host.ShowMessage({prompt.text, prompt.title, shell::Buttons::OK, prompt.icon});
            return;
        }
        Page::SaveSettings();
    }

  private:
    // An operand row in the four-field dialog. Only X Minimum is tested, and only for being a
    // number: a refused edit opens the dialog again on the row as it was. The edit marks nothing:
    // the row reaches the file with the next save that something else enables.
    void EditOperands() {
        auto& operands = Get<shell::ListControl>("lvwNumbers");
        if (operands.Count() == 0) return;
        const int row = operands.Selected() != 0 ? operands.Selected() : 1;
        for (;;) {
            shell::DialogRequest request{
                .kind = shell::DialogKind::FourFields,
                .caption = "Edit Question",
                .labels = {"X Minimum", "X Maximum", "Y Minimum", "Y Maximum"},
                .mode = "E",
                // X Minimum is painted as the field that must hold something, and an edit of
                // one row has no Add.
                .required = 0};
            for (int column = 2; column <= 5; ++column)
                request.values[static_cast<size_t>(column - 2)] = operands.Cell(row, column);
            const shell::DialogResult result = context_.host.ShowDialog(request);
            if (result.mode.empty()) return;
            if (!store::NumericValue(result.fields[0])) {
                context_.host.ShowMessage({"Invalid Entry: Integers required in all fields",
                                           "Invalid Entry", shell::Buttons::OK,
                                           shell::Icon::Exclamation});
                continue;
            }
            for (int column = 2; column <= 5; ++column)
                operands.SetCell(row, column, result.fields[static_cast<size_t>(column - 2)]);
            return;
        }
    }

    // The slider picks the stage, counted down from the last.
    void EditStage() {
        const QuizStages& stages = *game_.stages;
        const int stage = stages.last - Get<shell::Slider>("sldAscii").Value();
        context_.host.OpenTextEditor(
            game_.folder + "\\" + stages.folder + "\\" + std::to_string(stage) + ".asc", "E");
    }

    const QuizGame& game_;
    std::unique_ptr<WordListEditor> words_;
};

// A file the scripts fill, made when missing with its first text.
store::BuildStep DataFile(std::string file, std::string text) {
    const std::string folder = store::FolderOf(file);
    return {folder, [file = std::move(file), text = std::move(text)](store::BuildRun& run) {
                if (run.files.FileExists(run.files.SettingsFolder() + "\\" + file)) return;
                run.files.WriteTextFile(file, text);
            }};
}

}  // namespace

const std::vector<QuizFlag>& SharedQuizFlags() {
    static const std::vector<QuizFlag> flags = {
        {"bManualStart", "Manual Start Only", "0"},
        {"bOpOnlyStart", "Operator Start", "0"},
        {"bOpOnlyStop", "Operator Stop", "0"},
        {"bPlayInMain", "Play Game In Main", "1"},
        {"bAutoClearScores", "Auto Clear Scores", "1"},
        {"bArchiveScores", "Auto Archive Scores", "1"},
    };
    return flags;
}

const store::FileSchema& QuizSettingsSchema(const QuizGame& game) {
    return PartsOf(game).schema;
}

shell::PageEntry QuizPageOf(const QuizGame& game) {
    return {PartsOf(game).page, [&game](shell::PageContext& context) {
                return std::make_unique<QuizPage>(context, game);
            }};
}

std::vector<store::BuildStep> QuizBuilds(const QuizGame& game) {
    std::vector<store::BuildStep> steps{QuizSettingsSchema(game)};
    for (const QuizDataFile& file : game.dataFiles)
        steps.push_back(DataFile(game.folder + "\\" + file.name, file.text));
    if (game.words)
        steps.push_back(DataFile(game.folder + "\\" + game.words->file, game.words->sample));
    // The players, the index of archived scores and the scores: empty tables the scripts fill.
    const std::string newline(store::kNewline);
    for (const char* part : {"Players", "ScoresArchiveIndex"}) {
        const std::string table = game.prefix + part;
        steps.push_back(
            DataFile(game.folder + "\\" + table + ".tbl", "t" + table + " = {" + newline + "}"));
    }
    const std::string scores = game.prefix + "Scores";
    steps.push_back(DataFile(game.folder + "\\" + scores + ".tbl",
                             "t" + scores + " = {" + newline + "\tn=0" + newline + "}"));
    // The stages are empty until the user draws them.
    if (game.stages) {
        for (int stage = 0; stage <= game.stages->last; ++stage) {
            steps.push_back(DataFile(
                game.folder + "\\" + game.stages->folder + "\\" + std::to_string(stage) + ".asc",
                ""));
        }
    }
    return steps;
}

}  // namespace qb::pages
