#include "gui/start.h"

#include "gui/fatal.h"
#include "pages/general/news.h"
#include "shell/startup.h"

namespace qb::gui {

bool StartBeforeWindow(shell::Container& container, const store::BuilderRegistry& builders) {
    bool ready = false;
    Guard([&] {
        ready = shell::RunStartChecks(container, builders) == shell::StartResult::Ready;
        if (!ready) return;
        // The status bar before the news, which shows its last article in panels 3 and 4.
        container.SetupStatusBar();
        pages::LoadNews(container.Files(), container.News(), &container.Status());
    });
    return ready && !FatalErrorShown();
}

}  // namespace qb::gui
