#include "gui/fatal.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <vector>

#include "store/fatal_error.h"

namespace qb::gui {
namespace {

bool fatalShown = false;
int depth = 0;

struct Pending {
    QPointer<const QObject> owner;
    std::function<void()> work;
};
std::vector<Pending> pending;

void RunPending() {
    while (!pending.empty()) {
        std::vector<Pending> now;
        now.swap(pending);
        for (auto& job : now) {
            if (job.owner) job.work();
        }
    }
}

}  // namespace

bool FatalErrorShown() {
    return fatalShown;
}

void AfterDispatch(const QObject* owner, std::function<void()> work) {
    if (depth == 0) {
        work();
        return;
    }
    for (const auto& job : pending) {
        if (job.owner == owner) return;
    }
    pending.push_back({owner, std::move(work)});
}

void Guard(const std::function<void()>& action) {
    if (fatalShown) return;
    ++depth;
    try {
        action();
    } catch (const store::FatalError& error) {
        fatalShown = true;
        QCoreApplication::exit(1);
        QMessageBox::critical(nullptr, QStringLiteral("Vandrell's Quillbook"),
                              QString::fromStdString(error.Path()) + QStringLiteral("\n\n") +
                                  QString::fromStdString(error.Reason()));
    }
    --depth;
    if (depth == 0) RunPending();
}

}  // namespace qb::gui
