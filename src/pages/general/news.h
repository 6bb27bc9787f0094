#pragma once
// The scripts' news: rows that reach News.tbl in the shared folder from outside the manager, shown
// in the main window's status bar and on the news page. Nothing is downloaded; the manager only
// reads the two news files and writes them back at every start.

#include <string>
#include <string_view>

#include "shell/controls.h"
#include "shell/page_registry.h"
#include "store/schema.h"
#include "store/table_files.h"

namespace qb::pages {

// Below the program folder.
inline constexpr std::string_view kNewsFile = "Vandrell's Scripts\\News\\News.tbl";

// Vandrell's Scripts\News\NewsSettings.tbl: the id of the last news row, iLastID.
const store::FileSchema& NewsSettingsSchema();

// The five columns of a news list, keys column1 to column5: date, headline, story, symbol, id.
// Widths are the list's owner's to set.
void AddNewsColumns(shell::ListControl& list);

// Appends the rows of News.tbl: the row's text is the date, then headline, story, symbol and the
// news id. A row whose value has fewer than four fields ends the load: it stays, filled up to its
// missing field, the rows behind it aren't loaded, and the result is false.
bool LoadNewsRows(store::TableFiles& files, shell::ListControl& list);

// News.tbl as it is written back: one row per list row, in list order.
std::string NewsText(const shell::ListControl& list);

// The news at start: fills the container's hidden lvwNews, writes both news files back, and
// shows the last row's headline and story in panels 3 and 4 of the main window's status bar
// (when one is given).
void LoadNews(store::TableFiles& files, shell::ListControl& lvwNews,
              shell::StatusBar* stsContainer);

// frmGeneralNews: the news rows, to read and delete.
shell::PageEntry NewsPage();

}  // namespace qb::pages
