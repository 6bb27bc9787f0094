#include "support/stub_pages.h"

#include "shell/catalogue.h"
#include "shell/page.h"

namespace qb::test {
namespace {

class StubPage : public shell::Page {
  public:
    StubPage(shell::PageContext& context, const StubPageSpec& spec, std::vector<std::string>& calls)
        : Page(context, spec.key,
               spec.caption.empty() ? shell::CaptionOfKey(spec.key) : spec.caption, {3400, 6075}),
          lvwRows(Add<shell::ListControl>("lvwRows")) {
        for (const auto& method : spec.methods) {
            PublishMenuMethod(
                method, [&calls, key = spec.key, method] { calls.push_back(key + ":" + method); });
        }
        lvwRows.onRightClick = [this](int) { ShowPopupMenu("mnuFirst"); };
        SetBody(shell::Column({shell::Item(lvwRows)}));
    }

  private:
    void Setup() override { lvwRows.AddColumn("column1", "Rows", 3000); }
    void LoadSettings() override {
        lvwRows.Clear();
        lvwRows.Append("1ID", "a row");
    }
    void RestoreDefaults() override {}
    void SaveSettings() override {}

    shell::ListControl& lvwRows;
};

}  // namespace

void RegisterStubPages(shell::PageRegistry& registry, const std::vector<StubPageSpec>& pages,
                       std::vector<std::string>& calls) {
    for (const auto& spec : pages) {
        registry.Register(spec.key, [spec, &calls](shell::PageContext& context) {
            return std::make_unique<StubPage>(context, spec, calls);
        });
    }
}

std::vector<std::string> TreeFunctionKeys(size_t count) {
    std::vector<std::string> keys;
    for (const auto& key : shell::FunctionKeys()) {
        if (keys.size() == count) break;
        if (key != "Communication~HubEmail" && key != "Communication~Portal") {
            keys.push_back(key);
        }
    }
    return keys;
}

}  // namespace qb::test
