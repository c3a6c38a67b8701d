// The View menu: one input shown outside the program, in the browser, as source in the editor,
// or as its text in the text editor. Each command acts on what its file box holds now.
#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"
#include "frame/Prompter.h"
#include "intake/ConvertFormats.h"
#include "intake/Formats.h"
#include "intake/Locations.h"
#include "intake/download/Download.h"
#include "output/Launch.h"
#include "results/frmFileDiffs.h"
#include "settings/Session.h"
#include "settings/ViewOptions.h"

#include <QComboBox>
#include <cstdio>

namespace orvane {
namespace {

std::string HandlerName(Side side, const char* command) {
    return std::string("frmFileDiffs.mnuView") + SideName(side) + "File" + command + "_Click";
}

bool IsNotepad(const std::string& spec) {
    return StringsAreEqualCompare(spec, "Notepad.exe", 1);
}

} // namespace

// The common entry: a well-formed address, or a local file that exists.
bool frmFileDiffs::ViewerSource(Side side, std::string& source, bool& isUrl) {
    source = Trim(FileBox(side)->currentText().toStdString());
    const LocationKind kind = ClassifyLocation(source);
    isUrl = kind == LocationKind::WebAddress;
    if (kind == LocationKind::BareHostName) {
        prompter().MsgBox("Web Addresses must begin with HTTP://", MsgIcon::Exclamation,
                          "Invalid URL Format");
        return false;
    }
    if (!isUrl && !FileExists(source)) {
        prompter().MsgBox(MissingFileText(side), MsgIcon::Exclamation, "File Does Not Exist");
        return false;
    }
    return true;
}

// A web page's temporary copy, or empty after the failure box.
std::string frmFileDiffs::DownloadForViewer(Side side, const std::string& url) {
    const std::string page = MakeDownloadFileSpec();
    if (!page.empty() && modOrvane::DownloadWebPage(url, page)) return page;
    std::remove(page.c_str());
    prompter().MsgBox(DownloadFailureText(side), MsgIcon::Exclamation, "Web Page Download failure");
    return {};
}

void frmFileDiffs::ViewInBrowser(Side side) {
    try {
        std::string source;
        bool isUrl = false;
        if (ViewerSource(side, source, isUrl))
            ShowHTMLFileInBrowser(source, isUrl ? SourceType::WebAddress : SourceType::LocalFile);
    } catch (...) {
        ReportUnexpectedError(HandlerName(side, "InDefaultBrowser"));
    }
}

void frmFileDiffs::ViewSourceCode(Side side) {
    std::string page;
    try {
        std::string source;
        bool isUrl = false;
        if (!ViewerSource(side, source, isUrl)) return;
        if (isUrl && session_.ViewOptions.ShowInternetSourceReminder)
            prompter().MsgBox(
                "The source code for this web page will be shown in a temporary file.\r\nIf you "
                "make changes to this temporary file, you must save it locally\r\nand upload it "
                "to your site in order for the changes to appear.\r\n\r\nTo turn this reminder "
                "off, uncheck the 'Show Internet Source Reminder' option",
                MsgIcon::Information, "Internet Source Reminder");
        if (isUrl && (page = DownloadForViewer(side, source)).empty()) return;
        const std::string file = isUrl ? page : source;
        // The editor is started with the file as its one argument, never through a shell.
        const bool shown = IsNotepad(session_.HTMLEditorFileSpec)
                               ? LoadFileInNotepad(file)
                               : (StartProgram({session_.HTMLEditorFileSpec, file}), true);
        if (!shown)
            prompter().MsgBox("Unable to show the source code in your editor.",
                              MsgIcon::Exclamation,
                              std::string(SideName(side)) + " File Source Code");
    } catch (...) {
        ReportUnexpectedError(HandlerName(side, "SourceCode"));
    }
    if (!page.empty()) std::remove(page.c_str());
}

void frmFileDiffs::ViewTextContent(Side side) {
    std::string page;
    try {
        std::string source;
        bool isUrl = false;
        if (!ViewerSource(side, source, isUrl)) return;
        if (isUrl && (page = DownloadForViewer(side, source)).empty()) return;
        if (!ViewFileAsText(isUrl ? page : source))
            prompter().MsgBox("Unable to show the file in the Notepad.", MsgIcon::Exclamation,
                              "View File in Notepad");
    } catch (...) {
        ReportUnexpectedError(HandlerName(side, "TextContent"));
    }
    if (!page.empty()) std::remove(page.c_str());
}

bool frmFileDiffs::ViewFileAsText(const std::string& FileSpec) {
    bool result = false;
    try {
        std::string format, description, reason;
        if (modConvertFormats::GetFormatOfFile(FileSpec, format, description, reason)) {
            const int method = modConvertFormats::GetConversionMethodForFormat(FileSpec, format);
            StartAnimation();
            SetMousePointer(PointerHourglass);
            DoEvents();
            std::string textFile = FileSpec;
            bool ready = true;
            if (method != 0)
                ready = modConvertFormats::ConvertFileIfNeeded(FileSpec, format, textFile, reason,
                                                               ComparisonMode::Text,
                                                               session_.ExtractionOptions);
            result = ready && LoadFileInNotepad(textFile);
        }
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.ViewFileAsText");
    }
    SetMousePointer(PointerDefault);
    StopAnimationAndClearStatus();
    return result;
}

} // namespace orvane
