#pragma once
// Every call from a widget into a page runs through Guard. It handles the one fatal error: shows
// the path and the system's reason and ends the program with status 1, after which no further user
// action reaches a page. And it lets views put off work until the page has finished handling the
// event: a list filled row by row in one LoadSettings is shown once, not once per row.

#include <QObject>
#include <functional>

namespace qb::gui {

// Runs `action`; then the work views put off during it. On a fatal error shows it and ends the
// event loop with exit status 1.
void Guard(const std::function<void()>& action);

// Whether a fatal error has ended the program.
bool FatalErrorShown();

// Runs `work` when the outermost Guard returns, or at once outside any. Work put off twice by the
// same owner before it runs, runs once.
void AfterDispatch(const QObject* owner, std::function<void()> work);

}  // namespace qb::gui
