// The joke files: the files the jokes are drawn from, one of them the default, and the editor of
// one file at a time, a member of the question file page with a joke a line.

#include "pages/useractions/useractions.h"

namespace qb::pages {

// No builder makes this file or the jokes' folder: the page opens empty on a fresh tree, its
// NEW makes the folder and its SAVE the file.
const store::FileSchema& JokeFilesSchema() {
    static const store::FileSchema schema{
        .file = "UserActions\\Jokes\\JokeFiles.tbl",
        .table = "tJokeFiles",
        .fields = {{store::FieldKind::String, "sDefaultJokeFile", ""},
                   {store::FieldKind::Rows, "tJokeFiles", ""}},
        .kind = store::FileKind::Data,
    };
    return schema;
}

const QuestionFiles& JokeFiles() {
    static const QuestionFiles member{
        .key = "UserActions~Jokes~Files",
        .caption = "UserActions ~ Jokes ~ Files",
        .size = {7200, 7200},
        .schema = &JokeFilesSchema(),
        .folder = "UserActions\\Jokes\\JokeFiles\\",
        .defaultCombo = "cboJokeFileDefault",
        .comboCaption = "Default Joke File",
        .fileList = "lvwJokeFiles",
        .fileColumn = "Available Joke Files",
        .fileToolbar = "tlbJokeFiles",
        .rowList = "lvwJokes",
        .rowColumns = {{"column1", "Jokes", 6400}},
        .rowToolbar = "tlbJokes",
        // A joke is its line whole: a "*" in it or a last "t" stays.
        .answers = false,
        .makesFolder = true,
        .words =
            {
                .openTitle = "Select Joke File to open",
                .openFolder = "\\Vandrell's Quillbook\\Settings\\UserActions\\Jokes\\",
                .loadWarning = "Loading the Joke file may take some time. Do you wish to proceed?",
                .sample = "Cannot find REALITY.SYS. Universe halted.",
                .fileFloor = "There must be a minimum of one Joke File",
                .fileConfirm = "Delete Joke File?",
                // The add dialog's field is "Joke", the edit dialog's "Jokes".
                .rows =
                    {
                        .addTitle = "Add Joke",
                        .addLabels = {"Joke"},
                        .editTitle = "Edit Trivia Joke",
                        .editLabels = {"Jokes"},
                        .rowFloor = "There must be a minimum of one Joke",
                        .rowConfirm = "Do you really want to delete this Joke?",
                        .rowConfirmTitle = "Delete Joke?",
                    },
            },
    };
    return member;
}

}  // namespace qb::pages
