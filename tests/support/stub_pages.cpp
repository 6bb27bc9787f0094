#include "support/stub_pages.h"

#include "shell/catalogue.h"
#include "shell/page.h"

namespace qb::test {
namespace {

class StubPage : public shell::Page {
  public:
    StubPage(shell::PageContext& context, const StubPageDesc& desc, std::vector<std::string>& calls)
        : Page(context,
               {.key = desc.key,
                .caption = desc.caption.empty() ? shell::CaptionOfKey(desc.key) : desc.caption,
                .size = {3400, 6075}}),
          lvwRows(Add<shell::ListControl>("lvwRows")),
          calls_(calls) {
        for (const auto& method : desc.methods) {
            PublishMenuMethod(
                method, [&calls, key = desc.key, method] { calls.push_back(key + ":" + method); });
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
    void TextEditorSaved(const std::string& file) override {
        calls_.push_back(Key() + ":saved " + file);
    }

    shell::ListControl& lvwRows;
    std::vector<std::string>& calls_;
};

}  // namespace

void RegisterStubPages(shell::PageRegistry& registry, const std::vector<StubPageDesc>& pages,
                       std::vector<std::string>& calls) {
    for (const auto& desc : pages) {
        registry.Register(desc.key, [desc, &calls](shell::PageContext& context) {
            return std::make_unique<StubPage>(context, desc, calls);
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
