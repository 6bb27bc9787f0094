// The pair shape's builder. A matrix survives a change of the hub's profiles by its numbers alone:
// every cell is carried over by its By and On numbers, numbers new to the hub start at 0, and
// numbers the hub lost are dropped. A profile's name plays no part in it.

#include <string>
#include <vector>

#include "families/matrix/pair_matrix.h"
#include "store/table_text.h"

namespace qb::pages {
namespace {

// The files the builder writes: its own list where it has one, else the commands'.
std::vector<PairFile> BuilderFiles(const PairMatrix& matrix) {
    if (!matrix.builderFiles.empty()) return matrix.builderFiles;
    std::vector<PairFile> files;
    for (const PairCommand& command : matrix.commands)
        files.push_back(command.file);
    return files;
}

// Rewrites one file for today's profiles, with the variant's rows where it has one.
void BuildPairFile(const PairFile& file, int firstOn, const PassiveVariant* passive,
                   store::BuildRun& run) {
    // A matrix of P profiles asks its file P times P: the scope reads it once.
    const store::TableFiles::ReadScope scope(run.files);
    const std::string path = run.files.SettingsFolder() + "\\" + file.file;
    // The old value as read, or 0 where it is empty or missing.
    auto old = [&](const std::string& key, const std::string& table) {
        std::string value = run.files.ReadTableValue(path, key, table);
        return value.empty() ? std::string("0") : value;
    };

    // Every profile number is a key P times over: each is made into text once.
    std::vector<std::string> numbers;
    for (int number = -1; number <= run.lastProfile; ++number)
        numbers.push_back(std::to_string(number));
    const auto number = [&](int n) -> const std::string& {
        return numbers[static_cast<size_t>(n + 1)];
    };
    store::TableText text(file.table + " = {");
    // A cell's line is some ten bytes: the text grows once.
    text.Reserve(numbers.size() * (numbers.size() + 4) * 12);
    if (passive != nullptr) {
        text.Open(1, passive->subTable);
        for (int n = -1; n <= run.lastProfile; ++n)
            text.Row(2, number(n), old(number(n), passive->subTable));
        text.Close(1);
    }
    for (int by = -1; by <= run.lastProfile; ++by) {
        const std::string& group = number(by);
        text.Open(1, "[" + group + "]");
        for (int on = firstOn; on <= run.lastProfile; ++on)
            text.Row(2, number(on), old(number(on), group));
        if (passive != nullptr) {
            for (const std::string& word : passive->builderWords)
                text.Bare(2, word, old(word, group));
        }
        text.Close(1);
    }
    run.files.WriteTextFile(file.file, text.End());
}

}  // namespace

void BuildPairMatrix(const PairMatrix& matrix, store::BuildRun& run) {
    // The passive variant belongs to a member of one file.
    const PassiveVariant* passive = matrix.passive;
    for (const PairFile& file : BuilderFiles(matrix)) {
        BuildPairFile(file, matrix.builderFirstOn, passive, run);
        passive = nullptr;
    }
}

store::BuildStep PairMatrixBuild(const PairMatrix& matrix) {
    return {store::FolderOf(BuilderFiles(matrix).front().file), [&matrix](store::BuildRun& run) {
                BuildPairMatrix(matrix, run);
                if (matrix.passive != nullptr) BuildFile(*matrix.passive->dataFile, run);
            }};
}

}  // namespace qb::pages
