#include "gui/start.h"

#include "gui/fatal.h"
#include "pages/general/news.h"
#include "shell/startup.h"

namespace qb::gui {

bool StartBeforeWindow(shell::Container& container, const store::BuilderRegistry& builders) {
    bool ready = false;
    Guard([&] {
        ready = shell::RunStartChecks(container, builders) == shell::StartResult::Ready;
        if (ready) pages::LoadNews(container.Files(), container.News(), nullptr);
    });
    return ready && !FatalErrorShown();
}

}  // namespace qb::gui
