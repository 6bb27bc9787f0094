#pragma once
// A hub with every builder registered that rebuilds one area of its settings tree: the fixture of
// each group's rebuild tests, which read and write files below the area's folder.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "pages/pages.h"
#include "store/builders.h"
#include "store/table_files.h"
#include "support/temp_hub.h"

namespace qb::test {

class AreaRebuild : public ::testing::Test {
  protected:
    AreaRebuild(store::Area area, std::string folder) : area_(area), folder_(std::move(folder)) {
        pages::RegisterAllBuilders(builders);
    }
    // A hub of `profiles` profiles, Unregistered counted.
    void Rebuild(int profiles) {
        Run(store::BuildRun{.files = files, .lastProfile = profiles - 2, .version = version});
    }
    // A hub whose profiles have these names, Unregistered first.
    void Rebuild(std::vector<std::string> names) {
        Run(store::BuildRun{.files = files,
                            .lastProfile = static_cast<int>(names.size()) - 2,
                            .version = version,
                            .profileNames = std::move(names)});
    }
    std::string Read(const std::string& file) const { return hub.ReadSetting(folder_ + file); }
    void Write(const std::string& file, const std::string& bytes) const {
        hub.WriteSetting(folder_ + file, bytes);
    }

    TempHub hub;
    store::TableFiles files{hub.ProgramFolder()};
    store::BuilderRegistry builders;
    // The version the rebuilds run as: the build's, unless a test asks for another.
    store::ProgramVersion version = store::kBuildVersion;

  private:
    void Run(store::BuildRun run) { builders.BuildArea(area_, run); }
    store::Area area_;
    std::string folder_;
};

}  // namespace qb::test
