// The trivia question files: the list of the files the game draws on, one of them the default,
// and the editor of one file at a time, a member of the question file page.

#include "pages/games/games.h"

namespace qb::pages {

const store::FileSchema& TriviaQuestionFilesSchema() {
    static const store::FileSchema schema{
        .file = "Games\\Trivia\\TriviaQuestionFiles.tbl",
        .table = "tTriviaQuestionFiles",
        .fields = {{store::FieldKind::String, "sDefaultQuestionFile", "TriviaQuestions"},
                   {store::FieldKind::Rows, "tTriviaQuestionFiles", ""}},
        .kind = store::FileKind::Data,
        // The builder writes the default's key in brackets and quotes, with no tab before it;
        // the page reads both forms.
        .builderForm = {.lines = {{"sDefaultQuestionFile",
                                   {.depth = 0, .name = "[\"sDefaultQuestionFile\"]"}}}},
    };
    return schema;
}

const QuestionFiles& TriviaQuestions() {
    static const QuestionFiles member{
        .key = "Games~Trivia~Questions",
        .caption = "Games ~ Trivia ~ Questions",
        .size = {7200, 7200},
        .schema = &TriviaQuestionFilesSchema(),
        .folder = "Games\\Trivia\\QuestionFiles\\",
        .defaultCombo = "cboQuestionFileDefault",
        .comboCaption = "Default Question File",
        .fileList = "lvwQuestionFiles",
        .fileColumn = "Available Question Files",
        .fileToolbar = "tlbQuestionFiles",
        .rowList = "lvwQuestions",
        .rowColumns = {{"column1", "Questions", 4600}, {"column2", "Answers", 1800}},
        .rowToolbar = "tlbQuestions",
        .words =
            {
                .openTitle = "Select Trivia File to open",
                .openFolder = "\\Vandrell's Quillbook\\Settings\\Games\\Trivia\\",
                .loadWarning =
                    "Loading the question file may take some time. Do you wish to proceed?",
                .sample = "Literature: Who wrote Hamlet?*shakespeare",
                .fileFloor = "There must be a minimum of one Question File",
                .fileConfirm = "Delete Question File?",
                .rows =
                    {
                        .addTitle = "Add Trivia Question",
                        .addLabels = {"Category", "Question", "Answer"},
                        .editTitle = "Edit Trivia Question",
                        .editLabels = {"Category", "Question", "Answer"},
                        .rowFloor = "There must be a minimum of one Question",
                        .rowConfirm = "Do you really want to delete this question?",
                        .rowConfirmTitle = "Delete Question?",
                    },
            },
    };
    return member;
}

}  // namespace qb::pages
