#include "shell/text_editor.h"

namespace qb::shell {
namespace {

class TextEditorPage : public Page {
  public:
    TextEditorPage(PageContext& context, const std::string& file, const std::string& mode,
                   std::function<void()> saved)
        : Page(context, {.key = kTextEditorKey,
                         .caption = "Text Editor ~ " + file,
                         .size = {9000, 6075},
                         .noRestore = true,
                         .discardClears = true}),
          txtPath(Add<TextBox>("txtPath")),
          txtTextBox(Add<TextBox>("txtTextBox", true)),
          newFile_(mode == "N"),
          saved_(std::move(saved)) {
        txtPath.SetText(file);
        txtPath.SetVisible(false);
        txtTextBox.onChange = [this] { MarkDirty(); };
        SetBody(Column({Item(txtTextBox)}));
    }

  private:
    void LoadSettings() override {
        // A new file is not read when the page opens; DISCARD reads whatever SAVE has made.
        if (newFile_) {
            newFile_ = false;
            return;
        }
        // ReadTextFile closes every line with a line break and WriteTextFile adds one of its own,
        // so each load and save grows the file by an empty line. The scripts don't mind, and
        // files edited here have always grown so.
        txtTextBox.SetText(context_.files.ReadTextFile(txtPath.Text()));
    }

    void RestoreDefaults() override {}

    void SaveSettings() override {
        context_.files.WriteTextFile(txtPath.Text(), txtTextBox.Text());
        if (saved_) saved_();
    }

    TextBox& txtPath;
    TextBox& txtTextBox;
    bool newFile_;
    std::function<void()> saved_;
};

}  // namespace

std::unique_ptr<Page> MakeTextEditor(PageContext& context, const std::string& file,
                                     const std::string& mode, std::function<void()> saved) {
    return std::make_unique<TextEditorPage>(context, file, mode, std::move(saved));
}

}  // namespace qb::shell
