// Bookmarks and find: marks on rows of the two-window result, and the search of both grids.
#include "frame/ErrorReporter.h"
#include "frame/NumericSort.h"
#include "frame/Prompter.h"
#include "results/Commands.h"
#include "results/GridFind.h"
#include "results/frmFileDiffs.h"

#include <algorithm>

namespace orvane {

bool frmFileDiffs::RowIsBookmarked(long Row) {
    const CellPictureId p = originalGrid_.RowPicture(Row);
    return p == CellPictureId::Bookmark || p == CellPictureId::BookmarkArrow;
}

void frmFileDiffs::ToggleBookmark() {
    try {
        const long r = originalGrid_.Row();
        if (RowIsBookmarked(r)) {
            originalGrid_.SetCellPicture(CellPictureId::None);
            UpdateRowArrow();
            MarkCurrentRowInDiffsBar();
            BookmarkList.erase(std::remove(BookmarkList.begin(), BookmarkList.end(), r),
                               BookmarkList.end());
        } else {
            originalGrid_.SetCellPicture(CellPictureId::BookmarkArrow);
            BookmarkList.push_back(r);
            SortLongCollection(BookmarkList);
        }
        UpdateBookmarkCommands();
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.ToggleBookmark");
    }
}

void frmFileDiffs::ClearAllBookmarks() {
    try {
        const long r = originalGrid_.Row();
        for (long row : BookmarkList) {
            originalGrid_.SetRow(row);
            originalGrid_.SetCellPicture(CellPictureId::None);
            if (row == r) UpdateRowArrow();
        }
        BookmarkList.clear();
        originalGrid_.SetRow(r);
        UpdateBookmarkCommands();
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.ClearAllBookmarks");
    }
}

long frmFileDiffs::ScanBookmarks(bool forward) {
    if (mousePointer_ == PointerHourglass) return kNavigationBusy;
    SetMousePointer(PointerHourglass);
    long result = -1;
    const long r = originalGrid_.Row();
    if (forward) {
        const auto it = std::find_if(BookmarkList.begin(), BookmarkList.end(),
                                     [r](long row) { return row > r; });
        if (it != BookmarkList.end()) result = *it;
    } else {
        const auto it = std::find_if(BookmarkList.rbegin(), BookmarkList.rend(),
                                     [r](long row) { return row < r; });
        if (it != BookmarkList.rend()) result = *it;
    }
    SetMousePointer(PointerDefault);
    return result;
}

long frmFileDiffs::GetNextBookmark() {
    return ScanBookmarks(true);
}
long frmFileDiffs::GetPreviousBookmark() {
    return ScanBookmarks(false);
}

void frmFileDiffs::StepToBookmark(bool forward) {
    if (mousePointer_ == PointerHourglass) return;
    const long row = forward ? GetNextBookmark() : GetPreviousBookmark();
    if (row == -1)
        prompter().MsgBox("No more bookmarks", MsgIcon::Information,
                          forward ? "Next Bookmark" : "Previous Bookmark");
    else
        FollowRow(row);
}

void frmFileDiffs::UpdateBookmarkCommands() {
    const bool any = !BookmarkList.empty();
    for (const char* name :
         {"mnuFileNextBookmark", "mnuFilePreviousBookmark", "mnuFileClearAllBookmarks"})
        commands_->Enable(name, any);
}

bool frmFileDiffs::Find(const std::string& SearchText, const std::string& Direction,
                        long& FoundRow) {
    try {
        return FindInGrids(originalGrid_, revisedGrid_, SearchText, Direction, FoundRow);
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.Find");
        return false;
    }
}

void frmFileDiffs::mnuFileFind_Click() {
    std::string text = SearchTextList.empty() ? std::string() : SearchTextList.back();
    if (!prompter().InputBox("Enter search text.\r\n\r\nPress OK to begin searching from the "
                             "current line.",
                             "Find", text) ||
        text.empty())
        return;
    long row = 0;
    const bool inReport = ReportShown();
    const bool found = inReport ? FindInReport(text, true, true) : Find(text, "Both", row);
    if (found) {
        SearchTextList.push_back(text);
        if (!inReport) FollowRow(row);
    } else if (!inReport && originalGrid_.Row() != 1) {
        prompter().MsgBox("Search text was not found.  Try searching from the beginning of the "
                          "file.",
                          MsgIcon::Information, "Find");
    } else {
        prompter().MsgBox("Search text was not found.", MsgIcon::Information, "Find");
    }
    EnableFindAgainCommands(found);
}

void frmFileDiffs::mnuFileFindAgain_Click(bool forward) {
    if (SearchTextList.empty() || SearchTextList.back().empty()) return;
    if (ReportShown()) {
        const std::string text = SearchTextList.back();
        if (FindInReport(text, false, forward))
            SearchTextList.push_back(text);
        else
            prompter().MsgBox("Search text was not found.", MsgIcon::Information, "Find");
        return;
    }
    long row = 0;
    if (Find(SearchTextList.back(), forward ? "Next" : "Previous", row))
        FollowRow(row);
    else
        prompter().MsgBox("Search text not found", MsgIcon::Information, "Find");
}

void frmFileDiffs::EnableFindAgainCommands(bool Enabled) {
    commands_->Enable("mnuFileFindNext", Enabled);
    commands_->Enable("mnuFileFindPrevious", Enabled);
}

} // namespace orvane
